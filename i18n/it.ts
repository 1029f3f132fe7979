<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tarnwick Optics — präzise Kamerakollimation</source>
        <translation>Tarnwick Optics — collimazione di precisione con camera</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versione:</translation>
    </message>
    <message>
        <source>Commit:</source>
        <translation>Commit:</translation>
    </message>
    <message>
        <source>Build:</source>
        <translation>Build:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Host:</source>
        <translation>Host:</translation>
    </message>
    <message>
        <source>API-Version:</source>
        <translation>Versione API:</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Condizioni d’uso</translation>
    </message>
    <message>
        <source>Datenschutz</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>AppearanceSettings</name>
    <message>
        <source>Bestimmt nur den Zustand beim App-Start. Während der Session lässt sich das Panel weiter per Pfeil ein-/ausklappen.</source>
        <translation>Determina solo lo stato all’avvio dell’app. Durante la sessione puoi comunque aprire e chiudere il pannello con la freccia.</translation>
    </message>
    <message>
        <source>Darstellung</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Dunkles Design (Dark Mode)</source>
        <translation>Tema scuro (Dark Mode)</translation>
    </message>
    <message>
        <source>Sprache / Language</source>
        <translation>Lingua / Language</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Pannelli</translation>
    </message>
    <message>
        <source>Kamera-Einstellungen (links)</source>
        <translation>Impostazioni camera (sinistra)</translation>
    </message>
    <message>
        <source>Ein-/Ausklappen merken</source>
        <translation>Ricorda gruppi aperti/chiusi</translation>
    </message>
    <message>
        <source>Parametergruppen mit einem Pfeil vor der Überschrift lassen sich ein- und ausklappen. Ist die Option an, bleibt dieser Zustand beim Beenden erhalten; ist sie aus, starten alle Gruppen wieder im Vorgabezustand.</source>
        <translation>I gruppi di parametri con una freccia davanti al titolo si possono aprire e chiudere. Se l’opzione è attiva, il loro stato viene conservato all’uscita; se è disattivata, all’avvio tutti i gruppi tornano allo stato predefinito.</translation>
    </message>
    <message>
        <source>Markierungen (rechts)</source>
        <translation>Contrassegni (destra)</translation>
    </message>
    <message>
        <source>Tooltips anzeigen</source>
        <translation>Mostra tooltip</translation>
    </message>
    <message>
        <source>Zoom-Regler anzeigen</source>
        <translation>Mostra cursore dello zoom</translation>
    </message>
    <message>
        <source>Blendet den Zoom-Regler unten mittig über dem Bild ein/aus.</source>
        <translation>Mostra o nasconde il cursore dello zoom in basso al centro, sopra l’immagine.</translation>
    </message>
</context>
<context>
    <name>BetaTag</name>
    <message>
        <source>BETA</source>
        <translation>BETA</translation>
    </message>
</context>
<context>
    <name>BlobAdviceLine</name>
    <message>
        <source>Werte übernommen.</source>
        <translation>Valori applicati.</translation>
    </message>
    <message>
        <source>Werte übernehmen</source>
        <translation>Applica i valori</translation>
    </message>
    <message>
        <source>Zurücknehmen</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>BlobParameters</name>
    <message>
        <source>Min Threshold</source>
        <translation>Soglia min</translation>
    </message>
    <message>
        <source>Untere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darunter werden ignoriert.</source>
        <translation>Limite inferiore di luminosità per il rilevamento dei punti. I pixel al di sotto vengono ignorati.</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Soglia max</translation>
    </message>
    <message>
        <source>Obere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darüber werden ignoriert.</source>
        <translation>Limite superiore di luminosità per il rilevamento dei punti. I pixel al di sopra vengono ignorati.</translation>
    </message>
    <message>
        <source>Filter Area</source>
        <translation>Filtro area</translation>
    </message>
    <message>
        <source>Filtert erkannte Punkte nach Größe. Schließt zu kleine oder zu große Flecken aus.</source>
        <translation>Filtra i punti rilevati in base alle dimensioni. Esclude le macchie troppo piccole o troppo grandi.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Area min</translation>
    </message>
    <message>
        <source>Kleinste bzw. größte erlaubte Pixelfläche eines erkannten Punkts.</source>
        <translation>Area minima o massima, in pixel, ammessa per un punto rilevato.</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Area max</translation>
    </message>
    <message>
        <source>Filter Circularity</source>
        <translation>Filtro circolarità</translation>
    </message>
    <message>
        <source>Filtert nach Rundheit. Verhindert dass kantige oder unförmige Flecken erkannt werden.</source>
        <translation>Filtra in base alla rotondità. Evita che vengano rilevate macchie spigolose o irregolari.</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Circolarità min</translation>
    </message>
    <message>
        <source>Wie rund ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt rund. Falls keine Zentriermarken erkannt werden, kann dieser Regler etwas verkleinert werden — z.B. auf 85.</source>
        <translation>Rotondità minima che un punto deve avere. 0 = qualsiasi, 100 = perfettamente rotondo. Se non viene rilevato alcun segno di centraggio, puoi abbassare un po’ questo cursore — ad es. a 85.</translation>
    </message>
    <message>
        <source>Filter Inertia</source>
        <translation>Filtro inerzia</translation>
    </message>
    <message>
        <source>Filtert nach Form-Symmetrie. Schließt langgestreckte oder elliptische Flecken aus.</source>
        <translation>Filtra in base alla simmetria della forma. Esclude le macchie allungate o ellittiche.</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Inerzia min</translation>
    </message>
    <message>
        <source>Wie symmetrisch ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt symmetrisch.</source>
        <translation>Simmetria minima che un punto deve avere. 0 = qualsiasi, 100 = perfettamente simmetrico.</translation>
    </message>
</context>
<context>
    <name>BlobTags</name>
    <message>
        <source>im Weg: %1</source>
        <translation>d’intralcio: %1</translation>
    </message>
