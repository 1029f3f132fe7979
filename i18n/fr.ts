<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tarnwick Optics — präzise Kamerakollimation</source>
        <translation>Tarnwick Optics — collimation précise par caméra</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version&#xa0;:</translation>
    </message>
    <message>
        <source>Commit:</source>
        <translation>Commit&#xa0;:</translation>
    </message>
    <message>
        <source>Build:</source>
        <translation>Build&#xa0;:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Host:</source>
        <translation>Hôte&#xa0;:</translation>
    </message>
    <message>
        <source>API-Version:</source>
        <translation>Version API&#xa0;:</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Quoi de neuf&#xa0;?</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Datenschutz</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>AppearanceSettings</name>
    <message>
        <source>Bestimmt nur den Zustand beim App-Start. Während der Session lässt sich das Panel weiter per Pfeil ein-/ausklappen.</source>
        <translation>Définit uniquement l’état au démarrage. En cours de session, la flèche permet toujours de replier ou de déplier le panneau.</translation>
    </message>
    <message>
        <source>Darstellung</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Dunkles Design (Dark Mode)</source>
        <translation>Thème sombre</translation>
    </message>
    <message>
        <source>Sprache / Language</source>
        <translation>Langue / Language</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Panneaux</translation>
    </message>
    <message>
        <source>Kamera-Einstellungen (links)</source>
        <translation>Réglages caméra (gauche)</translation>
    </message>
    <message>
        <source>Ein-/Ausklappen merken</source>
        <translation>Mémoriser les groupes repliés</translation>
    </message>
    <message>
        <source>Parametergruppen mit einem Pfeil vor der Überschrift lassen sich ein- und ausklappen. Ist die Option an, bleibt dieser Zustand beim Beenden erhalten; ist sie aus, starten alle Gruppen wieder im Vorgabezustand.</source>
        <translation>Les groupes de paramètres dont le titre est précédé d’une flèche peuvent être repliés et dépliés. Si l’option est activée, leur état est conservé à la fermeture&#xa0;; sinon, tous les groupes reprennent leur état par défaut au démarrage.</translation>
    </message>
    <message>
        <source>Markierungen (rechts)</source>
        <translation>Repères (droite)</translation>
    </message>
    <message>
        <source>Tooltips anzeigen</source>
        <translation>Afficher les infobulles</translation>
    </message>
    <message>
        <source>Zoom-Regler anzeigen</source>
        <translation>Afficher le curseur de zoom</translation>
    </message>
    <message>
        <source>Blendet den Zoom-Regler unten mittig über dem Bild ein/aus.</source>
        <translation>Affiche ou masque le curseur de zoom en bas de l’image, au centre.</translation>
    </message>
</context>
<context>
    <name>BetaTag</name>
    <message>
        <source>BETA</source>
        <translation>BÊTA</translation>
    </message>
</context>
<context>
    <name>BlobAdviceLine</name>
    <message>
        <source>Werte übernommen.</source>
        <translation>Valeurs appliquées.</translation>
    </message>
    <message>
        <source>Werte übernehmen</source>
        <translation>Appliquer les valeurs</translation>
    </message>
    <message>
        <source>Zurücknehmen</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>BlobParameters</name>
    <message>
        <source>Min Threshold</source>
        <translation>Seuil min</translation>
    </message>
    <message>
        <source>Untere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darunter werden ignoriert.</source>
        <translation>Limite inférieure de luminosité pour la détection des points. Les pixels au-dessous de cette valeur sont ignorés.</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Seuil max</translation>
    </message>
    <message>
        <source>Obere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darüber werden ignoriert.</source>
        <translation>Limite supérieure de luminosité pour la détection des points. Les pixels au-dessus de cette valeur sont ignorés.</translation>
    </message>
    <message>
        <source>Filter Area</source>
        <translation>Filtre de surface</translation>
    </message>
    <message>
        <source>Filtert erkannte Punkte nach Größe. Schließt zu kleine oder zu große Flecken aus.</source>
        <translation>Filtre les points détectés selon leur taille. Exclut les taches trop petites ou trop grandes.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Surface min</translation>
    </message>
    <message>
        <source>Kleinste bzw. größte erlaubte Pixelfläche eines erkannten Punkts.</source>
        <translation>Surface minimale ou maximale admise pour un point détecté, en pixels.</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Surface max</translation>
    </message>
    <message>
        <source>Filter Circularity</source>
        <translation>Filtre de circularité</translation>
    </message>
    <message>
        <source>Filtert nach Rundheit. Verhindert dass kantige oder unförmige Flecken erkannt werden.</source>
        <translation>Filtre selon la circularité. Évite la détection de taches anguleuses ou informes.</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Circularité min</translation>
    </message>
    <message>
        <source>Wie rund ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt rund. Falls keine Zentriermarken erkannt werden, kann dieser Regler etwas verkleinert werden — z.B. auf 85.</source>
        <translation>Circularité minimale exigée d’un point. 0 = quelconque, 100 = parfaitement rond. Si aucune marque de centrage n’est détectée, vous pouvez baisser un peu ce curseur — p.&#xa0;ex. à 85.</translation>
    </message>
    <message>
        <source>Filter Inertia</source>
        <translation>Filtre d’inertie</translation>
    </message>
    <message>
        <source>Filtert nach Form-Symmetrie. Schließt langgestreckte oder elliptische Flecken aus.</source>
        <translation>Filtre selon la symétrie de la forme. Exclut les taches allongées ou elliptiques.</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Inertie min</translation>
    </message>
    <message>
        <source>Wie symmetrisch ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt symmetrisch.</source>
        <translation>Symétrie minimale exigée d’un point. 0 = quelconque, 100 = parfaitement symétrique.</translation>
    </message>
</context>
<context>
    <name>BlobTags</name>
    <message>
        <source>im Weg: %1</source>
        <translation>gêne : %1</translation>
    </message>
