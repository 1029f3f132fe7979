<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tarnwick Optics — präzise Kamerakollimation</source>
        <translation>Tarnwick Optics — precise camera collimation</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
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
        <translation>API version:</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>What’s new?</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Terms of use</translation>
    </message>
    <message>
        <source>Datenschutz</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>AppearanceSettings</name>
    <message>
        <source>Bestimmt nur den Zustand beim App-Start. Während der Session lässt sich das Panel weiter per Pfeil ein-/ausklappen.</source>
        <translation>Only sets the state at start-up. While the program runs, the panel can still be folded in and out with its arrow.</translation>
    </message>
    <message>
        <source>Darstellung</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Dunkles Design (Dark Mode)</source>
        <translation>Dark mode</translation>
    </message>
    <message>
        <source>Sprache / Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Panels</translation>
    </message>
    <message>
        <source>Kamera-Einstellungen (links)</source>
        <translation>Camera settings (left)</translation>
    </message>
    <message>
        <source>Ein-/Ausklappen merken</source>
        <translation>Remember folded groups</translation>
    </message>
    <message>
        <source>Parametergruppen mit einem Pfeil vor der Überschrift lassen sich ein- und ausklappen. Ist die Option an, bleibt dieser Zustand beim Beenden erhalten; ist sie aus, starten alle Gruppen wieder im Vorgabezustand.</source>
        <translation>Groups with an arrow in front of their heading can be folded and unfolded. With this option on, their state is kept when you quit; with it off, all groups start in their default state again.</translation>
    </message>
    <message>
        <source>Markierungen (rechts)</source>
        <translation>Markings (right)</translation>
    </message>
    <message>
        <source>Tooltips anzeigen</source>
        <translation>Show tooltips</translation>
    </message>
    <message>
        <source>Zoom-Regler anzeigen</source>
        <translation>Show zoom slider</translation>
    </message>
    <message>
        <source>Blendet den Zoom-Regler unten mittig über dem Bild ein/aus.</source>
        <translation>Shows or hides the zoom slider at the bottom centre of the picture.</translation>
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
        <translation>Values applied.</translation>
    </message>
    <message>
        <source>Werte übernehmen</source>
        <translation>Apply values</translation>
    </message>
    <message>
        <source>Zurücknehmen</source>
        <translation>Undo</translation>
    </message>
</context>
<context>
    <name>BlobParameters</name>
    <message>
        <source>Min Threshold</source>
        <translation>Min threshold</translation>
    </message>
    <message>
        <source>Untere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darunter werden ignoriert.</source>
        <translation>Lower brightness limit of the spot detection. Pixels below it are ignored.</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Max threshold</translation>
    </message>
    <message>
        <source>Obere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darüber werden ignoriert.</source>
        <translation>Upper brightness limit of the spot detection. Pixels above it are ignored.</translation>
    </message>
    <message>
        <source>Filter Area</source>
        <translation>Filter area</translation>
    </message>
    <message>
        <source>Filtert erkannte Punkte nach Größe. Schließt zu kleine oder zu große Flecken aus.</source>
        <translation>Filters detected spots by size. Rules out spots that are too small or too large.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Min area</translation>
    </message>
    <message>
        <source>Kleinste bzw. größte erlaubte Pixelfläche eines erkannten Punkts.</source>
        <translation>Smallest and largest permitted area of a detected spot, in pixels.</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Max area</translation>
    </message>
    <message>
        <source>Filter Circularity</source>
        <translation>Filter circularity</translation>
    </message>
    <message>
        <source>Filtert nach Rundheit. Verhindert dass kantige oder unförmige Flecken erkannt werden.</source>
        <translation>Filters by roundness. Keeps angular or misshapen spots from being detected.</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Min circularity</translation>
    </message>
    <message>
        <source>Wie rund ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt rund. Falls keine Zentriermarken erkannt werden, kann dieser Regler etwas verkleinert werden — z.B. auf 85.</source>
        <translation>How round a spot has to be at least. 0 = any shape, 100 = perfectly round. If no centre mark is detected, lower this a little — to 85, say.</translation>
    </message>
    <message>
        <source>Filter Inertia</source>
        <translation>Filter inertia</translation>
    </message>
    <message>
        <source>Filtert nach Form-Symmetrie. Schließt langgestreckte oder elliptische Flecken aus.</source>
        <translation>Filters by symmetry of shape. Rules out elongated or elliptical spots.</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Min inertia</translation>
    </message>
    <message>
        <source>Wie symmetrisch ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt symmetrisch.</source>
        <translation>How symmetrical a spot has to be at least. 0 = any shape, 100 = perfectly symmetrical.</translation>
    </message>
</context>
<context>
    <name>BlobTags</name>
    <message>
        <source>im Weg: %1</source>
        <translation>in the way: %1</translation>
    </message>