</context>
<context>
    <name>BlobWords</name>
    <message>
        <source>Das Bild ist zu dunkel.</source>
        <translation>L’immagine è troppo scura.</translation>
    </message>
    <message>
        <source>Das Bild ist zu hell.</source>
        <translation>L’immagine è troppo chiara.</translation>
    </message>
    <message>
        <source>Das Bild hat keinen Kontrast.</source>
        <translation>L’immagine non ha contrasto.</translation>
    </message>
    <message>
        <source>Das Bild ist unscharf.</source>
        <translation>L’immagine è sfocata.</translation>
    </message>
    <message>
        <source>Kein dunkler, geschlossener Fleck im Bild.</source>
        <translation>Nessuna macchia scura e chiusa nell’immagine.</translation>
    </message>
    <message>
        <source>%1 px²</source>
        <translation>%1 px²</translation>
    </message>
    <message>
        <source>zu klein: %1 (mindestens %2)</source>
        <translation>troppo piccolo: %1 (almeno %2)</translation>
    </message>
    <message>
        <source>zu groß: %1 (höchstens %2)</source>
        <translation>troppo grande: %1 (al massimo %2)</translation>
    </message>
    <message>
        <source>Rundheit %1 % (mindestens %2 %)</source>
        <translation>rotondità %1 % (almeno %2 %)</translation>
    </message>
    <message>
        <source>Symmetrie %1 % (mindestens %2 %)</source>
        <translation>simmetria %1 % (almeno %2 %)</translation>
    </message>
    <message>
        <source>zu dunkel: Helligkeit %1 (mindestens %2)</source>
        <translation>troppo scuro: luminosità %1 (almeno %2)</translation>
    </message>
    <message>
        <source>zu hell: Helligkeit %1 (höchstens %2)</source>
        <translation>troppo chiaro: luminosità %1 (al massimo %2)</translation>
    </message>
    <message>
        <source>zu schwacher Kontrast: %1 Stufen</source>
        <translation>contrasto troppo debole: %1 livelli</translation>
    </message>
    <message>
        <source>%1 Blobs: %2</source>
        <translation>%1 blob: %2</translation>
    </message>
    <message>
        <source>%1 bis %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>%1 und %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Blob flackert: Fläche %1–%2</source>
        <translation>Il blob sfarfalla: area %1–%2</translation>
    </message>
    <message>
        <source>Blob flackert: Rundheit %1–%2 %</source>
        <translation>Il blob sfarfalla: rotondità %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Symmetrie %1–%2 %</source>
        <translation>Il blob sfarfalla: simmetria %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Helligkeit %1–%2</source>
        <translation>Il blob sfarfalla: luminosità %1–%2</translation>
    </message>
    <message>
        <source>Nächster Kandidat: %1</source>
        <translation>Candidato più vicino: %1</translation>
    </message>
    <message>
        <source>%1. Keine Einstellung trennt ihn von dem Fleck mit %2.</source>
        <translation>%1. Nessuna impostazione lo separa dalla macchia di %2.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Area min</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Area max</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Circolarità min</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Inerzia min</translation>
    </message>
    <message>
        <source>Min Threshold</source>
        <translation>Soglia min</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Soglia max</translation>
    </message>
</context>
<context>
    <name>BoundedText</name>
    <message>
        <source>Der Text wurde gekürzt.</source>
        <translation>Il testo è stato abbreviato.</translation>
    </message>
</context>
<context>
    <name>BugReportDialog</name>
    <message>
        <source>Crash</source>
        <translation>Crash</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installazione</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Flusso di lavoro</translation>
    </message>
    <message>
        <source>GUI</source>
        <translation>GUI</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Feature vorschlagen</source>
        <translation>Proponi una funzionalità</translation>
    </message>
    <message>
        <source>Bug melden</source>
        <translation>Segnala un bug</translation>
    </message>
    <message>
        <source>Welche Funktion wünschst du dir? Erzähl uns von deiner Idee.</source>
        <translation>Quale funzionalità vorresti? Raccontaci la tua idea.</translation>
    </message>
    <message>
        <source>Vielen Dank fürs Helfen! Der Report geht direkt an den Support.</source>
        <translation>Grazie per l’aiuto! La segnalazione arriva direttamente all’assistenza.</translation>
    </message>
    <message>
        <source>Vielen Dank! Dein Feature-Vorschlag wurde erfasst.</source>
        <translation>Grazie! La tua proposta di funzionalità è stata registrata.</translation>
    </message>
    <message>
        <source>Vielen Dank! Der Bug-Report wurde erfasst.</source>
        <translation>Grazie! La segnalazione di bug è stata registrata.</translation>
    </message>
    <message>
        <source>Bitte keine sensiblen Daten (Passwörter, persönliche Adressen) in der Beschreibung. Der Report wird vom Support gelesen + ggf. lange aufbewahrt.</source>
        <translation>Non inserire dati sensibili (password, indirizzi personali) nella descrizione. La segnalazione viene letta dall’assistenza e potrebbe essere conservata a lungo.</translation>
    </message>
    <message>
        <source>Titel *</source>
        <translation>Titolo *</translation>
    </message>
    <message>
        <source>Kurz: was soll Meridax können?</source>
        <translation>In breve: cosa dovrebbe saper fare Meridax?</translation>
    </message>
    <message>
        <source>Kurz: was ist passiert?</source>
        <translation>In breve: cosa è successo?</translation>
    </message>
    <message>
        <source>Kategorie *</source>
        <translation>Categoria *</translation>
    </message>
    <message>
        <source>(bitte wählen)</source>
        <translation>(scegli)</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>min. %1 Zeichen (noch %2)</source>
        <translation>min. %1 caratteri (ancora %2)</translation>
    </message>
    <message>
        <source>Was würdest du gerne tun? Wie würde es deinem Workflow helfen?</source>
        <translation>Cosa vorresti poter fare? Come migliorerebbe il tuo flusso di lavoro?</translation>
    </message>
    <message>
        <source>Reproschritte, erwartetes vs. tatsächliches Verhalten …</source>
        <translation>Passaggi per riprodurre il problema, comportamento atteso ed effettivo …</translation>
    </message>
</context>
<context>
    <name>CalibrationHint</name>
    <message>
        <source>✓ Blob im Sektor – bereit zum Messen</source>
        <translation>✓ Blob nel settore – pronto per la misura</translation>
    </message>
    <message>
        <source>⟳ Kamera auf Sektor drehen</source>
        <translation>⟳ Ruota la camera fino al settore</translation>
    </message>
    <message>
        <source>⚠ Kein Blob sichtbar</source>
        <translation>⚠ Nessun blob visibile</translation>
    </message>
    <message>
        <source>%1 Blobs – bitte einen wählen</source>
        <translation>%1 blob – scegline uno</translation>
    </message>