</context>
<context>
    <name>BlobWords</name>
    <message>
        <source>Das Bild ist zu dunkel.</source>
        <translation>L’image est trop sombre.</translation>
    </message>
    <message>
        <source>Das Bild ist zu hell.</source>
        <translation>L’image est trop claire.</translation>
    </message>
    <message>
        <source>Das Bild hat keinen Kontrast.</source>
        <translation>L’image n’a pas de contraste.</translation>
    </message>
    <message>
        <source>Das Bild ist unscharf.</source>
        <translation>L’image est floue.</translation>
    </message>
    <message>
        <source>Kein dunkler, geschlossener Fleck im Bild.</source>
        <translation>Aucune tache sombre et fermée dans l’image.</translation>
    </message>
    <message>
        <source>%1 px²</source>
        <translation>%1 px²</translation>
    </message>
    <message>
        <source>zu klein: %1 (mindestens %2)</source>
        <translation>trop petit : %1 (au moins %2)</translation>
    </message>
    <message>
        <source>zu groß: %1 (höchstens %2)</source>
        <translation>trop grand : %1 (au plus %2)</translation>
    </message>
    <message>
        <source>Rundheit %1 % (mindestens %2 %)</source>
        <translation>circularité %1 % (au moins %2 %)</translation>
    </message>
    <message>
        <source>Symmetrie %1 % (mindestens %2 %)</source>
        <translation>symétrie %1 % (au moins %2 %)</translation>
    </message>
    <message>
        <source>zu dunkel: Helligkeit %1 (mindestens %2)</source>
        <translation>trop sombre : luminosité %1 (au moins %2)</translation>
    </message>
    <message>
        <source>zu hell: Helligkeit %1 (höchstens %2)</source>
        <translation>trop clair : luminosité %1 (au plus %2)</translation>
    </message>
    <message>
        <source>zu schwacher Kontrast: %1 Stufen</source>
        <translation>contraste trop faible : %1 niveaux</translation>
    </message>
    <message>
        <source>%1 Blobs: %2</source>
        <translation>%1 blobs : %2</translation>
    </message>
    <message>
        <source>%1 bis %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 und %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Blob flackert: Fläche %1–%2</source>
        <translation>Le blob scintille : surface %1–%2</translation>
    </message>
    <message>
        <source>Blob flackert: Rundheit %1–%2 %</source>
        <translation>Le blob scintille : circularité %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Symmetrie %1–%2 %</source>
        <translation>Le blob scintille : symétrie %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Helligkeit %1–%2</source>
        <translation>Le blob scintille : luminosité %1–%2</translation>
    </message>
    <message>
        <source>Nächster Kandidat: %1</source>
        <translation>Candidat le plus proche : %1</translation>
    </message>
    <message>
        <source>%1. Keine Einstellung trennt ihn von dem Fleck mit %2.</source>
        <translation>%1. Aucun réglage ne le sépare de la tache de %2.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Surface min</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Surface max</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Circularité min</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Inertie min</translation>
    </message>
    <message>
        <source>Min Threshold</source>
        <translation>Seuil min</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Seuil max</translation>
    </message>
</context>
<context>
    <name>BoundedText</name>
    <message>
        <source>Der Text wurde gekürzt.</source>
        <translation>Le texte a été raccourci.</translation>
    </message>
</context>
<context>
    <name>BugReportDialog</name>
    <message>
        <source>Crash</source>
        <translation>Plantage</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Utilisation</translation>
    </message>
    <message>
        <source>GUI</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Feature vorschlagen</source>
        <translation>Suggérer une fonction</translation>
    </message>
    <message>
        <source>Bug melden</source>
        <translation>Signaler un bug</translation>
    </message>
    <message>
        <source>Welche Funktion wünschst du dir? Erzähl uns von deiner Idee.</source>
        <translation>Quelle fonction souhaitez-vous&#xa0;? Faites-nous part de votre idée.</translation>
    </message>
    <message>
        <source>Vielen Dank fürs Helfen! Der Report geht direkt an den Support.</source>
        <translation>Merci de votre aide&#xa0;! Le rapport est transmis directement à l’assistance.</translation>
    </message>
    <message>
        <source>Vielen Dank! Dein Feature-Vorschlag wurde erfasst.</source>
        <translation>Merci beaucoup&#xa0;! Votre suggestion a bien été enregistrée.</translation>
    </message>
    <message>
        <source>Vielen Dank! Der Bug-Report wurde erfasst.</source>
        <translation>Merci beaucoup&#xa0;! Le rapport de bug a bien été enregistré.</translation>
    </message>
    <message>
        <source>Bitte keine sensiblen Daten (Passwörter, persönliche Adressen) in der Beschreibung. Der Report wird vom Support gelesen + ggf. lange aufbewahrt.</source>
        <translation>Merci de n’indiquer aucune donnée sensible (mots de passe, adresses personnelles) dans la description. Le rapport est lu par l’assistance et peut être conservé longtemps.</translation>
    </message>
    <message>
        <source>Titel *</source>
        <translation>Titre *</translation>
    </message>
    <message>
        <source>Kurz: was soll Meridax können?</source>
        <translation>En bref&#xa0;: que devrait pouvoir faire Meridax&#xa0;?</translation>
    </message>
    <message>
        <source>Kurz: was ist passiert?</source>
        <translation>En bref&#xa0;: que s’est-il passé&#xa0;?</translation>
    </message>
    <message>
        <source>Kategorie *</source>
        <translation>Catégorie *</translation>
    </message>
    <message>
        <source>(bitte wählen)</source>
        <translation>(à choisir)</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>min. %1 Zeichen (noch %2)</source>
        <translation>min. %1 caractères (encore %2)</translation>
    </message>
    <message>
        <source>Was würdest du gerne tun? Wie würde es deinem Workflow helfen?</source>
        <translation>Que souhaiteriez-vous faire&#xa0;? En quoi cela faciliterait-il votre travail&#xa0;?</translation>
    </message>
    <message>
        <source>Reproschritte, erwartetes vs. tatsächliches Verhalten …</source>
        <translation>Étapes pour reproduire le problème, comportement attendu et comportement constaté…</translation>
    </message>
</context>
<context>
    <name>CalibrationHint</name>
    <message>
        <source>✓ Blob im Sektor – bereit zum Messen</source>
        <translation>✓ Blob dans le secteur – prêt à mesurer</translation>
    </message>
    <message>
        <source>⟳ Kamera auf Sektor drehen</source>
        <translation>⟳ Tournez la caméra vers le secteur</translation>
    </message>
    <message>
        <source>⚠ Kein Blob sichtbar</source>
        <translation>⚠ Aucun blob visible</translation>
    </message>
    <message>
        <source>%1 Blobs – bitte einen wählen</source>
        <translation>%1 blobs – veuillez n’en garder qu’un</translation>
    </message>