</context>
<context>
    <name>BlobWords</name>
    <message>
        <source>Das Bild ist zu dunkel.</source>
        <translation>The picture is too dark.</translation>
    </message>
    <message>
        <source>Das Bild ist zu hell.</source>
        <translation>The picture is too bright.</translation>
    </message>
    <message>
        <source>Das Bild hat keinen Kontrast.</source>
        <translation>The picture has no contrast.</translation>
    </message>
    <message>
        <source>Das Bild ist unscharf.</source>
        <translation>The picture is out of focus.</translation>
    </message>
    <message>
        <source>Kein dunkler, geschlossener Fleck im Bild.</source>
        <translation>No dark, closed spot in the picture.</translation>
    </message>
    <message>
        <source>%1 px²</source>
        <translation>%1 px²</translation>
    </message>
    <message>
        <source>zu klein: %1 (mindestens %2)</source>
        <translation>too small: %1 (at least %2)</translation>
    </message>
    <message>
        <source>zu groß: %1 (höchstens %2)</source>
        <translation>too large: %1 (at most %2)</translation>
    </message>
    <message>
        <source>Rundheit %1 % (mindestens %2 %)</source>
        <translation>roundness %1 % (at least %2 %)</translation>
    </message>
    <message>
        <source>Symmetrie %1 % (mindestens %2 %)</source>
        <translation>symmetry %1 % (at least %2 %)</translation>
    </message>
    <message>
        <source>zu dunkel: Helligkeit %1 (mindestens %2)</source>
        <translation>too dark: brightness %1 (at least %2)</translation>
    </message>
    <message>
        <source>zu hell: Helligkeit %1 (höchstens %2)</source>
        <translation>too bright: brightness %1 (at most %2)</translation>
    </message>
    <message>
        <source>zu schwacher Kontrast: %1 Stufen</source>
        <translation>contrast too weak: %1 levels</translation>
    </message>
    <message>
        <source>%1 Blobs: %2</source>
        <translation>%1 blobs: %2</translation>
    </message>
    <message>
        <source>%1 bis %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1 und %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>Blob flackert: Fläche %1–%2</source>
        <translation>Blob flickers: area %1–%2</translation>
    </message>
    <message>
        <source>Blob flackert: Rundheit %1–%2 %</source>
        <translation>Blob flickers: roundness %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Symmetrie %1–%2 %</source>
        <translation>Blob flickers: symmetry %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Helligkeit %1–%2</source>
        <translation>Blob flickers: brightness %1–%2</translation>
    </message>
    <message>
        <source>Nächster Kandidat: %1</source>
        <translation>Nearest candidate: %1</translation>
    </message>
    <message>
        <source>%1. Keine Einstellung trennt ihn von dem Fleck mit %2.</source>
        <translation>%1. No setting separates it from the spot of %2.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Min area</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Max area</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Min circularity</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Min inertia</translation>
    </message>
    <message>
        <source>Min Threshold</source>
        <translation>Min threshold</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Max threshold</translation>
    </message>
</context>
<context>
    <name>BoundedText</name>
    <message>
        <source>Der Text wurde gekürzt.</source>
        <translation>The text has been shortened.</translation>
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
        <translation>Installation</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Workflow</translation>
    </message>
    <message>
        <source>GUI</source>
        <translation>GUI</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Feature vorschlagen</source>
        <translation>Suggest a feature</translation>
    </message>
    <message>
        <source>Bug melden</source>
        <translation>Report a bug</translation>
    </message>
    <message>
        <source>Welche Funktion wünschst du dir? Erzähl uns von deiner Idee.</source>
        <translation>What would you like Meridax to do? Tell us about your idea.</translation>
    </message>
    <message>
        <source>Vielen Dank fürs Helfen! Der Report geht direkt an den Support.</source>
        <translation>Thank you for helping! The report goes straight to support.</translation>
    </message>
    <message>
        <source>Vielen Dank! Dein Feature-Vorschlag wurde erfasst.</source>
        <translation>Thank you! Your feature request has been recorded.</translation>
    </message>
    <message>
        <source>Vielen Dank! Der Bug-Report wurde erfasst.</source>
        <translation>Thank you! The bug report has been recorded.</translation>
    </message>
    <message>
        <source>Bitte keine sensiblen Daten (Passwörter, persönliche Adressen) in der Beschreibung. Der Report wird vom Support gelesen + ggf. lange aufbewahrt.</source>
        <translation>Please no sensitive data (passwords, personal addresses) in the description. The report is read by support and may be kept for a long time.</translation>
    </message>
    <message>
        <source>Titel *</source>
        <translation>Title *</translation>
    </message>
    <message>
        <source>Kurz: was soll Meridax können?</source>
        <translation>In short: what should Meridax be able to do?</translation>
    </message>
    <message>
        <source>Kurz: was ist passiert?</source>
        <translation>In short: what happened?</translation>
    </message>
    <message>
        <source>Kategorie *</source>
        <translation>Category *</translation>
    </message>
    <message>
        <source>(bitte wählen)</source>
        <translation>(please choose)</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>min. %1 Zeichen (noch %2)</source>
        <translation>min. %1 characters (%2 to go)</translation>
    </message>
    <message>
        <source>Was würdest du gerne tun? Wie würde es deinem Workflow helfen?</source>
        <translation>What would you like to do? How would it help your workflow?</translation>
    </message>
    <message>
        <source>Reproschritte, erwartetes vs. tatsächliches Verhalten …</source>
        <translation>Steps to reproduce, expected and actual behaviour …</translation>
    </message>
</context>
<context>
    <name>CalibrationHint</name>
    <message>
        <source>✓ Blob im Sektor – bereit zum Messen</source>
        <translation>✓ Blob in the sector – ready to measure</translation>
    </message>
    <message>
        <source>⟳ Kamera auf Sektor drehen</source>
        <translation>⟳ Turn the camera to the sector</translation>
    </message>
    <message>
        <source>⚠ Kein Blob sichtbar</source>
        <translation>⚠ No blob in view</translation>
    </message>
    <message>
        <source>%1 Blobs – bitte einen wählen</source>
        <translation>%1 blobs – please choose one</translation>
    </message>