</context>
<context>
    <name>CalibrationPane</name>
    <message>
        <source>Kalibrierung</source>
        <translation>Calibrazione</translation>
    </message>
    <message>
        <source>Messpositionen</source>
        <translation>Posizioni di misura</translation>
    </message>
    <message>
        <source>Anzahl Mess-Punkte für die Sensor-Kalibrierung (3–15). Mehr Punkte = robusteres Ergebnis. Bei genau 3 Punkten lässt sich die Standardabweichung nicht bewerten; ab 5 Punkten bestimmt Meridax zusätzlich die Rundheitsform.</source>
        <translation>Numero di punti di misura per la calibrazione del sensore (3–15). Più punti = risultato più affidabile. Con soli 3 punti la deviazione standard non è valutabile; da 5 punti in su Meridax determina anche il tipo di errore di rotondità.</translation>
    </message>
    <message>
        <source>Frames / Position</source>
        <translation>Frame / posizione</translation>
    </message>
    <message>
        <source>Wie viele Bilder pro Mess-Punkt gemittelt werden. Mehr Frames glätten das Rauschen, dauert aber länger.</source>
        <translation>Quante immagini vengono mediate per ogni punto di misura. Più frame riducono il rumore, ma richiedono più tempo.</translation>
    </message>
    <message>
        <source>Kalibrierung läuft…</source>
        <translation>Calibrazione in corso…</translation>
    </message>
    <message>
        <source>Kalibrierung starten</source>
        <translation>Avvia calibrazione</translation>
    </message>
    <message>
        <source>Position %1 von %2</source>
        <translation>Posizione %1 di %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Blob-Parameter</source>
        <translation>Parametri blob</translation>
    </message>
    <message>
        <source>Gemessene Punkte</source>
        <translation>Punti misurati</translation>
    </message>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Fit di Taubin (%1 punti)</translation>
    </message>
    <message>
        <source>Detailauswertung</source>
        <translation>Analisi dettagliata</translation>
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
        <translation>Esposizione</translation>
    </message>
    <message>
        <source>Wie lange der Sensor pro Frame Licht sammelt. Länger = heller, aber empfindlicher für Bewegung. AUTO = Treiber wählt selbst.</source>
        <translation>Per quanto tempo il sensore raccoglie luce in ogni frame. Più lungo = più luminoso, ma più sensibile al movimento. AUTO = sceglie il driver.</translation>
    </message>
    <message>
        <source>Helligkeit</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Verschiebt das ganze Bild heller oder dunkler, ohne die Belichtung zu ändern. Praktisch um Schatten anzuheben.</source>
        <translation>Rende tutta l’immagine più chiara o più scura senza cambiare l’esposizione. Utile per schiarire le ombre.</translation>
    </message>
    <message>
        <source>Kontrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Spreizt helle und dunkle Bereiche auseinander. Feine Strukturen werden sichtbarer, das Rauschen aber auch.</source>
        <translation>Accentua la differenza tra zone chiare e scure. I dettagli fini risaltano di più, ma anche il rumore.</translation>
    </message>
    <message>
        <source>Sättigung</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Wie kräftig die Farben sind. 0 = Schwarz-Weiß, hoch = bunter. Hat keinen Effekt auf Mono-Kameras.</source>
        <translation>Intensità dei colori. 0 = bianco e nero, valori alti = colori più vivi. Non ha effetto sulle camere monocromatiche.</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Guadagno</translation>
    </message>
    <message>
        <source>Verstärkt das Sensorsignal nach der Belichtung. Heller bei kurzer Belichtung, dafür mehr Rauschen — entspricht &apos;ISO&apos; bei Astrokameras.</source>
        <translation>Amplifica il segnale del sensore dopo l’esposizione. Immagine più chiara con esposizioni brevi, ma più rumore — nelle camere astronomiche corrisponde agli &apos;ISO&apos;.</translation>
    </message>
    <message>
        <source>Fokus</source>
        <translation>Messa a fuoco</translation>
    </message>
    <message>
        <source>Stellt die Linse manuell ein. Bei den meisten USB-Webcams: Wert 0 = Autofokus.</source>
        <translation>Regola l’obiettivo manualmente. Nella maggior parte delle webcam USB: valore 0 = autofocus.</translation>
    </message>
    <message>
        <source>AF</source>
        <translation>AF</translation>
    </message>
    <message>
        <source>Eingestellt: %1 ms.</source>
        <translation>Impostato: %1 ms.</translation>
    </message>
</context>
<context>
    <name>CameraSettingsPane</name>
    <message>
        <source>Kamera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Aktualisieren</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Auflösung</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Bildgröße und Bildrate aus den von der Kamera unterstützten Modi. Nur im gestoppten Zustand änderbar. Die Kalibrierung wird pro Auflösung gespeichert und beim Verbinden dieser Auflösung wiederhergestellt.</source>
        <translation>Dimensioni dell’immagine e frame rate tra le modalità supportate dalla camera. Modificabile solo a camera ferma. La calibrazione viene salvata per ogni risoluzione e ripristinata quando ti connetti con quella risoluzione.</translation>
    </message>
    <message>
        <source>Kamera-Eigenschaften</source>
        <translation>Proprietà camera</translation>
    </message>
    <message>
        <source>Zentrum &amp; Ansicht</source>
        <translation>Centro e vista</translation>
    </message>
</context>
<context>
    <name>CenterAndView</name>
    <message>
        <source>Zentrum X</source>
        <translation>Centro X</translation>
    </message>
    <message>
        <source>X-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).</source>
        <translation>Posizione X del centro dell’immagine in pixel. È il riferimento per tutti i cerchi in sovrapposizione e per il reticolo. Puoi inserire anche i valori di centraggio di altri produttori (ad es. OCAL).</translation>
    </message>
    <message>
        <source>Zentrum Y</source>
        <translation>Centro Y</translation>
    </message>
    <message>
        <source>Y-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).</source>
        <translation>Posizione Y del centro dell’immagine in pixel. È il riferimento per tutti i cerchi in sovrapposizione e per il reticolo. Puoi inserire anche i valori di centraggio di altri produttori (ad es. OCAL).</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Verschiebt die Overlays relativ zum Bildmittelpunkt — z.B. wenn die Optik nicht zentriert auf dem Sensor sitzt. Nicht nötig wenn die Kamera mit Optik kalibriert wurde — dann sollten die Werte 0 sein.</source>
        <translation>Sposta le sovrapposizioni rispetto al centro dell’immagine — ad es. se l’ottica non è centrata sul sensore. Non serve se la camera è stata calibrata con l’ottica montata: in tal caso i valori devono essere 0.</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>Offset X</translation>
    </message>
    <message>
        <source>Horizontale bzw. vertikale Verschiebung der Overlays gegen das Zentrum, in Pixeln.</source>
        <translation>Spostamento orizzontale o verticale delle sovrapposizioni rispetto al centro, in pixel.</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Offset Y</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Bildvergrößerung in der Anzeige. 0 = volle Höhe ohne Beschneidung, 100 = maximaler Zoom. Mausrad und Pinch zoomen parallel.</source>
        <translation>Ingrandimento dell’immagine a schermo. 0 = altezza intera senza tagli, 100 = zoom massimo. In alternativa usa la rotella del mouse o il pinch.</translation>
    </message>