</context>
<context>
    <name>CalibrationPane</name>
    <message>
        <source>Kalibrierung</source>
        <translation>Étalonnage</translation>
    </message>
    <message>
        <source>Messpositionen</source>
        <translation>Positions de mesure</translation>
    </message>
    <message>
        <source>Anzahl Mess-Punkte für die Sensor-Kalibrierung (3–15). Mehr Punkte = robusteres Ergebnis. Bei genau 3 Punkten lässt sich die Standardabweichung nicht bewerten; ab 5 Punkten bestimmt Meridax zusätzlich die Rundheitsform.</source>
        <translation>Nombre de points de mesure pour l’étalonnage du capteur (3–15). Plus il y a de points, plus le résultat est robuste. Avec 3 points exactement, l’écart type ne peut pas être évalué&#xa0;; à partir de 5 points, Meridax détermine aussi la forme du défaut de circularité.</translation>
    </message>
    <message>
        <source>Frames / Position</source>
        <translation>Images / position</translation>
    </message>
    <message>
        <source>Wie viele Bilder pro Mess-Punkt gemittelt werden. Mehr Frames glätten das Rauschen, dauert aber länger.</source>
        <translation>Nombre d’images moyennées par point de mesure. Plus d’images atténuent le bruit, mais la mesure dure plus longtemps.</translation>
    </message>
    <message>
        <source>Kalibrierung läuft…</source>
        <translation>Étalonnage en cours…</translation>
    </message>
    <message>
        <source>Kalibrierung starten</source>
        <translation>Lancer l’étalonnage</translation>
    </message>
    <message>
        <source>Position %1 von %2</source>
        <translation>Position %1 sur %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Blob-Parameter</source>
        <translation>Paramètres des blobs</translation>
    </message>
    <message>
        <source>Gemessene Punkte</source>
        <translation>Points mesurés</translation>
    </message>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Ajustement de Taubin (%1 points)</translation>
    </message>
    <message>
        <source>Detailauswertung</source>
        <translation>Analyse détaillée</translation>
    </message>
</context>
<context>
    <name>CameraControlSlider</name>
    <message>
        <source>AUTO</source>
        <translation>AUTO</translation>
    </message>
</context>
<context>
    <name>CameraControls</name>
    <message>
        <source>Belichtung</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>Wie lange der Sensor pro Frame Licht sammelt. Länger = heller, aber empfindlicher für Bewegung. AUTO = Treiber wählt selbst.</source>
        <translation>Durée pendant laquelle le capteur recueille la lumière pour chaque image. Plus longue = plus clair, mais plus sensible aux mouvements. AUTO = le pilote choisit lui-même.</translation>
    </message>
    <message>
        <source>Helligkeit</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Verschiebt das ganze Bild heller oder dunkler, ohne die Belichtung zu ändern. Praktisch um Schatten anzuheben.</source>
        <translation>Éclaircit ou assombrit toute l’image sans modifier l’exposition. Pratique pour déboucher les ombres.</translation>
    </message>
    <message>
        <source>Kontrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Spreizt helle und dunkle Bereiche auseinander. Feine Strukturen werden sichtbarer, das Rauschen aber auch.</source>
        <translation>Accentue l’écart entre zones claires et zones sombres. Les détails fins ressortent mieux, mais le bruit aussi.</translation>
    </message>
    <message>
        <source>Sättigung</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Wie kräftig die Farben sind. 0 = Schwarz-Weiß, hoch = bunter. Hat keinen Effekt auf Mono-Kameras.</source>
        <translation>Intensité des couleurs. 0 = noir et blanc, valeur élevée = couleurs plus vives. Sans effet sur les caméras monochromes.</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>Verstärkt das Sensorsignal nach der Belichtung. Heller bei kurzer Belichtung, dafür mehr Rauschen — entspricht &apos;ISO&apos; bei Astrokameras.</source>
        <translation>Amplifie le signal du capteur après l’exposition. Image plus claire avec une pose courte, mais plus de bruit — équivaut aux «&#xa0;ISO&#xa0;» des caméras astro.</translation>
    </message>
    <message>
        <source>Fokus</source>
        <translation>Mise au point</translation>
    </message>
    <message>
        <source>Stellt die Linse manuell ein. Bei den meisten USB-Webcams: Wert 0 = Autofokus.</source>
        <translation>Règle l’objectif manuellement. Sur la plupart des webcams USB&#xa0;: valeur 0 = autofocus.</translation>
    </message>
    <message>
        <source>AF</source>
        <translation>AF</translation>
    </message>
    <message>
        <source>Eingestellt: %1 ms.</source>
        <translation>Réglé : %1 ms.</translation>
    </message>
</context>
<context>
    <name>CameraSettingsPane</name>
    <message>
        <source>Kamera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Aktualisieren</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Auflösung</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Bildgröße und Bildrate aus den von der Kamera unterstützten Modi. Nur im gestoppten Zustand änderbar. Die Kalibrierung wird pro Auflösung gespeichert und beim Verbinden dieser Auflösung wiederhergestellt.</source>
        <translation>Taille d’image et cadence d’images parmi les modes pris en charge par la caméra. Modifiable uniquement à l’arrêt. L’étalonnage est enregistré pour chaque résolution et restauré à la connexion dans cette résolution.</translation>
    </message>
    <message>
        <source>Kamera-Eigenschaften</source>
        <translation>Propriétés de la caméra</translation>
    </message>
    <message>
        <source>Zentrum &amp; Ansicht</source>
        <translation>Centre et vue</translation>
    </message>