</context>
<context>
    <name>CalibrationPane</name>
    <message>
        <source>Kalibrierung</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>Messpositionen</source>
        <translation>Measuring positions</translation>
    </message>
    <message>
        <source>Anzahl Mess-Punkte für die Sensor-Kalibrierung (3–15). Mehr Punkte = robusteres Ergebnis. Bei genau 3 Punkten lässt sich die Standardabweichung nicht bewerten; ab 5 Punkten bestimmt Meridax zusätzlich die Rundheitsform.</source>
        <translation>Number of points measured for the sensor calibration (3–15). More points = a more robust result. With exactly 3 points the standard deviation cannot be judged; from 5 points on, Meridax also determines the form of the roundness.</translation>
    </message>
    <message>
        <source>Frames / Position</source>
        <translation>Frames / position</translation>
    </message>
    <message>
        <source>Wie viele Bilder pro Mess-Punkt gemittelt werden. Mehr Frames glätten das Rauschen, dauert aber länger.</source>
        <translation>How many frames are averaged for each measured point. More frames smooth out the noise but take longer.</translation>
    </message>
    <message>
        <source>Kalibrierung läuft…</source>
        <translation>Calibrating…</translation>
    </message>
    <message>
        <source>Kalibrierung starten</source>
        <translation>Start calibration</translation>
    </message>
    <message>
        <source>Position %1 von %2</source>
        <translation>Position %1 of %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Blob-Parameter</source>
        <translation>Blob parameters</translation>
    </message>
    <message>
        <source>Gemessene Punkte</source>
        <translation>Measured points</translation>
    </message>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Taubin fit (%1 points)</translation>
    </message>
    <message>
        <source>Detailauswertung</source>
        <translation>Detailed analysis</translation>
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
        <translation>Exposure</translation>
    </message>
    <message>
        <source>Wie lange der Sensor pro Frame Licht sammelt. Länger = heller, aber empfindlicher für Bewegung. AUTO = Treiber wählt selbst.</source>
        <translation>How long the sensor collects light for each frame. Longer = brighter, but more sensitive to movement. AUTO = the driver chooses.</translation>
    </message>
    <message>
        <source>Helligkeit</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Verschiebt das ganze Bild heller oder dunkler, ohne die Belichtung zu ändern. Praktisch um Schatten anzuheben.</source>
        <translation>Makes the whole picture brighter or darker without changing the exposure. Handy for lifting shadows.</translation>
    </message>
    <message>
        <source>Kontrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Spreizt helle und dunkle Bereiche auseinander. Feine Strukturen werden sichtbarer, das Rauschen aber auch.</source>
        <translation>Spreads bright and dark areas apart. Fine structures show up better, but so does the noise.</translation>
    </message>
    <message>
        <source>Sättigung</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Wie kräftig die Farben sind. 0 = Schwarz-Weiß, hoch = bunter. Hat keinen Effekt auf Mono-Kameras.</source>
        <translation>How strong the colours are. 0 = black and white, high = more colourful. Has no effect on mono cameras.</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>Verstärkt das Sensorsignal nach der Belichtung. Heller bei kurzer Belichtung, dafür mehr Rauschen — entspricht &apos;ISO&apos; bei Astrokameras.</source>
        <translation>Amplifies the sensor signal after the exposure. Brighter with a short exposure, but noisier — what astro cameras call ‘ISO’.</translation>
    </message>
    <message>
        <source>Fokus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Stellt die Linse manuell ein. Bei den meisten USB-Webcams: Wert 0 = Autofokus.</source>
        <translation>Sets the lens by hand. With most USB webcams, 0 = autofocus.</translation>
    </message>
    <message>
        <source>AF</source>
        <translation>AF</translation>
    </message>
    <message>
        <source>Eingestellt: %1 ms.</source>
        <translation>Set: %1 ms.</translation>
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
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Auflösung</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Bildgröße und Bildrate aus den von der Kamera unterstützten Modi. Nur im gestoppten Zustand änderbar. Die Kalibrierung wird pro Auflösung gespeichert und beim Verbinden dieser Auflösung wiederhergestellt.</source>
        <translation>Picture size and frame rate from the modes the camera supports. Can only be changed while stopped. The calibration is stored for each resolution and restored when that resolution is connected.</translation>
    </message>
    <message>
        <source>Kamera-Eigenschaften</source>
        <translation>Camera properties</translation>
    </message>
    <message>
        <source>Zentrum &amp; Ansicht</source>
        <translation>Centre &amp; view</translation>
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
        <translation>X position of the image centre in pixels. Reference point of all overlay circles and the crosshair. Centring values of other makers (e.g. OCAL) can be entered here, too.</translation>
    </message>
    <message>
        <source>Zentrum Y</source>
        <translation>Centre Y</translation>
    </message>
    <message>
        <source>Y-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).</source>
        <translation>Y position of the image centre in pixels. Reference point of all overlay circles and the crosshair. Centring values of other makers (e.g. OCAL) can be entered here, too.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Verschiebt die Overlays relativ zum Bildmittelpunkt — z.B. wenn die Optik nicht zentriert auf dem Sensor sitzt. Nicht nötig wenn die Kamera mit Optik kalibriert wurde — dann sollten die Werte 0 sein.</source>
        <translation>Moves the overlays relative to the image centre — for instance when the optics do not sit centred on the sensor. Not needed if the camera was calibrated with its optics — the values should then be 0.</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>Offset X</translation>
    </message>
    <message>
        <source>Horizontale bzw. vertikale Verschiebung der Overlays gegen das Zentrum, in Pixeln.</source>
        <translation>Horizontal and vertical shift of the overlays against the centre, in pixels.</translation>
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
        <translation>Magnification of the displayed picture. 0 = full height without cropping, 100 = maximum zoom. Mouse wheel and pinch zoom as well.</translation>
    </message>
</context>
<context>
    <name>CenterDiagram</name>
    <message>
        <source>Lage des Zentrums</source>
        <translation>Position of the centre</translation>
    </message>
    <message>
        <source>geometrische Sensormitte</source>
        <translation>geometric sensor centre</translation>
    </message>
    <message>
        <source>gemessenes Zentrum</source>
        <translation>measured centre</translation>
    </message>
    <message>
        <source>Versatz %1 px   (x %2 / y %3)</source>
        <translation>Offset %1 px   (x %2 / y %3)</translation>
    </message>