</context>
<context>
    <name>CenterDiagram</name>
    <message>
        <source>Lage des Zentrums</source>
        <translation>Posizione del centro</translation>
    </message>
    <message>
        <source>geometrische Sensormitte</source>
        <translation>centro geometrico del sensore</translation>
    </message>
    <message>
        <source>gemessenes Zentrum</source>
        <translation>centro misurato</translation>
    </message>
    <message>
        <source>Versatz %1 px   (x %2 / y %3)</source>
        <translation>Scostamento %1 px   (x %2 / y %3)</translation>
    </message>
</context>
<context>
    <name>CenterDialog</name>
    <message>
        <source>Zentrum exzellent bestimmt</source>
        <translation>Centro determinato ottimamente</translation>
    </message>
    <message>
        <source>Zentrum gut bestimmt</source>
        <translation>Centro ben determinato</translation>
    </message>
    <message>
        <source>Zentrum brauchbar — mehr Positionen empfohlen</source>
        <translation>Centro accettabile — meglio usare più posizioni</translation>
    </message>
    <message>
        <source>Zentrum ungenau — bitte neu messen</source>
        <translation>Centro impreciso — ripeti la misura</translation>
    </message>
    <message>
        <source>Güte nicht bewertbar</source>
        <translation>Qualità non valutabile</translation>
    </message>
    <message>
        <source>Kalibrierung abgeschlossen</source>
        <translation>Calibrazione completata</translation>
    </message>
    <message>
        <source>Gemessenes Zentrum übernehmen?</source>
        <translation>Applicare il centro misurato?</translation>
    </message>
    <message>
        <source>Mit drei oder vier Messpunkten schmiegt sich der Kreis so eng an die Punkte, dass Streuung und Genauigkeit nicht mehr aussagekräftig sind — eine Formabweichung verschiebt den Mittelpunkt dann unbemerkt. Das Zentrum ist als Näherung verwendbar. Für eine belastbare Bewertung bitte mit mindestens sechs Positionen messen.</source>
        <translation>Con tre o quattro punti di misura il cerchio si adatta così strettamente ai punti che dispersione e precisione non sono più significative — un errore di forma può quindi spostare il centro senza che tu te ne accorga. Il centro è utilizzabile come approssimazione. Per una valutazione affidabile misura almeno sei posizioni.</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Aggiorna profilo</translation>
    </message>
    <message>
        <source>Bildmitte ins Kamera-Profil speichern und beim nächsten Verbinden wiederherstellen.</source>
        <translation>Salva il centro dell’immagine nel profilo camera e ripristinalo alla prossima connessione.</translation>
    </message>
    <message>
        <source>Ja</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Gemessen mit %1. Das Zentrum gilt, sobald diese Kamera mit dieser Auflösung wieder gewählt ist.</source>
        <translation>Misurato con %1. Il centro vale appena questa camera viene scelta di nuovo con questa risoluzione.</translation>
    </message>
</context>
<context>
    <name>CenterFigures</name>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Fit di Taubin (%1 punti)</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centro ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n.d.</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Dev. std.</translation>
    </message>
</context>
<context>
    <name>CrashDetails</name>
    <message>
        <source>Crash-Details anzeigen</source>
        <translation>Mostra dettagli del crash</translation>
    </message>
    <message>
        <source>ausgeklappt</source>
        <translation>espanso</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>compresso</translation>
    </message>
</context>
<context>
    <name>CrashFooter</name>
    <message>
        <source>Verwerfen</source>
        <translation>Scarta</translation>
    </message>
    <message>
        <source>Mit Beschreibung</source>
        <translation>Con descrizione</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Wird gesendet…</source>
        <translation>Invio in corso…</translation>
    </message>
</context>
<context>
    <name>CrashRecoveryDialog</name>
    <message>
        <source>Meridax ist beim letzten Mal abgestürzt</source>
        <translation>L’ultima volta Meridax è andato in crash</translation>
    </message>
    <message>
        <source>Hilf uns das zu fixen — schick uns die Crash-Info.</source>
        <translation>Aiutaci a risolvere il problema — inviaci i dati del crash.</translation>
    </message>
    <message>
        <source>Wir haben einen Crash-Bericht gespeichert. Der Bericht enthält:</source>
        <translation>Abbiamo salvato un rapporto di crash. Il rapporto contiene:</translation>
    </message>
    <message>
        <source>• Was schiefgegangen ist (Fehlercode + Modul)</source>
        <translation>• Che cosa è andato storto (codice di errore + modulo)</translation>
    </message>
    <message>
        <source>• Die letzten Log-Zeilen vor dem Absturz (anonymisiert)</source>
        <translation>• Le ultime righe di log prima del crash (anonimizzate)</translation>
    </message>
    <message>
        <source>• App-Version und Build-Info</source>
        <translation>• Versione dell’app e dati della build</translation>
    </message>
    <message>
        <source>E-Mail-Adressen und dein Benutzername in Dateipfaden werden vorher unkenntlich gemacht. Namen und Kennungen deiner Kameras bleiben lesbar.</source>
        <translation>Gli indirizzi e-mail e il tuo nome utente nei percorsi dei file vengono prima resi irriconoscibili. I nomi e gli identificativi delle tue camere restano leggibili.</translation>
    </message>
    <message>
        <source>Der Bericht ist leer oder lässt sich nicht lesen. Du kannst ihn verwerfen oder mit eigenen Worten beschreiben, was geschehen ist.</source>
        <translation>Il rapporto è vuoto o illeggibile. Puoi scartarlo oppure descrivere con parole tue che cosa è successo.</translation>
    </message>