</context>
<context>
    <name>CenterAndView</name>
    <message>
        <source>Zentrum X</source>
        <translation>Centre X</translation>
    </message>
    <message>
        <source>X-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).</source>
        <translation>Position X du centre de l’image, en pixels. Point de référence de tous les cercles superposés et du réticule. Vous pouvez aussi saisir ici les valeurs de centrage d’autres fabricants (p.&#xa0;ex. OCAL).</translation>
    </message>
    <message>
        <source>Zentrum Y</source>
        <translation>Centre Y</translation>
    </message>
    <message>
        <source>Y-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).</source>
        <translation>Position Y du centre de l’image, en pixels. Point de référence de tous les cercles superposés et du réticule. Vous pouvez aussi saisir ici les valeurs de centrage d’autres fabricants (p.&#xa0;ex. OCAL).</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Verschiebt die Overlays relativ zum Bildmittelpunkt — z.B. wenn die Optik nicht zentriert auf dem Sensor sitzt. Nicht nötig wenn die Kamera mit Optik kalibriert wurde — dann sollten die Werte 0 sein.</source>
        <translation>Déplace les superpositions par rapport au centre de l’image — p.&#xa0;ex. si l’optique n’est pas centrée sur le capteur. Inutile si la caméra a été étalonnée avec son optique — les valeurs devraient alors être à 0.</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>Décalage X</translation>
    </message>
    <message>
        <source>Horizontale bzw. vertikale Verschiebung der Overlays gegen das Zentrum, in Pixeln.</source>
        <translation>Décalage horizontal ou vertical des superpositions par rapport au centre, en pixels.</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Décalage Y</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Bildvergrößerung in der Anzeige. 0 = volle Höhe ohne Beschneidung, 100 = maximaler Zoom. Mausrad und Pinch zoomen parallel.</source>
        <translation>Agrandissement de l’image à l’écran. 0 = pleine hauteur sans rognage, 100 = zoom maximal. La molette et le pincement agissent aussi sur le zoom.</translation>
    </message>
</context>
<context>
    <name>CenterDiagram</name>
    <message>
        <source>Lage des Zentrums</source>
        <translation>Position du centre</translation>
    </message>
    <message>
        <source>geometrische Sensormitte</source>
        <translation>centre géométrique du capteur</translation>
    </message>
    <message>
        <source>gemessenes Zentrum</source>
        <translation>centre mesuré</translation>
    </message>
    <message>
        <source>Versatz %1 px   (x %2 / y %3)</source>
        <translation>Écart %1 px   (x %2 / y %3)</translation>
    </message>
</context>
<context>
    <name>CenterDialog</name>
    <message>
        <source>Zentrum exzellent bestimmt</source>
        <translation>Excellente détermination du centre</translation>
    </message>
    <message>
        <source>Zentrum gut bestimmt</source>
        <translation>Bonne détermination du centre</translation>
    </message>
    <message>
        <source>Zentrum brauchbar — mehr Positionen empfohlen</source>
        <translation>Centre acceptable — mesurez de préférence plus de positions</translation>
    </message>
    <message>
        <source>Zentrum ungenau — bitte neu messen</source>
        <translation>Centre imprécis — veuillez refaire la mesure</translation>
    </message>
    <message>
        <source>Güte nicht bewertbar</source>
        <translation>Qualité non évaluable</translation>
    </message>
    <message>
        <source>Kalibrierung abgeschlossen</source>
        <translation>Étalonnage terminé</translation>
    </message>
    <message>
        <source>Gemessenes Zentrum übernehmen?</source>
        <translation>Adopter le centre mesuré&#xa0;?</translation>
    </message>
    <message>
        <source>Mit drei oder vier Messpunkten schmiegt sich der Kreis so eng an die Punkte, dass Streuung und Genauigkeit nicht mehr aussagekräftig sind — eine Formabweichung verschiebt den Mittelpunkt dann unbemerkt. Das Zentrum ist als Näherung verwendbar. Für eine belastbare Bewertung bitte mit mindestens sechs Positionen messen.</source>
        <translation>Avec trois ou quatre points de mesure, le cercle épouse les points de si près que la dispersion et la précision ne sont plus significatives — un défaut de forme déplace alors le centre sans que rien ne le signale. Le centre est utilisable comme approximation. Pour une évaluation fiable, mesurez au moins six positions.</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Actualiser le profil</translation>
    </message>
    <message>
        <source>Bildmitte ins Kamera-Profil speichern und beim nächsten Verbinden wiederherstellen.</source>
        <translation>Enregistrer le centre de l’image dans le profil de caméra et le restaurer à la prochaine connexion.</translation>
    </message>
    <message>
        <source>Ja</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Gemessen mit %1. Das Zentrum gilt, sobald diese Kamera mit dieser Auflösung wieder gewählt ist.</source>
        <translation>Mesuré avec %1. Le centre s’applique dès que cette caméra est à nouveau choisie avec cette résolution.</translation>
    </message>
</context>
<context>
    <name>CenterFigures</name>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Ajustement de Taubin (%1 points)</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centre ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n. déf.</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Écart type</translation>
    </message>
</context>
<context>
    <name>CrashDetails</name>
    <message>
        <source>Crash-Details anzeigen</source>
        <translation>Afficher les détails du plantage</translation>
    </message>
    <message>
        <source>ausgeklappt</source>
        <translation>déplié</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>replié</translation>
    </message>
</context>
<context>
    <name>CrashFooter</name>
    <message>
        <source>Verwerfen</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Mit Beschreibung</source>
        <translation>Avec description</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Wird gesendet…</source>
        <translation>Envoi en cours…</translation>
    </message>
</context>
<context>
    <name>CrashRecoveryDialog</name>
    <message>
        <source>Meridax ist beim letzten Mal abgestürzt</source>
        <translation>Meridax a planté la dernière fois</translation>
    </message>
    <message>
        <source>Hilf uns das zu fixen — schick uns die Crash-Info.</source>
        <translation>Aidez-nous à corriger le problème — envoyez-nous le rapport de plantage.</translation>
    </message>
    <message>
        <source>Wir haben einen Crash-Bericht gespeichert. Der Bericht enthält:</source>
        <translation>Nous avons enregistré un rapport de plantage. Il contient&#xa0;:</translation>
    </message>
    <message>
        <source>• Was schiefgegangen ist (Fehlercode + Modul)</source>
        <translation>• ce qui s’est mal passé (code d’erreur + module)</translation>
    </message>
    <message>
        <source>• Die letzten Log-Zeilen vor dem Absturz (anonymisiert)</source>
        <translation>• les dernières lignes du journal avant le plantage (anonymisées)</translation>
    </message>
    <message>
        <source>• App-Version und Build-Info</source>
        <translation>• la version de l’application et les informations de build</translation>
    </message>
    <message>
        <source>E-Mail-Adressen und dein Benutzername in Dateipfaden werden vorher unkenntlich gemacht. Namen und Kennungen deiner Kameras bleiben lesbar.</source>
        <translation>Les adresses e-mail et votre nom d’utilisateur dans les chemins de fichiers sont masqués au préalable. Les noms et identifiants de vos caméras restent lisibles.</translation>
    </message>
    <message>
        <source>Der Bericht ist leer oder lässt sich nicht lesen. Du kannst ihn verwerfen oder mit eigenen Worten beschreiben, was geschehen ist.</source>
        <translation>Le rapport est vide ou illisible. Vous pouvez l’ignorer ou décrire avec vos propres mots ce qui s’est passé.</translation>
    </message>
</context>
<context>
    <name>FeedbackDialog</name>
    <message>
        <source>Schade — was können wir besser machen?</source>
        <translation>Dommage — que pouvons-nous faire de mieux&#xa0;?</translation>
    </message>
    <message>
        <source>Danke fürs ehrliche Feedback.</source>
        <translation>Merci de votre franchise.</translation>
    </message>
    <message>
        <source>OK — wo siehst du Luft nach oben?</source>
        <translation>D’accord — que pouvons-nous encore améliorer&#xa0;?</translation>
    </message>
    <message>
        <source>Schön zu hören!</source>
        <translation>Cela nous fait plaisir&#xa0;!</translation>
    </message>
    <message>
        <source>Wow — danke!</source>
        <translation>Super — merci&#xa0;!</translation>
    </message>
    <message>
        <source>Feedback senden</source>
        <translation>Envoyer un avis</translation>
    </message>
    <message>
        <source>Wie gefällt dir Meridax? Deine Bewertung hilft uns weiter.</source>
        <translation>Que pensez-vous de Meridax&#xa0;? Votre note nous aide à progresser.</translation>
    </message>
    <message>
        <source>Vielen Dank für dein Feedback!</source>
        <translation>Merci beaucoup pour votre avis&#xa0;!</translation>
    </message>
    <message>
        <source>Deine Bewertung</source>
        <translation>Votre note</translation>
    </message>
    <message>
        <source>Kommentar (optional)</source>
        <translation>Commentaire (facultatif)</translation>
    </message>
    <message>
        <source>Was gefällt dir? Was würdest du anders machen?</source>
        <translation>Qu’est-ce qui vous plaît&#xa0;? Que feriez-vous autrement&#xa0;?</translation>
    </message>
</context>
<context>
    <name>FewPositionsWarning</name>
    <message>
        <source>Weniger als 6 Messpunkte: Formabweichungen wie ein Dreikant sind dann nicht erkennbar und verschieben den berechneten Mittelpunkt. Die angezeigte Genauigkeit ist in diesem Fall zu optimistisch. Klicken für Details im Handbuch.</source>
        <translation>Moins de 6 points de mesure&#xa0;: des défauts de forme, tels qu’une forme trilobée, ne sont alors pas décelables et déplacent le centre calculé. Dans ce cas, la précision affichée est trop optimiste. Cliquez pour en savoir plus dans le manuel.</translation>
    </message>
</context>
<context>
    <name>FitTable</name>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Écart type</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n. déf.</translation>
    </message>
</context>
<context>
    <name>FocusPresetChip</name>
    <message>
        <source>Klick: Fokus + Markierungen anfahren
Doppelklick: umbenennen</source>
        <translation>Clic&#xa0;: rappeler la mise au point et les repères
Double-clic&#xa0;: renommer</translation>
    </message>
    <message>
        <source>Klick: nur Fokus anfahren
Doppelklick: umbenennen</source>
        <translation>Clic&#xa0;: rappeler uniquement la mise au point
Double-clic&#xa0;: renommer</translation>
    </message>
    <message>
        <source>Preset entfernen</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Preset mit aktuellem Stand aktualisieren</source>
        <translation>Actualiser le préréglage avec l’état actuel</translation>
    </message>
    <message>
        <source>Leertaste: anfahren, Eingabetaste: umbenennen</source>
        <translation>Espace&#xa0;: rappeler, Entrée&#xa0;: renommer</translation>
    </message>
    <message>
        <source>Name des Presets</source>
        <translation>Nom du préréglage</translation>
    </message>
</context>
<context>
    <name>FocusPresetOverlay</name>
    <message>
        <source>Fokus-Preset anlegen</source>
        <translation>Créer un préréglage de mise au point</translation>
    </message>
    <message>
        <source>Name (Enter)</source>
        <translation>Nom (Entrée)</translation>
    </message>
</context>
<context>
    <name>FocusTapArea</name>
    <message>
        <source>Keine fokussierbare Struktur gefunden.</source>
        <translation>Aucun détail exploitable pour la mise au point.</translation>
    </message>
    <message>
        <source>Fokus dieser Kamera ist nicht steuerbar.</source>
        <translation>La mise au point de cette caméra n’est pas pilotable.</translation>
    </message>
    <message>
        <source>Fokusbereich wird noch ermittelt — bitte kurz warten.</source>
        <translation>Plage de mise au point en cours de détection — veuillez patienter un instant.</translation>
    </message>
    <message>
        <source>Schärfste Stelle gefunden.</source>
        <translation>Position la plus nette trouvée.</translation>
    </message>
</context>
<context>
    <name>FocusTapButton</name>
    <message>
        <source>Fokus-Antippen</source>
        <translation>Mise au point par clic</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktiv – ins Bild auf eine Struktur klicken stellt dort scharf.
Klick hier zum Deaktivieren.</source>
        <translation>Mise au point par clic active – cliquez sur un détail de l’image pour y faire la mise au point.
Cliquez ici pour la désactiver.</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktivieren – danach ins Bild auf eine Struktur klicken, um dort scharfzustellen.</source>
        <translation>Activer la mise au point par clic – cliquez ensuite sur un détail de l’image pour y faire la mise au point.</translation>
    </message>
</context>
<context>
    <name>LeftSettingsPanel</name>
    <message>
        <source>Kamera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Kalibrierung</source>
        <translation>Étalonnage</translation>
    </message>
</context>
<context>
    <name>LegalTextDialog</name>
    <message>
        <source>Datenschutzerklärung</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>%1 (v%2)</source>
        <translation>%1 (v%2)</translation>
    </message>
    <message>
        <source>Dieser Rechtstext liegt noch nicht lokal vor. Bitte verbinde dich einmal mit dem Internet und starte Meridax neu, damit er vom Server geladen werden kann.</source>
        <translation>Ce texte juridique n’est pas encore disponible localement. Veuillez vous connecter une fois à Internet et redémarrer Meridax pour qu’il puisse être chargé depuis le serveur.</translation>
    </message>
</context>
<context>
    <name>LineStyleRow</name>
    <message>
        <source>Stil</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Durchgehend</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Gestrichelt</source>
        <translation>Tirets</translation>
    </message>
    <message>
        <source>Gepunktet</source>
        <translation>Pointillés</translation>
    </message>
    <message>
        <source>Strich-Punkt</source>
        <translation>Tiret-point</translation>
    </message>
</context>
<context>
    <name>LockButton</name>
    <message>
        <source>Zentrum gesperrt – klicken zum Entsperren</source>
        <translation>Centre verrouillé – cliquez pour déverrouiller</translation>
    </message>
    <message>
        <source>Zentrum entsperrt – klicken zum Sperren</source>
        <translation>Centre déverrouillé – cliquez pour verrouiller</translation>
    </message>
</context>
<context>
    <name>LogOption</name>
    <message>
        <source>Aktuelles Log mitschicken (anonymisiert)</source>
        <translation>Joindre le journal actuel (anonymisé)</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>LogPreviewDialog</name>
    <message>
        <source>Log-Vorschau (so geht es an den Server)</source>
        <translation>Aperçu du journal (tel qu’il sera envoyé au serveur)</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Messung verworfen: andere Kamera oder Auflösung gewählt</source>
        <translation>Mesure abandonnée : autre caméra ou résolution choisie</translation>
    </message>
</context>
<context>
    <name>MeasureButton</name>
    <message>
        <source>Messe… %1 / %2</source>
        <translation>Mesure… %1 / %2</translation>
    </message>
    <message>
        <source>Position messen</source>
        <translation>Mesurer la position</translation>
    </message>
</context>
<context>
    <name>MeasurementTable</name>
    <message>
        <source>Schritt</source>
        <translation>Étape</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
</context>
<context>
    <name>OverlayCanvas</name>
    <message>
        <source>Messmarken</source>
        <translation>Repères de mesure</translation>
    </message>
</context>
<context>
    <name>OverlaySettingsPane</name>
    <message>
        <source>Kreis %1</source>
        <translation>Cercle %1</translation>
    </message>
    <message>
        <source>Farbe: %1</source>
        <translation>Couleur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <source>Messkreise</source>
        <translation>Cercles de mesure</translation>
    </message>
    <message>
        <source>Fadenkreuz</source>
        <translation>Réticule</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Lines (3)</source>
        <translation>Branches (3)</translation>
    </message>
    <message>
        <source>Kreuz (4)</source>
        <translation>Croix (4)</translation>
    </message>
</context>
<context>
    <name>PanelHandle</name>
    <message>
        <source>ausgeklappt</source>
        <translation>déplié</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>replié</translation>
    </message>
</context>
<context>
    <name>ProfileSettings</name>
    <message>
        <source>Kamera-Profil</source>
        <translation>Profil de caméra</translation>
    </message>
    <message>
        <source>Keine Kamera ausgewählt</source>
        <translation>Aucune caméra sélectionnée</translation>
    </message>
    <message>
        <source>Kameraeinstellungen wiederherstellen</source>
        <translation>Restaurer les réglages caméra</translation>
    </message>
    <message>
        <source>Kalibrierung wiederherstellen</source>
        <translation>Restaurer l’étalonnage</translation>
    </message>
    <message>
        <source>Gespeicherte Bildmitte:</source>
        <translation>Centre de l’image enregistré&#xa0;:</translation>
    </message>
    <message>
        <source>noch nicht gespeichert</source>
        <translation>pas encore enregistré</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Actualiser le profil</translation>
    </message>
    <message>
        <source>Profil speichern</source>
        <translation>Enregistrer le profil</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>QualityStrip</name>
    <message>
        <source>exzellent</source>
        <translation>excellent</translation>
    </message>
    <message>
        <source>gut</source>
        <translation>bon</translation>
    </message>
    <message>
        <source>brauchbar</source>
        <translation>acceptable</translation>
    </message>
    <message>
        <source>ungenau</source>
        <translation>imprécis</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>ovale</translation>
    </message>
    <message>
        <source>Dreikant</source>
        <translation>trilobée</translation>
    </message>
    <message>
        <source>Vierkant</source>
        <translation>quadrilobée</translation>
    </message>
    <message>
        <source>%1-Kant</source>
        <translation>%1 lobes</translation>
    </message>
    <message>
        <source>Die Bahn ist oval (2. Ordnung). Typische Ursachen: gekippte Rotationsachse oder unrunde Passung.</source>
        <translation>La trajectoire est ovale (ordre 2). Causes typiques&#xa0;: axe de rotation incliné ou ajustement mécanique non circulaire.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Dreikant (3. Ordnung) — die klassische Signatur eines Bauteils, das im Dreibacken-Futter gespannt und gedreht wurde.</source>
        <translation>La trajectoire est trilobée (ordre 3) — signature classique d’une pièce serrée et tournée dans un mandrin à trois mors.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Vierkant (4. Ordnung) — typisch für ein Vierbacken-Futter oder eine geschlitzte Spannzange.</source>
        <translation>La trajectoire est quadrilobée (ordre 4) — typique d’un mandrin à quatre mors ou d’une pince de serrage fendue.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen %1-Kant (%1. Ordnung) — meist von der Spannvorrichtung, etwa einer Spannzange mit %1 Schlitzen.</source>
        <translation>La trajectoire présente %1 lobes (ordre %1) — le plus souvent dus au serrage, par exemple dans une pince de serrage à %1 fentes.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt eine Welligkeit %1. Ordnung — bei so hohen Ordnungen meist Rattermarken aus der Bearbeitung.</source>
        <translation>La trajectoire présente une ondulation d’ordre %1 — à des ordres aussi élevés, il s’agit le plus souvent de marques de broutage dues à l’usinage.</translation>
    </message>
    <message>
        <source>Mit weniger als fünf Messpunkten lässt sich die Genauigkeit nicht beziffern: Formabweichungen sind nicht von Messrauschen zu trennen und verschieben den Mittelpunkt unbemerkt. Das Zentrum ist als Näherung verwendbar.</source>
        <translation>Avec moins de cinq points de mesure, la précision ne peut pas être chiffrée&#xa0;: les défauts de forme ne se distinguent pas du bruit de mesure et déplacent le centre sans que rien ne le signale. Le centre est utilisable comme approximation.</translation>
    </message>
    <message>
        <source>Die Messpunkte decken den Umlauf nicht gleichmäßig ab — bitte über den vollen Kreis verteilen. Formfehler mitteln sich sonst nicht heraus.</source>
        <translation>Les points de mesure ne couvrent pas uniformément le tour — veuillez les répartir sur le cercle complet. Sinon, les défauts de forme ne se compensent pas.</translation>
    </message>
    <message>
        <source>Die Streuung ist zufällig verteilt — mehr Frames pro Position oder mehr Messpunkte verbessern das Ergebnis.</source>
        <translation>La dispersion est aléatoire — davantage d’images par position ou de points de mesure améliore le résultat.</translation>
    </message>
    <message>
        <source>Das ist Form, kein Messfehler: neu messen ändert daran nichts, und der Mittelpunkt bleibt davon unberührt.</source>
        <translation>C’est un défaut de forme, pas une erreur de mesure&#xa0;: refaire la mesure n’y change rien, et le centre n’en est pas affecté.</translation>
    </message>
    <message>
        <source>Messgüte</source>
        <translation>Qualité de mesure</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centre ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n. déf.</translation>
    </message>
    <message>
        <source>Winkelabdeckung</source>
        <translation>Couverture angulaire</translation>
    </message>
    <message>
        <source>größte Lücke %1°</source>
        <translation>plus grand écart %1°</translation>
    </message>
    <message>
        <source>Rundheit</source>
        <translation>Circularité</translation>
    </message>
</context>
<context>
    <name>ReadingDialog</name>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ResidualPlot</name>
    <message>
        <source>Detailauswertung</source>
        <translation>Analyse détaillée</translation>
    </message>
    <message>
        <source>Rot markierte Punkte liegen außerhalb der festen Skala — für die vollständige Ansicht auf Auto umschalten.</source>
        <translation>Les points marqués en rouge sont hors de l’échelle fixe — passez en Auto pour tout afficher.</translation>
    </message>
</context>
<context>
    <name>RightOverlayPanel</name>
    <message>
        <source>Einblendungen</source>
        <translation>Superpositions</translation>
    </message>
</context>
<context>
    <name>RoundnessDiagram</name>
    <message>
        <source>Rundheit der Bahn</source>
        <translation>Circularité de la trajectoire</translation>
    </message>
    <message>
        <source>Skala</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Auto (±%1 px)</source>
        <translation>Auto (±%1 px)</translation>
    </message>
    <message>
        <source>fest ±%1 px</source>
        <translation>fixe ±%1 px</translation>
    </message>
    <message>
        <source>Sollkreis</source>
        <translation>Cercle théorique</translation>
    </message>
    <message>
        <source>Messpunkte</source>
        <translation>Points de mesure</translation>
    </message>
    <message>
        <source>Messunsicherheit ±%1 px</source>
        <translation>Incertitude de mesure ±%1 px</translation>
    </message>
    <message>
        <source>Messunsicherheit n. def.</source>
        <translation>Incertitude de mesure n. déf.</translation>
    </message>
    <message>
        <source>Mittelpunkt</source>
        <translation>Centre</translation>
    </message>
</context>
<context>
    <name>ScreenshotButton</name>
    <message>
        <source>Screenshot — Zielordner erst in den Einstellungen wählen</source>
        <translation>Capture d’écran — choisissez d’abord le dossier dans les réglages</translation>
    </message>
    <message>
        <source>Screenshot mit Markierungen speichern
%1</source>
        <translation>Enregistrer une capture d’écran avec les repères
%1</translation>
    </message>
    <message>
        <source>Screenshot ohne Markierungen speichern
%1</source>
        <translation>Enregistrer une capture d’écran sans les repères
%1</translation>
    </message>
    <message>
        <source>Screenshot: zuerst in den Einstellungen einen Ordner wählen</source>
        <translation>Capture&#xa0;: choisissez d’abord un dossier dans les réglages</translation>
    </message>
    <message>
        <source>Screenshot fehlgeschlagen — siehe Log</source>
        <translation>Échec de la capture d’écran — voir le journal</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Screenshot gespeichert</source>
        <translation>Capture d’écran enregistrée</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderDialog</name>
    <message>
        <source>Screenshot-Ordner wählen</source>
        <translation>Choisir le dossier des captures d’écran</translation>
    </message>
</context>
<context>
    <name>ScreenshotPicker</name>
    <message>
        <source>Datei konnte nicht geladen werden.</source>
        <translation>Le fichier n’a pas pu être chargé.</translation>
    </message>
    <message>
        <source>Screenshot (optional, max. 5 MB, PNG/JPEG)</source>
        <translation>Capture d’écran (facultative, max. 5&#xa0;Mo, PNG/JPEG)</translation>
    </message>
    <message>
        <source>Datei auswählen…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Anderen Screenshot wählen</source>
        <translation>Choisir une autre capture</translation>
    </message>
    <message>
        <source>Entfernen</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Screenshot auswählen</source>
        <translation>Choisir une capture d’écran</translation>
    </message>
    <message>
        <source>Bilder (*.png *.jpg *.jpeg)</source>
        <translation>Images (*.png *.jpg *.jpeg)</translation>
    </message>
</context>
<context>
    <name>ScreenshotSettings</name>
    <message>
        <source>Screenshots</source>
        <translation>Captures d’écran</translation>
    </message>
    <message>
        <source>Zielordner</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>Nicht festgelegt</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>Ordner wählen…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Markierungen einschließen</source>
        <translation>Inclure les repères</translation>
    </message>
    <message>
        <source>Fadenkreuz und Messkreise im Screenshot mit aufnehmen.</source>
        <translation>Faire figurer le réticule et les cercles de mesure sur la capture d’écran.</translation>
    </message>
    <message>
        <source>Fokus-Presets</source>
        <translation>Préréglages focus</translation>
    </message>
    <message>
        <source>Markierungen mit speichern</source>
        <translation>Enregistrer aussi les repères</translation>
    </message>
    <message>
        <source>Beim Anlegen eines Fokus-Preset werden Kreise und Fadenkreuz mit gespeichert
und beim Anfahren wiederhergestellt. Aus = nur Fokuswert wird angefahren.</source>
        <translation>À la création d’un préréglage de mise au point, les cercles et le réticule sont enregistrés aussi
et restaurés lors de son rappel. Désactivé = seule la mise au point est rappelée.</translation>
    </message>
    <message>
        <source>Fokuswert mit anzeigen</source>
        <translation>Afficher la valeur enregistrée</translation>
    </message>
    <message>
        <source>Im Overlay-Chip wird der gespeicherte Fokuswert (f=NNN) eingeblendet.</source>
        <translation>La valeur de mise au point enregistrée (f=NNN) s’affiche à côté du nom du préréglage, sur l’image.</translation>
    </message>
</context>
<context>
    <name>SectionChevron</name>
    <message>
        <source>ausgeklappt</source>
        <translation>déplié</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>replié</translation>
    </message>
</context>
<context>
    <name>ServerError</name>
    <message>
        <source>Zu viele Anfragen — bitte versuche es später erneut.</source>
        <translation>Trop de requêtes — veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Maximal 10 Bug-Reports pro 24h. Bitte später erneut.</source>
        <translation>10 rapports de bug au maximum par 24&#xa0;h. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Max. 5 Feature-Vorschläge pro 24h. Bitte später erneut.</source>
        <translation>5 suggestions de fonction au maximum par 24&#xa0;h. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Du hast in den letzten 24h schon Feedback gesendet — danke! Bitte etwas warten.</source>
        <translation>Vous avez déjà envoyé un avis au cours des dernières 24&#xa0;h — merci&#xa0;! Veuillez patienter un peu.</translation>
    </message>
    <message>
        <source>Titel ist ungültig (max. 200 Zeichen).</source>
        <translation>Le titre n’est pas valide (max. 200 caractères).</translation>
    </message>
    <message>
        <source>Beschreibung ist ungültig (max. 8000 Zeichen).</source>
        <translation>La description n’est pas valide (max. 8000 caractères).</translation>
    </message>
    <message>
        <source>Bewertung muss zwischen 1 und 5 liegen.</source>
        <translation>La note doit être comprise entre 1 et 5.</translation>
    </message>
    <message>
        <source>Kommentar zu lang (max. 4000 Zeichen).</source>
        <translation>Commentaire trop long (max. 4000 caractères).</translation>
    </message>
    <message>
        <source>Screenshot zu groß (max. 5 MB).</source>
        <translation>Capture d’écran trop volumineuse (max. 5&#xa0;Mo).</translation>
    </message>
    <message>
        <source>Nur PNG / JPEG erlaubt.</source>
        <translation>Seuls les formats PNG / JPEG sont acceptés.</translation>
    </message>
    <message>
        <source>Screenshot konnte nicht gelesen werden.</source>
        <translation>La capture d’écran n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>Server nicht erreichbar. Bitte später erneut versuchen.</source>
        <translation>Serveur injoignable. Veuillez réessayer plus tard.</translation>
    </message>
</context>
<context>
    <name>SettingsHeader</name>
    <message>
        <source>Einstellungen</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Online-Dokumentation im Browser öffnen</source>
        <translation>Ouvrir la documentation en ligne dans le navigateur</translation>
    </message>
    <message>
        <source>Über Meridax — Build-Info anzeigen</source>
        <translation>À propos de Meridax — afficher les informations de build</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SettingsLink</name>
    <message>
        <source>Einstellungen</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>SliderValueDisplay</name>
    <message>
        <source>Doppelklick zum Bearbeiten</source>
        <translation>Double-cliquez pour modifier</translation>
    </message>
    <message>
        <source>Doppelklick: manuellen Wert eingeben</source>
        <translation>Double-clic&#xa0;: saisir une valeur</translation>
    </message>
    <message>
        <source>Auto-Modus aktiv — Slider bewegen für manuellen Wert</source>
        <translation>Mode auto actif — déplacez le curseur pour une valeur manuelle</translation>
    </message>
</context>
<context>
    <name>SliderValueEditor</name>
    <message>
        <source>Bereich %1 – %2  ·  Punkt (.) als Dezimaltrennzeichen</source>
        <translation>Plage %1 – %2  ·  point (.) comme séparateur décimal</translation>
    </message>
    <message>
        <source>Komma → Punkt umgewandelt</source>
        <translation>Conversion virgule → point</translation>
    </message>
</context>
<context>
    <name>StarRow</name>
    <message>
        <source>Sehr unzufrieden</source>
        <translation>Très décevant</translation>
    </message>
    <message>
        <source>Unzufrieden</source>
        <translation>Décevant</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Correct</translation>
    </message>
    <message>
        <source>Gut</source>
        <translation>Bien</translation>
    </message>
    <message>
        <source>Begeistert</source>
        <translation>Formidable</translation>
    </message>
</context>
<context>
    <name>SubmissionFooter</name>
    <message>
        <source>Wird gesendet…</source>
        <translation>Envoi en cours…</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Envoyer</translation>
    </message>
</context>
<context>
    <name>SupportSettings</name>
    <message>
        <source>Support &amp; Feedback</source>
        <translation>Assistance et avis</translation>
    </message>
    <message>
        <source>BETA-TESTER</source>
        <translation>BÊTA-TEST</translation>
    </message>
    <message>
        <source>Du bist als Beta-Tester freigeschaltet — danke fürs Testen!</source>
        <translation>Votre accès au bêta-test est activé — merci pour vos essais&#xa0;!</translation>
    </message>
    <message>
        <source>Probleme? Feedback? Wir hören zu — schick uns einen Bug-Report.</source>
        <translation>Un problème&#xa0;? Un avis&#xa0;? Nous sommes à l’écoute — envoyez-nous un rapport de bug.</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1 (Beta).</source>
        <translation>Version actuellement installée&#xa0;: %1 (bêta).</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1.</source>
        <translation>Version actuellement installée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Bug</translation>
    </message>
    <message>
        <source>Bug-Reports sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Les rapports de bug sont temporairement désactivés côté serveur.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Suggestion</translation>
    </message>
    <message>
        <source>Feature-Vorschläge sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Les suggestions de fonction sont temporairement désactivées côté serveur.</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Avis</translation>
    </message>
</context>
<context>
    <name>SweepIndicator</name>
    <message>
        <source>Fokussiere…</source>
        <translation>Mise au point…</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Kamera verbunden</source>
        <translation>Caméra connectée</translation>
    </message>
    <message>
        <source>Kamera nicht verbunden</source>
        <translation>Caméra non connectée</translation>
    </message>
    <message>
        <source>Kalibriert</source>
        <translation>Étalonnée</translation>
    </message>
    <message>
        <source>Nicht kalibriert</source>
        <translation>Non étalonnée</translation>
    </message>
    <message>
        <source>1 Blob ✓</source>
        <translation>1 blob ✓</translation>
    </message>
    <message>
        <source>%1 Blobs</source>
        <translation>Blobs&#xa0;: %1</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
</context>
<context>
    <name>UpdateBanner</name>
    <message>
        <source>Update verfügbar: %1</source>
        <translation>Mise à jour disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Quoi de neuf&#xa0;?</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Auf Stable wechseln</source>
        <translation>Passer en stable</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>Was ist neu in Version %1?</source>
        <translation>Quoi de neuf dans la version %1&#xa0;?</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Quoi de neuf&#xa0;?</translation>
    </message>
    <message>
        <source>Keine Release-Notes verfügbar.</source>
        <translation>Aucune note de version disponible.</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Télécharger</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Verkleinern</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Vergrößern</source>
        <translation>Zoom avant</translation>
    </message>
</context>
<context>
    <name>meridax::CameraController</name>
    <message>
        <source>Kamerafehler – bitte Gerät und Verbindung prüfen.</source>
        <translation>Erreur caméra – vérifiez l’appareil et la connexion.</translation>
    </message>
    <message>
        <source>Kalibrierungszentrum konnte nicht berechnet werden.</source>
        <translation>Le centre d’étalonnage n’a pas pu être calculé.</translation>
    </message>
    <message>
        <source>Kamera antwortet nicht</source>
        <translation>La caméra ne répond pas</translation>
    </message>
    <message>
        <source>Kamera liefert kein Bild</source>
        <translation>La caméra n&apos;envoie pas d&apos;image</translation>
    </message>
    <message>
        <source>Kamera startet…</source>
        <translation>Démarrage de la caméra…</translation>
    </message>
</context>
<context>
    <name>meridax::CameraViewModel</name>
    <message>
        <source>Rechtstexte konnten nicht geladen werden. Bitte erneut versuchen.</source>
        <translation>Les textes juridiques n’ont pas pu être chargés. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Focus %1</translation>
    </message>
</context>
</TS>