</context>
<context>
    <name>CenterDialog</name>
    <message>
        <source>Zentrum exzellent bestimmt</source>
        <translation>Centre determined excellently</translation>
    </message>
    <message>
        <source>Zentrum gut bestimmt</source>
        <translation>Centre determined well</translation>
    </message>
    <message>
        <source>Zentrum brauchbar — mehr Positionen empfohlen</source>
        <translation>Centre usable — more positions recommended</translation>
    </message>
    <message>
        <source>Zentrum ungenau — bitte neu messen</source>
        <translation>Centre inaccurate — please measure again</translation>
    </message>
    <message>
        <source>Güte nicht bewertbar</source>
        <translation>Quality cannot be judged</translation>
    </message>
    <message>
        <source>Kalibrierung abgeschlossen</source>
        <translation>Calibration finished</translation>
    </message>
    <message>
        <source>Gemessenes Zentrum übernehmen?</source>
        <translation>Accept the measured centre?</translation>
    </message>
    <message>
        <source>Mit drei oder vier Messpunkten schmiegt sich der Kreis so eng an die Punkte, dass Streuung und Genauigkeit nicht mehr aussagekräftig sind — eine Formabweichung verschiebt den Mittelpunkt dann unbemerkt. Das Zentrum ist als Näherung verwendbar. Für eine belastbare Bewertung bitte mit mindestens sechs Positionen messen.</source>
        <translation>With three or four points the circle follows the points so closely that scatter and accuracy no longer mean anything — a form error then shifts the centre unnoticed. The centre can be used as an approximation. For a reliable judgement please measure at least six positions.</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Update profile</translation>
    </message>
    <message>
        <source>Bildmitte ins Kamera-Profil speichern und beim nächsten Verbinden wiederherstellen.</source>
        <translation>Store the image centre in the camera profile and restore it at the next connection.</translation>
    </message>
    <message>
        <source>Ja</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Gemessen mit %1. Das Zentrum gilt, sobald diese Kamera mit dieser Auflösung wieder gewählt ist.</source>
        <translation>Measured with %1. The centre applies as soon as this camera is selected again at this resolution.</translation>
    </message>
</context>
<context>
    <name>CenterFigures</name>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Taubin fit (%1 points)</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centre ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Std dev</translation>
    </message>
</context>
<context>
    <name>CrashDetails</name>
    <message>
        <source>Crash-Details anzeigen</source>
        <translation>Show crash details</translation>
    </message>
    <message>
        <source>ausgeklappt</source>
        <translation>expanded</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>collapsed</translation>
    </message>
</context>
<context>
    <name>CrashFooter</name>
    <message>
        <source>Verwerfen</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Mit Beschreibung</source>
        <translation>With description</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>Wird gesendet…</source>
        <translation>Sending…</translation>
    </message>
</context>
<context>
    <name>CrashRecoveryDialog</name>
    <message>
        <source>Meridax ist beim letzten Mal abgestürzt</source>
        <translation>Meridax crashed last time</translation>
    </message>
    <message>
        <source>Hilf uns das zu fixen — schick uns die Crash-Info.</source>
        <translation>Help us fix it — send us the crash information.</translation>
    </message>
    <message>
        <source>Wir haben einen Crash-Bericht gespeichert. Der Bericht enthält:</source>
        <translation>A crash report has been stored. The report contains:</translation>
    </message>
    <message>
        <source>• Was schiefgegangen ist (Fehlercode + Modul)</source>
        <translation>• What went wrong (error code + module)</translation>
    </message>
    <message>
        <source>• Die letzten Log-Zeilen vor dem Absturz (anonymisiert)</source>
        <translation>• The last log lines before the crash (anonymised)</translation>
    </message>
    <message>
        <source>• App-Version und Build-Info</source>
        <translation>• Program version and build information</translation>
    </message>
    <message>
        <source>E-Mail-Adressen und dein Benutzername in Dateipfaden werden vorher unkenntlich gemacht. Namen und Kennungen deiner Kameras bleiben lesbar.</source>
        <translation>E-mail addresses and your user name in file paths are made unrecognisable first. Names and identifiers of your cameras stay readable.</translation>
    </message>
    <message>
        <source>Der Bericht ist leer oder lässt sich nicht lesen. Du kannst ihn verwerfen oder mit eigenen Worten beschreiben, was geschehen ist.</source>
        <translation>The report is empty or cannot be read. You can discard it, or describe in your own words what happened.</translation>
    </message>
</context>
<context>
    <name>FeedbackDialog</name>
    <message>
        <source>Schade — was können wir besser machen?</source>
        <translation>Sorry to hear that — what can we do better?</translation>
    </message>
    <message>
        <source>Danke fürs ehrliche Feedback.</source>
        <translation>Thank you for your honest feedback.</translation>
    </message>
    <message>
        <source>OK — wo siehst du Luft nach oben?</source>
        <translation>OK — where do you see room for improvement?</translation>
    </message>
    <message>
        <source>Schön zu hören!</source>
        <translation>Good to hear!</translation>
    </message>
    <message>
        <source>Wow — danke!</source>
        <translation>Wow — thank you!</translation>
    </message>
    <message>
        <source>Feedback senden</source>
        <translation>Send feedback</translation>
    </message>
    <message>
        <source>Wie gefällt dir Meridax? Deine Bewertung hilft uns weiter.</source>
        <translation>How do you like Meridax? Your rating helps us.</translation>
    </message>
    <message>
        <source>Vielen Dank für dein Feedback!</source>
        <translation>Thank you for your feedback!</translation>
    </message>
    <message>
        <source>Deine Bewertung</source>
        <translation>Your rating</translation>
    </message>
    <message>
        <source>Kommentar (optional)</source>
        <translation>Comment (optional)</translation>
    </message>
    <message>
        <source>Was gefällt dir? Was würdest du anders machen?</source>
        <translation>What do you like? What would you do differently?</translation>
    </message>