</context>
<context>
    <name>FeedbackDialog</name>
    <message>
        <source>Schade — was können wir besser machen?</source>
        <translation>Peccato — cosa possiamo migliorare?</translation>
    </message>
    <message>
        <source>Danke fürs ehrliche Feedback.</source>
        <translation>Grazie per la sincerità.</translation>
    </message>
    <message>
        <source>OK — wo siehst du Luft nach oben?</source>
        <translation>OK — che cosa si può migliorare?</translation>
    </message>
    <message>
        <source>Schön zu hören!</source>
        <translation>Ci fa piacere!</translation>
    </message>
    <message>
        <source>Wow — danke!</source>
        <translation>Wow — grazie!</translation>
    </message>
    <message>
        <source>Feedback senden</source>
        <translation>Invia feedback</translation>
    </message>
    <message>
        <source>Wie gefällt dir Meridax? Deine Bewertung hilft uns weiter.</source>
        <translation>Ti piace Meridax? La tua valutazione ci aiuta a migliorare.</translation>
    </message>
    <message>
        <source>Vielen Dank für dein Feedback!</source>
        <translation>Grazie per il tuo feedback!</translation>
    </message>
    <message>
        <source>Deine Bewertung</source>
        <translation>La tua valutazione</translation>
    </message>
    <message>
        <source>Kommentar (optional)</source>
        <translation>Commento (facoltativo)</translation>
    </message>
    <message>
        <source>Was gefällt dir? Was würdest du anders machen?</source>
        <translation>Che cosa ti piace? Che cosa cambieresti?</translation>
    </message>
</context>
<context>
    <name>FewPositionsWarning</name>
    <message>
        <source>Weniger als 6 Messpunkte: Formabweichungen wie ein Dreikant sind dann nicht erkennbar und verschieben den berechneten Mittelpunkt. Die angezeigte Genauigkeit ist in diesem Fall zu optimistisch. Klicken für Details im Handbuch.</source>
        <translation>Meno di 6 punti di misura: errori di forma come un profilo trilobato non sono riconoscibili e spostano il centro calcolato. In questo caso la precisione indicata è troppo ottimistica. Fai clic per i dettagli nel manuale.</translation>
    </message>
</context>
<context>
    <name>FitTable</name>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Dev. std.</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n.d.</translation>
    </message>
</context>
<context>
    <name>FocusPresetChip</name>
    <message>
        <source>Klick: Fokus + Markierungen anfahren
Doppelklick: umbenennen</source>
        <translation>Clic: richiama messa a fuoco + contrassegni
Doppio clic: rinomina</translation>
    </message>
    <message>
        <source>Klick: nur Fokus anfahren
Doppelklick: umbenennen</source>
        <translation>Clic: richiama solo la messa a fuoco
Doppio clic: rinomina</translation>
    </message>
    <message>
        <source>Preset entfernen</source>
        <translation>Rimuovi preset</translation>
    </message>
    <message>
        <source>Preset mit aktuellem Stand aktualisieren</source>
        <translation>Aggiorna il preset con lo stato attuale</translation>
    </message>
    <message>
        <source>Leertaste: anfahren, Eingabetaste: umbenennen</source>
        <translation>Spazio: richiama, Invio: rinomina</translation>
    </message>
    <message>
        <source>Name des Presets</source>
        <translation>Nome del preset</translation>
    </message>
</context>
<context>
    <name>FocusPresetOverlay</name>
    <message>
        <source>Fokus-Preset anlegen</source>
        <translation>Crea preset di messa a fuoco</translation>
    </message>
    <message>
        <source>Name (Enter)</source>
        <translation>Nome (Invio)</translation>
    </message>
</context>
<context>
    <name>FocusTapArea</name>
    <message>
        <source>Keine fokussierbare Struktur gefunden.</source>
        <translation>Nessun dettaglio su cui mettere a fuoco.</translation>
    </message>
    <message>
        <source>Fokus dieser Kamera ist nicht steuerbar.</source>
        <translation>La messa a fuoco di questa camera non è regolabile.</translation>
    </message>
    <message>
        <source>Fokusbereich wird noch ermittelt — bitte kurz warten.</source>
        <translation>Rilevamento del campo di messa a fuoco in corso — attendi un attimo.</translation>
    </message>
    <message>
        <source>Schärfste Stelle gefunden.</source>
        <translation>Posizione più nitida trovata.</translation>
    </message>
</context>
<context>
    <name>FocusTapButton</name>
    <message>
        <source>Fokus-Antippen</source>
        <translation>Messa a fuoco con un clic</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktiv – ins Bild auf eine Struktur klicken stellt dort scharf.
Klick hier zum Deaktivieren.</source>
        <translation>Messa a fuoco con un clic attiva – fai clic su un dettaglio dell’immagine per metterlo a fuoco.
Fai clic qui per disattivarla.</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktivieren – danach ins Bild auf eine Struktur klicken, um dort scharfzustellen.</source>
        <translation>Attiva la messa a fuoco con un clic – poi fai clic su un dettaglio dell’immagine per metterlo a fuoco.</translation>
    </message>
</context>
<context>
    <name>LeftSettingsPanel</name>
    <message>
        <source>Kamera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Kalibrierung</source>
        <translation>Calibrazione</translation>
    </message>
</context>
<context>
    <name>LegalTextDialog</name>
    <message>
        <source>Datenschutzerklärung</source>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Condizioni d’uso</translation>
    </message>
    <message>
        <source>%1 (v%2)</source>
        <translation>%1 (v%2)</translation>
    </message>
    <message>
        <source>Dieser Rechtstext liegt noch nicht lokal vor. Bitte verbinde dich einmal mit dem Internet und starte Meridax neu, damit er vom Server geladen werden kann.</source>
        <translation>Questo testo legale non è ancora disponibile sul computer. Connettiti una volta a Internet e riavvia Meridax per scaricarlo dal server.</translation>
    </message>
</context>
<context>
    <name>LineStyleRow</name>
    <message>
        <source>Stil</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Durchgehend</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Gestrichelt</source>
        <translation>Tratteggiata</translation>
    </message>
    <message>
        <source>Gepunktet</source>
        <translation>Punteggiata</translation>
    </message>
    <message>
        <source>Strich-Punkt</source>
        <translation>Tratto-punto</translation>
    </message>
</context>
<context>
    <name>LockButton</name>
    <message>
        <source>Zentrum gesperrt – klicken zum Entsperren</source>
        <translation>Centro bloccato – fai clic per sbloccarlo</translation>
    </message>
    <message>
        <source>Zentrum entsperrt – klicken zum Sperren</source>
        <translation>Centro sbloccato – fai clic per bloccarlo</translation>
    </message>
</context>
<context>
    <name>LogOption</name>
    <message>
        <source>Aktuelles Log mitschicken (anonymisiert)</source>
        <translation>Allega il log attuale (anonimizzato)</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Anteprima</translation>
    </message>
</context>
<context>
    <name>LogPreviewDialog</name>
    <message>
        <source>Log-Vorschau (so geht es an den Server)</source>
        <translation>Anteprima del log (come viene inviato al server)</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Messung verworfen: andere Kamera oder Auflösung gewählt</source>
        <translation>Misura scartata: scelta un’altra camera o risoluzione</translation>
    </message>