</context>
<context>
    <name>FewPositionsWarning</name>
    <message>
        <source>Weniger als 6 Messpunkte: Formabweichungen wie ein Dreikant sind dann nicht erkennbar und verschieben den berechneten Mittelpunkt. Die angezeigte Genauigkeit ist in diesem Fall zu optimistisch. Klicken für Details im Handbuch.</source>
        <translation>Fewer than 6 points: form errors such as three lobes then go unnoticed and shift the computed centre. The accuracy shown is too optimistic in this case. Click for details in the manual.</translation>
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
        <translation>Radius</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Std dev</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n/a</translation>
    </message>
</context>
<context>
    <name>FocusPresetChip</name>
    <message>
        <source>Klick: Fokus + Markierungen anfahren
Doppelklick: umbenennen</source>
        <translation>Click: go to focus + markings
Double-click: rename</translation>
    </message>
    <message>
        <source>Klick: nur Fokus anfahren
Doppelklick: umbenennen</source>
        <translation>Click: go to focus only
Double-click: rename</translation>
    </message>
    <message>
        <source>Preset entfernen</source>
        <translation>Remove preset</translation>
    </message>
    <message>
        <source>Preset mit aktuellem Stand aktualisieren</source>
        <translation>Update preset with the current state</translation>
    </message>
    <message>
        <source>Leertaste: anfahren, Eingabetaste: umbenennen</source>
        <translation>Space: go to it, Enter: rename</translation>
    </message>
    <message>
        <source>Name des Presets</source>
        <translation>Name of the preset</translation>
    </message>
</context>
<context>
    <name>FocusPresetOverlay</name>
    <message>
        <source>Fokus-Preset anlegen</source>
        <translation>Add focus preset</translation>
    </message>
    <message>
        <source>Name (Enter)</source>
        <translation>Name (Enter)</translation>
    </message>
</context>
<context>
    <name>FocusTapArea</name>
    <message>
        <source>Keine fokussierbare Struktur gefunden.</source>
        <translation>No structure found to focus on.</translation>
    </message>
    <message>
        <source>Fokus dieser Kamera ist nicht steuerbar.</source>
        <translation>The focus of this camera cannot be controlled.</translation>
    </message>
    <message>
        <source>Fokusbereich wird noch ermittelt — bitte kurz warten.</source>
        <translation>The focus range is still being determined — please wait a moment.</translation>
    </message>
    <message>
        <source>Schärfste Stelle gefunden.</source>
        <translation>Sharpest position found.</translation>
    </message>
</context>
<context>
    <name>FocusTapButton</name>
    <message>
        <source>Fokus-Antippen</source>
        <translation>Tap to focus</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktiv – ins Bild auf eine Struktur klicken stellt dort scharf.
Klick hier zum Deaktivieren.</source>
        <translation>Tap to focus is on – click a structure in the picture to focus on it.
Click here to turn it off.</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktivieren – danach ins Bild auf eine Struktur klicken, um dort scharfzustellen.</source>
        <translation>Turn on tap to focus – then click a structure in the picture to focus on it.</translation>
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
        <translation>Calibration</translation>
    </message>
</context>
<context>
    <name>LegalTextDialog</name>
    <message>
        <source>Datenschutzerklärung</source>
        <translation>Privacy policy</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Terms of use</translation>
    </message>
    <message>
        <source>%1 (v%2)</source>
        <translation>%1 (v%2)</translation>
    </message>
    <message>
        <source>Dieser Rechtstext liegt noch nicht lokal vor. Bitte verbinde dich einmal mit dem Internet und starte Meridax neu, damit er vom Server geladen werden kann.</source>
        <translation>This legal text is not available locally yet. Please connect to the internet once and restart Meridax so that it can be fetched from the server.</translation>
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
        <translation>Solid</translation>
    </message>
    <message>
        <source>Gestrichelt</source>
        <translation>Dashed</translation>
    </message>
    <message>
        <source>Gepunktet</source>
        <translation>Dotted</translation>
    </message>
    <message>
        <source>Strich-Punkt</source>
        <translation>Dash-dot</translation>
    </message>
</context>
<context>
    <name>LockButton</name>
    <message>
        <source>Zentrum gesperrt – klicken zum Entsperren</source>
        <translation>Centre locked – click to unlock</translation>
    </message>
    <message>
        <source>Zentrum entsperrt – klicken zum Sperren</source>
        <translation>Centre unlocked – click to lock</translation>
    </message>
</context>
<context>
    <name>LogOption</name>
    <message>
        <source>Aktuelles Log mitschicken (anonymisiert)</source>
        <translation>Include the current log (anonymised)</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Preview</translation>
    </message>
</context>
<context>
    <name>LogPreviewDialog</name>
    <message>
        <source>Log-Vorschau (so geht es an den Server)</source>
        <translation>Log preview (as it goes to the server)</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Messung verworfen: andere Kamera oder Auflösung gewählt</source>
        <translation>Measurement dropped: other camera or resolution selected</translation>
    </message>
</context>
<context>
    <name>MeasureButton</name>
    <message>
        <source>Messe… %1 / %2</source>
        <translation>Measuring… %1 / %2</translation>
    </message>
    <message>
        <source>Position messen</source>
        <translation>Measure position</translation>
    </message>
</context>
<context>
    <name>MeasurementTable</name>
    <message>
        <source>Schritt</source>
        <translation>Step</translation>
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
        <translation>Measuring marks</translation>
    </message>
</context>
<context>
    <name>OverlaySettingsPane</name>
    <message>
        <source>Kreis %1</source>
        <translation>Circle %1</translation>
    </message>
    <message>
        <source>Farbe: %1</source>
        <translation>Colour: %1</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Messkreise</source>
        <translation>Measuring circles</translation>
    </message>
    <message>
        <source>Fadenkreuz</source>
        <translation>Crosshair</translation>
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
        <translation>Lines (3)</translation>
    </message>
    <message>
        <source>Kreuz (4)</source>
        <translation>Cross (4)</translation>
    </message>
</context>
<context>
    <name>PanelHandle</name>
    <message>
        <source>ausgeklappt</source>
        <translation>expanded</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>collapsed</translation>
    </message>
</context>
<context>
    <name>ProfileSettings</name>
    <message>
        <source>Kamera-Profil</source>
        <translation>Camera profile</translation>
    </message>
    <message>
        <source>Keine Kamera ausgewählt</source>
        <translation>No camera selected</translation>
    </message>
    <message>
        <source>Kameraeinstellungen wiederherstellen</source>
        <translation>Restore camera settings</translation>
    </message>
    <message>
        <source>Kalibrierung wiederherstellen</source>
        <translation>Restore calibration</translation>
    </message>
    <message>
        <source>Gespeicherte Bildmitte:</source>
        <translation>Stored image centre:</translation>
    </message>
    <message>
        <source>noch nicht gespeichert</source>
        <translation>not stored yet</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Update profile</translation>
    </message>
    <message>
        <source>Profil speichern</source>
        <translation>Save profile</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
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
        <translation>good</translation>
    </message>
    <message>
        <source>brauchbar</source>
        <translation>usable</translation>
    </message>
    <message>
        <source>ungenau</source>
        <translation>inaccurate</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>oval</translation>
    </message>
    <message>
        <source>Dreikant</source>
        <translation>three lobes</translation>
    </message>
    <message>
        <source>Vierkant</source>
        <translation>four lobes</translation>
    </message>
    <message>
        <source>%1-Kant</source>
        <translation>%1 lobes</translation>
    </message>
    <message>
        <source>Die Bahn ist oval (2. Ordnung). Typische Ursachen: gekippte Rotationsachse oder unrunde Passung.</source>
        <translation>The path is oval (2nd order). Typical causes: a tilted axis of rotation or an out-of-round fit.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Dreikant (3. Ordnung) — die klassische Signatur eines Bauteils, das im Dreibacken-Futter gespannt und gedreht wurde.</source>
        <translation>The path has three lobes (3rd order) — the classic signature of a part that was clamped in a three-jaw chuck and turned.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Vierkant (4. Ordnung) — typisch für ein Vierbacken-Futter oder eine geschlitzte Spannzange.</source>
        <translation>The path has four lobes (4th order) — typical of a four-jaw chuck or a slotted collet.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen %1-Kant (%1. Ordnung) — meist von der Spannvorrichtung, etwa einer Spannzange mit %1 Schlitzen.</source>
        <translation>The path has %1 lobes (order %1) — mostly from the clamping device, such as a collet with %1 slots.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt eine Welligkeit %1. Ordnung — bei so hohen Ordnungen meist Rattermarken aus der Bearbeitung.</source>
        <translation>The path shows a waviness of order %1 — at orders this high mostly chatter marks from machining.</translation>
    </message>
    <message>
        <source>Mit weniger als fünf Messpunkten lässt sich die Genauigkeit nicht beziffern: Formabweichungen sind nicht von Messrauschen zu trennen und verschieben den Mittelpunkt unbemerkt. Das Zentrum ist als Näherung verwendbar.</source>
        <translation>With fewer than five points the accuracy cannot be put into figures: form errors cannot be told from measurement noise and shift the centre unnoticed. The centre can be used as an approximation.</translation>
    </message>
    <message>
        <source>Die Messpunkte decken den Umlauf nicht gleichmäßig ab — bitte über den vollen Kreis verteilen. Formfehler mitteln sich sonst nicht heraus.</source>
        <translation>The measured points do not cover the turn evenly — please spread them over the full circle. Otherwise form errors do not average out.</translation>
    </message>
    <message>
        <source>Die Streuung ist zufällig verteilt — mehr Frames pro Position oder mehr Messpunkte verbessern das Ergebnis.</source>
        <translation>The scatter is random — more frames per position or more measured points improve the result.</translation>
    </message>
    <message>
        <source>Das ist Form, kein Messfehler: neu messen ändert daran nichts, und der Mittelpunkt bleibt davon unberührt.</source>
        <translation>This is form, not measurement error: measuring again changes nothing about it, and the centre is not affected.</translation>
    </message>
    <message>
        <source>Messgüte</source>
        <translation>Measurement quality</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centre ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Winkelabdeckung</source>
        <translation>Angular coverage</translation>
    </message>
    <message>
        <source>größte Lücke %1°</source>
        <translation>largest gap %1°</translation>
    </message>
    <message>
        <source>Rundheit</source>
        <translation>Roundness</translation>
    </message>
</context>
<context>
    <name>ReadingDialog</name>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>ResidualPlot</name>
    <message>
        <source>Detailauswertung</source>
        <translation>Detailed analysis</translation>
    </message>
    <message>
        <source>Rot markierte Punkte liegen außerhalb der festen Skala — für die vollständige Ansicht auf Auto umschalten.</source>
        <translation>Points marked red lie outside the fixed scale — switch to Auto for the full view.</translation>
    </message>