</context>
<context>
    <name>MeasureButton</name>
    <message>
        <source>Messe… %1 / %2</source>
        <translation>Misura… %1 / %2</translation>
    </message>
    <message>
        <source>Position messen</source>
        <translation>Misura posizione</translation>
    </message>
</context>
<context>
    <name>MeasurementTable</name>
    <message>
        <source>Schritt</source>
        <translation>Passo</translation>
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
        <translation>Contrassegni di misura</translation>
    </message>
</context>
<context>
    <name>OverlaySettingsPane</name>
    <message>
        <source>Kreis %1</source>
        <translation>Cerchio %1</translation>
    </message>
    <message>
        <source>Farbe: %1</source>
        <translation>Colore: %1</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Spessore</translation>
    </message>
    <message>
        <source>Messkreise</source>
        <translation>Cerchi di misura</translation>
    </message>
    <message>
        <source>Fadenkreuz</source>
        <translation>Reticolo</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Lines (3)</source>
        <translation>Linee (3)</translation>
    </message>
    <message>
        <source>Kreuz (4)</source>
        <translation>Croce (4)</translation>
    </message>
</context>
<context>
    <name>PanelHandle</name>
    <message>
        <source>ausgeklappt</source>
        <translation>espanso</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>compresso</translation>
    </message>
</context>
<context>
    <name>ProfileSettings</name>
    <message>
        <source>Kamera-Profil</source>
        <translation>Profilo camera</translation>
    </message>
    <message>
        <source>Keine Kamera ausgewählt</source>
        <translation>Nessuna camera selezionata</translation>
    </message>
    <message>
        <source>Kameraeinstellungen wiederherstellen</source>
        <translation>Ripristina impostazioni camera</translation>
    </message>
    <message>
        <source>Kalibrierung wiederherstellen</source>
        <translation>Ripristina calibrazione</translation>
    </message>
    <message>
        <source>Gespeicherte Bildmitte:</source>
        <translation>Centro immagine salvato:</translation>
    </message>
    <message>
        <source>noch nicht gespeichert</source>
        <translation>non ancora salvato</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Aggiorna profilo</translation>
    </message>
    <message>
        <source>Profil speichern</source>
        <translation>Salva profilo</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>QualityStrip</name>
    <message>
        <source>exzellent</source>
        <translation>eccellente</translation>
    </message>
    <message>
        <source>gut</source>
        <translation>buono</translation>
    </message>
    <message>
        <source>brauchbar</source>
        <translation>accettabile</translation>
    </message>
    <message>
        <source>ungenau</source>
        <translation>impreciso</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>ovale</translation>
    </message>
    <message>
        <source>Dreikant</source>
        <translation>trilobato</translation>
    </message>
    <message>
        <source>Vierkant</source>
        <translation>quadrilobato</translation>
    </message>
    <message>
        <source>%1-Kant</source>
        <translation>%1 lobi</translation>
    </message>
    <message>
        <source>Die Bahn ist oval (2. Ordnung). Typische Ursachen: gekippte Rotationsachse oder unrunde Passung.</source>
        <translation>La traiettoria è ovale (ordine 2). Cause tipiche: asse di rotazione inclinato o accoppiamento non perfettamente rotondo.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Dreikant (3. Ordnung) — die klassische Signatur eines Bauteils, das im Dreibacken-Futter gespannt und gedreht wurde.</source>
        <translation>La traiettoria è trilobata (ordine 3) — la classica impronta di un pezzo serrato e tornito in un mandrino a tre griffe.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Vierkant (4. Ordnung) — typisch für ein Vierbacken-Futter oder eine geschlitzte Spannzange.</source>
        <translation>La traiettoria è quadrilobata (ordine 4) — forma tipica di un mandrino a quattro griffe o di una pinza con intagli.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen %1-Kant (%1. Ordnung) — meist von der Spannvorrichtung, etwa einer Spannzange mit %1 Schlitzen.</source>
        <translation>La traiettoria presenta %1 lobi (ordine %1) — dovuti di solito al sistema di serraggio, ad es. una pinza con %1 intagli.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt eine Welligkeit %1. Ordnung — bei so hohen Ordnungen meist Rattermarken aus der Bearbeitung.</source>
        <translation>La traiettoria presenta un’ondulazione di ordine %1 — a ordini così alti di solito si tratta di segni di vibrazione della lavorazione.</translation>
    </message>
    <message>
        <source>Mit weniger als fünf Messpunkten lässt sich die Genauigkeit nicht beziffern: Formabweichungen sind nicht von Messrauschen zu trennen und verschieben den Mittelpunkt unbemerkt. Das Zentrum ist als Näherung verwendbar.</source>
        <translation>Con meno di cinque punti di misura la precisione non è quantificabile: gli errori di forma non si distinguono dal rumore di misura e spostano il centro senza che tu te ne accorga. Il centro è utilizzabile come approssimazione.</translation>
    </message>
    <message>
        <source>Die Messpunkte decken den Umlauf nicht gleichmäßig ab — bitte über den vollen Kreis verteilen. Formfehler mitteln sich sonst nicht heraus.</source>
        <translation>I punti di misura non coprono il giro in modo uniforme — distribuiscili su tutto il cerchio, altrimenti gli errori di forma non si compensano.</translation>
    </message>
    <message>
        <source>Die Streuung ist zufällig verteilt — mehr Frames pro Position oder mehr Messpunkte verbessern das Ergebnis.</source>
        <translation>La dispersione è casuale — più frame per posizione o più punti di misura migliorano il risultato.</translation>
    </message>
    <message>
        <source>Das ist Form, kein Messfehler: neu messen ändert daran nichts, und der Mittelpunkt bleibt davon unberührt.</source>
        <translation>È un fatto di forma, non un errore di misura: ripetere la misura non cambia nulla e il centro non ne risente.</translation>
    </message>
    <message>
        <source>Messgüte</source>
        <translation>Qualità della misura</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centro ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n.d.</translation>
    </message>
    <message>
        <source>Winkelabdeckung</source>
        <translation>Copertura angolare</translation>
    </message>
    <message>
        <source>größte Lücke %1°</source>
        <translation>lacuna max %1°</translation>
    </message>
    <message>
        <source>Rundheit</source>
        <translation>Rotondità</translation>
    </message>