</context>
<context>
    <name>RightOverlayPanel</name>
    <message>
        <source>Einblendungen</source>
        <translation>Overlays</translation>
    </message>
</context>
<context>
    <name>RoundnessDiagram</name>
    <message>
        <source>Rundheit der Bahn</source>
        <translation>Roundness of the path</translation>
    </message>
    <message>
        <source>Skala</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Auto (±%1 px)</source>
        <translation>Auto (±%1 px)</translation>
    </message>
    <message>
        <source>fest ±%1 px</source>
        <translation>fixed ±%1 px</translation>
    </message>
    <message>
        <source>Sollkreis</source>
        <translation>ideal circle</translation>
    </message>
    <message>
        <source>Messpunkte</source>
        <translation>measured points</translation>
    </message>
    <message>
        <source>Messunsicherheit ±%1 px</source>
        <translation>measurement uncertainty ±%1 px</translation>
    </message>
    <message>
        <source>Messunsicherheit n. def.</source>
        <translation>measurement uncertainty n/a</translation>
    </message>
    <message>
        <source>Mittelpunkt</source>
        <translation>centre</translation>
    </message>
</context>
<context>
    <name>ScreenshotButton</name>
    <message>
        <source>Screenshot — Zielordner erst in den Einstellungen wählen</source>
        <translation>Screenshot — choose a folder in the settings first</translation>
    </message>
    <message>
        <source>Screenshot mit Markierungen speichern
%1</source>
        <translation>Save screenshot with markings
%1</translation>
    </message>
    <message>
        <source>Screenshot ohne Markierungen speichern
%1</source>
        <translation>Save screenshot without markings
%1</translation>
    </message>
    <message>
        <source>Screenshot: zuerst in den Einstellungen einen Ordner wählen</source>
        <translation>Screenshot: choose a folder in the settings first</translation>
    </message>
    <message>
        <source>Screenshot fehlgeschlagen — siehe Log</source>
        <translation>Screenshot failed — see the log</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Screenshot gespeichert</source>
        <translation>Screenshot saved</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderDialog</name>
    <message>
        <source>Screenshot-Ordner wählen</source>
        <translation>Choose screenshot folder</translation>
    </message>
</context>
<context>
    <name>ScreenshotPicker</name>
    <message>
        <source>Datei konnte nicht geladen werden.</source>
        <translation>The file could not be loaded.</translation>
    </message>
    <message>
        <source>Screenshot (optional, max. 5 MB, PNG/JPEG)</source>
        <translation>Screenshot (optional, max. 5 MB, PNG/JPEG)</translation>
    </message>
    <message>
        <source>Datei auswählen…</source>
        <translation>Choose file…</translation>
    </message>
    <message>
        <source>Anderen Screenshot wählen</source>
        <translation>Choose another screenshot</translation>
    </message>
    <message>
        <source>Entfernen</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Screenshot auswählen</source>
        <translation>Choose screenshot</translation>
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
        <translation>Screenshots</translation>
    </message>
    <message>
        <source>Zielordner</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Nicht festgelegt</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>Ordner wählen…</source>
        <translation>Choose folder…</translation>
    </message>
    <message>
        <source>Markierungen einschließen</source>
        <translation>Include markings</translation>
    </message>
    <message>
        <source>Fadenkreuz und Messkreise im Screenshot mit aufnehmen.</source>
        <translation>Include crosshair and measuring circles in the screenshot.</translation>
    </message>
    <message>
        <source>Fokus-Presets</source>
        <translation>Focus presets</translation>
    </message>
    <message>
        <source>Markierungen mit speichern</source>
        <translation>Store markings, too</translation>
    </message>
    <message>
        <source>Beim Anlegen eines Fokus-Preset werden Kreise und Fadenkreuz mit gespeichert
und beim Anfahren wiederhergestellt. Aus = nur Fokuswert wird angefahren.</source>
        <translation>A new focus preset also stores circles and crosshair and restores them
when you go to it. Off = only the focus value is set.</translation>
    </message>
    <message>
        <source>Fokuswert mit anzeigen</source>
        <translation>Show focus value</translation>
    </message>
    <message>
        <source>Im Overlay-Chip wird der gespeicherte Fokuswert (f=NNN) eingeblendet.</source>
        <translation>The chip over the picture shows the stored focus value (f=NNN).</translation>
    </message>
</context>
<context>
    <name>SectionChevron</name>
    <message>
        <source>ausgeklappt</source>
        <translation>expanded</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>collapsed</translation>
    </message>
</context>
<context>
    <name>ServerError</name>
    <message>
        <source>Zu viele Anfragen — bitte versuche es später erneut.</source>
        <translation>Too many requests — please try again later.</translation>
    </message>
    <message>
        <source>Maximal 10 Bug-Reports pro 24h. Bitte später erneut.</source>
        <translation>At most 10 bug reports in 24 h. Please try again later.</translation>
    </message>
    <message>
        <source>Max. 5 Feature-Vorschläge pro 24h. Bitte später erneut.</source>
        <translation>At most 5 feature requests in 24 h. Please try again later.</translation>
    </message>
    <message>
        <source>Du hast in den letzten 24h schon Feedback gesendet — danke! Bitte etwas warten.</source>
        <translation>You have already sent feedback in the last 24 h — thank you! Please wait a little.</translation>
    </message>
    <message>
        <source>Titel ist ungültig (max. 200 Zeichen).</source>
        <translation>The title is not valid (max. 200 characters).</translation>
    </message>
    <message>
        <source>Beschreibung ist ungültig (max. 8000 Zeichen).</source>
        <translation>The description is not valid (max. 8000 characters).</translation>
    </message>
    <message>
        <source>Bewertung muss zwischen 1 und 5 liegen.</source>
        <translation>The rating must be between 1 and 5.</translation>
    </message>
    <message>
        <source>Kommentar zu lang (max. 4000 Zeichen).</source>
        <translation>Comment too long (max. 4000 characters).</translation>
    </message>
    <message>
        <source>Screenshot zu groß (max. 5 MB).</source>
        <translation>Screenshot too large (max. 5 MB).</translation>
    </message>
    <message>
        <source>Nur PNG / JPEG erlaubt.</source>
        <translation>Only PNG / JPEG allowed.</translation>
    </message>
    <message>
        <source>Screenshot konnte nicht gelesen werden.</source>
        <translation>The screenshot could not be read.</translation>
    </message>
    <message>
        <source>Server nicht erreichbar. Bitte später erneut versuchen.</source>
        <translation>Server cannot be reached. Please try again later.</translation>
    </message>