</context>
<context>
    <name>ReadingDialog</name>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>ResidualPlot</name>
    <message>
        <source>Detailauswertung</source>
        <translation>Analisi dettagliata</translation>
    </message>
    <message>
        <source>Rot markierte Punkte liegen außerhalb der festen Skala — für die vollständige Ansicht auf Auto umschalten.</source>
        <translation>I punti in rosso sono fuori dalla scala fissa — passa ad Auto per vederli tutti.</translation>
    </message>
</context>
<context>
    <name>RightOverlayPanel</name>
    <message>
        <source>Einblendungen</source>
        <translation>Sovrapposizioni</translation>
    </message>
</context>
<context>
    <name>RoundnessDiagram</name>
    <message>
        <source>Rundheit der Bahn</source>
        <translation>Rotondità della traiettoria</translation>
    </message>
    <message>
        <source>Skala</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Auto (±%1 px)</source>
        <translation>Auto (±%1 px)</translation>
    </message>
    <message>
        <source>fest ±%1 px</source>
        <translation>fissa ±%1 px</translation>
    </message>
    <message>
        <source>Sollkreis</source>
        <translation>cerchio teorico</translation>
    </message>
    <message>
        <source>Messpunkte</source>
        <translation>punti di misura</translation>
    </message>
    <message>
        <source>Messunsicherheit ±%1 px</source>
        <translation>incertezza di misura ±%1 px</translation>
    </message>
    <message>
        <source>Messunsicherheit n. def.</source>
        <translation>incertezza di misura n.d.</translation>
    </message>
    <message>
        <source>Mittelpunkt</source>
        <translation>centro</translation>
    </message>
</context>
<context>
    <name>ScreenshotButton</name>
    <message>
        <source>Screenshot — Zielordner erst in den Einstellungen wählen</source>
        <translation>Screenshot — scegli prima la cartella nelle impostazioni</translation>
    </message>
    <message>
        <source>Screenshot mit Markierungen speichern
%1</source>
        <translation>Salva screenshot con contrassegni
%1</translation>
    </message>
    <message>
        <source>Screenshot ohne Markierungen speichern
%1</source>
        <translation>Salva screenshot senza contrassegni
%1</translation>
    </message>
    <message>
        <source>Screenshot: zuerst in den Einstellungen einen Ordner wählen</source>
        <translation>Screenshot: scegli prima una cartella nelle impostazioni</translation>
    </message>
    <message>
        <source>Screenshot fehlgeschlagen — siehe Log</source>
        <translation>Screenshot non riuscito — vedi il log</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Screenshot gespeichert</source>
        <translation>Screenshot salvato</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderDialog</name>
    <message>
        <source>Screenshot-Ordner wählen</source>
        <translation>Scegli cartella screenshot</translation>
    </message>
</context>
<context>
    <name>ScreenshotPicker</name>
    <message>
        <source>Datei konnte nicht geladen werden.</source>
        <translation>Impossibile caricare il file.</translation>
    </message>
    <message>
        <source>Screenshot (optional, max. 5 MB, PNG/JPEG)</source>
        <translation>Screenshot (facoltativo, max 5 MB, PNG/JPEG)</translation>
    </message>
    <message>
        <source>Datei auswählen…</source>
        <translation>Scegli file…</translation>
    </message>
    <message>
        <source>Anderen Screenshot wählen</source>
        <translation>Scegli un altro screenshot</translation>
    </message>
    <message>
        <source>Entfernen</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Screenshot auswählen</source>
        <translation>Scegli screenshot</translation>
    </message>
    <message>
        <source>Bilder (*.png *.jpg *.jpeg)</source>
        <translation>Immagini (*.png *.jpg *.jpeg)</translation>
    </message>
</context>
<context>
    <name>ScreenshotSettings</name>
    <message>
        <source>Screenshots</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Zielordner</source>
        <translation>Cartella di destinazione</translation>
    </message>
    <message>
        <source>Nicht festgelegt</source>
        <translation>Non impostata</translation>
    </message>
    <message>
        <source>Ordner wählen…</source>
        <translation>Scegli cartella…</translation>
    </message>
    <message>
        <source>Markierungen einschließen</source>
        <translation>Includi contrassegni</translation>
    </message>
    <message>
        <source>Fadenkreuz und Messkreise im Screenshot mit aufnehmen.</source>
        <translation>Include nello screenshot il reticolo e i cerchi di misura.</translation>
    </message>
    <message>
        <source>Fokus-Presets</source>
        <translation>Preset di messa a fuoco</translation>
    </message>
    <message>
        <source>Markierungen mit speichern</source>
        <translation>Salva anche i contrassegni</translation>
    </message>
    <message>
        <source>Beim Anlegen eines Fokus-Preset werden Kreise und Fadenkreuz mit gespeichert
und beim Anfahren wiederhergestellt. Aus = nur Fokuswert wird angefahren.</source>
        <translation>Quando crei un preset di messa a fuoco vengono salvati anche cerchi e reticolo,
poi ripristinati quando lo richiami. Disattivato = viene richiamato solo il valore di fuoco.</translation>
    </message>
    <message>
        <source>Fokuswert mit anzeigen</source>
        <translation>Mostra valore di fuoco</translation>
    </message>
    <message>
        <source>Im Overlay-Chip wird der gespeicherte Fokuswert (f=NNN) eingeblendet.</source>
        <translation>Mostra il valore di fuoco salvato (f=NNN) nel pulsante del preset sull’immagine.</translation>
    </message>
</context>
<context>
    <name>SectionChevron</name>
    <message>
        <source>ausgeklappt</source>
        <translation>espanso</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>compresso</translation>
    </message>