</context>
<context>
    <name>SettingsHeader</name>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Online-Dokumentation im Browser öffnen</source>
        <translation>Open the online documentation in the browser</translation>
    </message>
    <message>
        <source>Über Meridax — Build-Info anzeigen</source>
        <translation>About Meridax — show build information</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>SettingsLink</name>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>SliderValueDisplay</name>
    <message>
        <source>Doppelklick zum Bearbeiten</source>
        <translation>Double-click to edit</translation>
    </message>
    <message>
        <source>Doppelklick: manuellen Wert eingeben</source>
        <translation>Double-click: enter a value by hand</translation>
    </message>
    <message>
        <source>Auto-Modus aktiv — Slider bewegen für manuellen Wert</source>
        <translation>Automatic mode is on — move the slider for a manual value</translation>
    </message>
</context>
<context>
    <name>SliderValueEditor</name>
    <message>
        <source>Bereich %1 – %2  ·  Punkt (.) als Dezimaltrennzeichen</source>
        <translation>Range %1 – %2  ·  point (.) as decimal separator</translation>
    </message>
    <message>
        <source>Komma → Punkt umgewandelt</source>
        <translation>Comma → changed to a point</translation>
    </message>
</context>
<context>
    <name>StarRow</name>
    <message>
        <source>Sehr unzufrieden</source>
        <translation>Very dissatisfied</translation>
    </message>
    <message>
        <source>Unzufrieden</source>
        <translation>Dissatisfied</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Gut</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>Begeistert</source>
        <translation>Delighted</translation>
    </message>
</context>
<context>
    <name>SubmissionFooter</name>
    <message>
        <source>Wird gesendet…</source>
        <translation>Sending…</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Send</translation>
    </message>
</context>
<context>
    <name>SupportSettings</name>
    <message>
        <source>Support &amp; Feedback</source>
        <translation>Support &amp; feedback</translation>
    </message>
    <message>
        <source>BETA-TESTER</source>
        <translation>BETA TESTER</translation>
    </message>
    <message>
        <source>Du bist als Beta-Tester freigeschaltet — danke fürs Testen!</source>
        <translation>You are enrolled as a beta tester — thank you for testing!</translation>
    </message>
    <message>
        <source>Probleme? Feedback? Wir hören zu — schick uns einen Bug-Report.</source>
        <translation>Problems? Feedback? We are listening — send us a bug report.</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1 (Beta).</source>
        <translation>Version installed: %1 (beta).</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1.</source>
        <translation>Version installed: %1.</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Bug</translation>
    </message>
    <message>
        <source>Bug-Reports sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Bug reports are temporarily turned off on the server.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Feature-Vorschläge sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Feature requests are temporarily turned off on the server.</translation>
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
        <translation>Focusing…</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Kamera verbunden</source>
        <translation>Camera connected</translation>
    </message>
    <message>
        <source>Kamera nicht verbunden</source>
        <translation>Camera not connected</translation>
    </message>
    <message>
        <source>Kalibriert</source>
        <translation>Calibrated</translation>
    </message>
    <message>
        <source>Nicht kalibriert</source>
        <translation>Not calibrated</translation>
    </message>
    <message>
        <source>1 Blob ✓</source>
        <translation>1 blob ✓</translation>
    </message>
    <message>
        <source>%1 Blobs</source>
        <translation>%1 blobs</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>UpdateBanner</name>
    <message>
        <source>Update verfügbar: %1</source>
        <translation>Update available: %1</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>What’s new?</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Auf Stable wechseln</source>
        <translation>Switch to stable</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>Was ist neu in Version %1?</source>
        <translation>What’s new in version %1?</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>What’s new?</translation>
    </message>
    <message>
        <source>Keine Release-Notes verfügbar.</source>
        <translation>No release notes available.</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Download</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Verkleinern</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Vergrößern</source>
        <translation>Zoom in</translation>
    </message>
</context>
<context>
    <name>meridax::CameraController</name>
    <message>
        <source>Kamerafehler – bitte Gerät und Verbindung prüfen.</source>
        <translation>Camera error – please check the device and its connection.</translation>
    </message>
    <message>
        <source>Kalibrierungszentrum konnte nicht berechnet werden.</source>
        <translation>The calibration centre could not be computed.</translation>
    </message>
    <message>
        <source>Kamera antwortet nicht</source>
        <translation>Camera does not answer</translation>
    </message>
    <message>
        <source>Kamera liefert kein Bild</source>
        <translation>Camera sends no picture</translation>
    </message>
    <message>
        <source>Kamera startet…</source>
        <translation>Camera is starting…</translation>
    </message>
</context>
<context>
    <name>meridax::CameraViewModel</name>
    <message>
        <source>Rechtstexte konnten nicht geladen werden. Bitte erneut versuchen.</source>
        <translation>The legal texts could not be loaded. Please try again.</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Preset %1</translation>
    </message>
</context>
</TS>