</context>
<context>
    <name>ServerError</name>
    <message>
        <source>Zu viele Anfragen — bitte versuche es später erneut.</source>
        <translation>Troppe richieste — riprova più tardi.</translation>
    </message>
    <message>
        <source>Maximal 10 Bug-Reports pro 24h. Bitte später erneut.</source>
        <translation>Massimo 10 segnalazioni di bug in 24 h. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Max. 5 Feature-Vorschläge pro 24h. Bitte später erneut.</source>
        <translation>Massimo 5 proposte di funzionalità in 24 h. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Du hast in den letzten 24h schon Feedback gesendet — danke! Bitte etwas warten.</source>
        <translation>Hai già inviato un feedback nelle ultime 24 h — grazie! Aspetta un po’.</translation>
    </message>
    <message>
        <source>Titel ist ungültig (max. 200 Zeichen).</source>
        <translation>Titolo non valido (max 200 caratteri).</translation>
    </message>
    <message>
        <source>Beschreibung ist ungültig (max. 8000 Zeichen).</source>
        <translation>Descrizione non valida (max 8000 caratteri).</translation>
    </message>
    <message>
        <source>Bewertung muss zwischen 1 und 5 liegen.</source>
        <translation>La valutazione deve essere compresa tra 1 e 5.</translation>
    </message>
    <message>
        <source>Kommentar zu lang (max. 4000 Zeichen).</source>
        <translation>Commento troppo lungo (max 4000 caratteri).</translation>
    </message>
    <message>
        <source>Screenshot zu groß (max. 5 MB).</source>
        <translation>Screenshot troppo grande (max 5 MB).</translation>
    </message>
    <message>
        <source>Nur PNG / JPEG erlaubt.</source>
        <translation>Sono ammessi solo PNG / JPEG.</translation>
    </message>
    <message>
        <source>Screenshot konnte nicht gelesen werden.</source>
        <translation>Impossibile leggere lo screenshot.</translation>
    </message>
    <message>
        <source>Server nicht erreichbar. Bitte später erneut versuchen.</source>
        <translation>Server non raggiungibile. Riprova più tardi.</translation>
    </message>
</context>
<context>
    <name>SettingsHeader</name>
    <message>
        <source>Einstellungen</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Online-Dokumentation im Browser öffnen</source>
        <translation>Apri la documentazione online nel browser</translation>
    </message>
    <message>
        <source>Über Meridax — Build-Info anzeigen</source>
        <translation>Informazioni su Meridax — mostra i dati della build</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>SettingsLink</name>
    <message>
        <source>Einstellungen</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>SliderValueDisplay</name>
    <message>
        <source>Doppelklick zum Bearbeiten</source>
        <translation>Doppio clic per modificare</translation>
    </message>
    <message>
        <source>Doppelklick: manuellen Wert eingeben</source>
        <translation>Doppio clic: inserisci un valore manuale</translation>
    </message>
    <message>
        <source>Auto-Modus aktiv — Slider bewegen für manuellen Wert</source>
        <translation>Modalità automatica attiva — sposta il cursore per un valore manuale</translation>
    </message>
</context>
<context>
    <name>SliderValueEditor</name>
    <message>
        <source>Bereich %1 – %2  ·  Punkt (.) als Dezimaltrennzeichen</source>
        <translation>Intervallo %1 – %2  ·  Punto (.) come separatore decimale</translation>
    </message>
    <message>
        <source>Komma → Punkt umgewandelt</source>
        <translation>Convertito: virgola → punto</translation>
    </message>
</context>
<context>
    <name>StarRow</name>
    <message>
        <source>Sehr unzufrieden</source>
        <translation>Molto deludente</translation>
    </message>
    <message>
        <source>Unzufrieden</source>
        <translation>Deludente</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Gut</source>
        <translation>Buono</translation>
    </message>
    <message>
        <source>Begeistert</source>
        <translation>Fantastico</translation>
    </message>
</context>
<context>
    <name>SubmissionFooter</name>
    <message>
        <source>Wird gesendet…</source>
        <translation>Invio in corso…</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Invia</translation>
    </message>
</context>
<context>
    <name>SupportSettings</name>
    <message>
        <source>Support &amp; Feedback</source>
        <translation>Assistenza e feedback</translation>
    </message>
    <message>
        <source>BETA-TESTER</source>
        <translation>BETA TESTER</translation>
    </message>
    <message>
        <source>Du bist als Beta-Tester freigeschaltet — danke fürs Testen!</source>
        <translation>Il tuo accesso come beta tester è attivo — grazie per i test!</translation>
    </message>
    <message>
        <source>Probleme? Feedback? Wir hören zu — schick uns einen Bug-Report.</source>
        <translation>Problemi? Feedback? Ti ascoltiamo — inviaci una segnalazione di bug.</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1 (Beta).</source>
        <translation>Versione attualmente installata: %1 (beta).</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1.</source>
        <translation>Versione attualmente installata: %1.</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Bug</translation>
    </message>
    <message>
        <source>Bug-Reports sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Le segnalazioni di bug sono temporaneamente disattivate sul server.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Proposta</translation>
    </message>
    <message>
        <source>Feature-Vorschläge sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Le proposte di funzionalità sono temporaneamente disattivate sul server.</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Feedback</translation>
    </message>
</context>
<context>
    <name>SweepIndicator</name>
    <message>
        <source>Fokussiere…</source>
        <translation>Messa a fuoco…</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Kamera verbunden</source>
        <translation>Camera connessa</translation>
    </message>
    <message>
        <source>Kamera nicht verbunden</source>
        <translation>Camera non connessa</translation>
    </message>
    <message>
        <source>Kalibriert</source>
        <translation>Calibrata</translation>
    </message>
    <message>
        <source>Nicht kalibriert</source>
        <translation>Non calibrata</translation>
    </message>
    <message>
        <source>1 Blob ✓</source>
        <translation>1 blob ✓</translation>
    </message>
    <message>
        <source>%1 Blobs</source>
        <translation>%1 blob</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
</context>
<context>
    <name>UpdateBanner</name>
    <message>
        <source>Update verfügbar: %1</source>
        <translation>Nuova versione: %1</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Auf Stable wechseln</source>
        <translation>Passa alla stabile</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>Was ist neu in Version %1?</source>
        <translation>Novità della versione %1</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Keine Release-Notes verfügbar.</source>
        <translation>Nessuna nota di rilascio disponibile.</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Scarica</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Verkleinern</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Vergrößern</source>
        <translation>Ingrandisci</translation>
    </message>
</context>
<context>
    <name>meridax::CameraController</name>
    <message>
        <source>Kamerafehler – bitte Gerät und Verbindung prüfen.</source>
        <translation>Errore della camera – controlla dispositivo e connessione.</translation>
    </message>
    <message>
        <source>Kalibrierungszentrum konnte nicht berechnet werden.</source>
        <translation>Impossibile calcolare il centro di calibrazione.</translation>
    </message>
    <message>
        <source>Kamera antwortet nicht</source>
        <translation>La camera non risponde</translation>
    </message>
    <message>
        <source>Kamera liefert kein Bild</source>
        <translation>La camera non invia immagini</translation>
    </message>
    <message>
        <source>Kamera startet…</source>
        <translation>Avvio della camera…</translation>
    </message>
</context>
<context>
    <name>meridax::CameraViewModel</name>
    <message>
        <source>Rechtstexte konnten nicht geladen werden. Bitte erneut versuchen.</source>
        <translation>Impossibile caricare i testi legali. Riprova.</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Preset %1</translation>
    </message>
</context>
</TS>
