<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tarnwick Optics — präzise Kamerakollimation</source>
        <translation>Tarnwick Optics — colimación precisa con cámara</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versión:</translation>
    </message>
    <message>
        <source>Commit:</source>
        <translation>Commit:</translation>
    </message>
    <message>
        <source>Build:</source>
        <translation>Compilación:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Host:</source>
        <translation>Host:</translation>
    </message>
    <message>
        <source>API-Version:</source>
        <translation>Versión de API:</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Condiciones de uso</translation>
    </message>
    <message>
        <source>Datenschutz</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>AppearanceSettings</name>
    <message>
        <source>Bestimmt nur den Zustand beim App-Start. Während der Session lässt sich das Panel weiter per Pfeil ein-/ausklappen.</source>
        <translation>Solo determina el estado al iniciar la aplicación. Durante la sesión, el panel se puede seguir plegando y desplegando con la flecha.</translation>
    </message>
    <message>
        <source>Darstellung</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Dunkles Design (Dark Mode)</source>
        <translation>Tema oscuro</translation>
    </message>
    <message>
        <source>Sprache / Language</source>
        <translation>Idioma / Language</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Paneles</translation>
    </message>
    <message>
        <source>Kamera-Einstellungen (links)</source>
        <translation>Ajustes de cámara (izquierda)</translation>
    </message>
    <message>
        <source>Ein-/Ausklappen merken</source>
        <translation>Recordar grupos plegados</translation>
    </message>
    <message>
        <source>Parametergruppen mit einem Pfeil vor der Überschrift lassen sich ein- und ausklappen. Ist die Option an, bleibt dieser Zustand beim Beenden erhalten; ist sie aus, starten alle Gruppen wieder im Vorgabezustand.</source>
        <translation>Los grupos de parámetros con una flecha delante del título se pueden plegar y desplegar. Con la opción activada, su estado se conserva al cerrar el programa; si está desactivada, todos los grupos vuelven a su estado predeterminado al iniciar.</translation>
    </message>
    <message>
        <source>Markierungen (rechts)</source>
        <translation>Marcas (derecha)</translation>
    </message>
    <message>
        <source>Tooltips anzeigen</source>
        <translation>Mostrar ayudas emergentes</translation>
    </message>
    <message>
        <source>Zoom-Regler anzeigen</source>
        <translation>Mostrar control de zoom</translation>
    </message>
    <message>
        <source>Blendet den Zoom-Regler unten mittig über dem Bild ein/aus.</source>
        <translation>Muestra u oculta el control de zoom sobre la imagen, abajo en el centro.</translation>
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
        <translation>Valores aplicados.</translation>
    </message>
    <message>
        <source>Werte übernehmen</source>
        <translation>Aplicar los valores</translation>
    </message>
    <message>
        <source>Zurücknehmen</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>BlobParameters</name>
    <message>
        <source>Min Threshold</source>
        <translation>Umbral mín.</translation>
    </message>
    <message>
        <source>Untere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darunter werden ignoriert.</source>
        <translation>Límite inferior de brillo para detectar puntos. Los píxeles por debajo se ignoran.</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Umbral máx.</translation>
    </message>
    <message>
        <source>Obere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darüber werden ignoriert.</source>
        <translation>Límite superior de brillo para detectar puntos. Los píxeles por encima se ignoran.</translation>
    </message>
    <message>
        <source>Filter Area</source>
        <translation>Filtrar por área</translation>
    </message>
    <message>
        <source>Filtert erkannte Punkte nach Größe. Schließt zu kleine oder zu große Flecken aus.</source>
        <translation>Filtra los puntos detectados según su tamaño. Excluye las manchas demasiado pequeñas o demasiado grandes.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Área mín.</translation>
    </message>
    <message>
        <source>Kleinste bzw. größte erlaubte Pixelfläche eines erkannten Punkts.</source>
        <translation>Área mínima o máxima permitida de un punto detectado, en píxeles.</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Área máx.</translation>
    </message>
    <message>
        <source>Filter Circularity</source>
        <translation>Filtrar por redondez</translation>
    </message>
    <message>
        <source>Filtert nach Rundheit. Verhindert dass kantige oder unförmige Flecken erkannt werden.</source>
        <translation>Filtra según la redondez. Evita que se detecten manchas angulosas o deformes.</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Redondez mín.</translation>
    </message>
    <message>
        <source>Wie rund ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt rund. Falls keine Zentriermarken erkannt werden, kann dieser Regler etwas verkleinert werden — z.B. auf 85.</source>
        <translation>Lo redondo que debe ser como mínimo un punto. 0 = cualquiera, 100 = perfectamente redondo. Si no se detecta ninguna marca de centrado, puedes bajar un poco este valor, p. ej. a 85.</translation>
    </message>
    <message>
        <source>Filter Inertia</source>
        <translation>Filtrar por inercia</translation>
    </message>
    <message>
        <source>Filtert nach Form-Symmetrie. Schließt langgestreckte oder elliptische Flecken aus.</source>
        <translation>Filtra según la simetría de la forma. Excluye las manchas alargadas o elípticas.</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Inercia mín.</translation>
    </message>
    <message>
        <source>Wie symmetrisch ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt symmetrisch.</source>
        <translation>Lo simétrico que debe ser como mínimo un punto. 0 = cualquiera, 100 = perfectamente simétrico.</translation>
    </message>
</context>
<context>
    <name>BlobTags</name>
    <message>
        <source>im Weg: %1</source>
        <translation>estorba: %1</translation>
    </message>
</context>
<context>
    <name>BlobWords</name>
    <message>
        <source>Das Bild ist zu dunkel.</source>
        <translation>La imagen es demasiado oscura.</translation>
    </message>
    <message>
        <source>Das Bild ist zu hell.</source>
        <translation>La imagen es demasiado clara.</translation>
    </message>
    <message>
        <source>Das Bild hat keinen Kontrast.</source>
        <translation>La imagen no tiene contraste.</translation>
    </message>
    <message>
        <source>Das Bild ist unscharf.</source>
        <translation>La imagen está desenfocada.</translation>
    </message>
    <message>
        <source>Kein dunkler, geschlossener Fleck im Bild.</source>
        <translation>Ninguna mancha oscura y cerrada en la imagen.</translation>
    </message>
    <message>
        <source>%1 px²</source>
        <translation>%1 px²</translation>
    </message>
    <message>
        <source>zu klein: %1 (mindestens %2)</source>
        <translation>demasiado pequeño: %1 (mínimo %2)</translation>
    </message>
    <message>
        <source>zu groß: %1 (höchstens %2)</source>
        <translation>demasiado grande: %1 (máximo %2)</translation>
    </message>
    <message>
        <source>Rundheit %1 % (mindestens %2 %)</source>
        <translation>redondez %1 % (mínimo %2 %)</translation>
    </message>
    <message>
        <source>Symmetrie %1 % (mindestens %2 %)</source>
        <translation>simetría %1 % (mínimo %2 %)</translation>
    </message>
    <message>
        <source>zu dunkel: Helligkeit %1 (mindestens %2)</source>
        <translation>demasiado oscuro: brillo %1 (mínimo %2)</translation>
    </message>
    <message>
        <source>zu hell: Helligkeit %1 (höchstens %2)</source>
        <translation>demasiado claro: brillo %1 (máximo %2)</translation>
    </message>
    <message>
        <source>zu schwacher Kontrast: %1 Stufen</source>
        <translation>contraste demasiado débil: %1 niveles</translation>
    </message>
    <message>
        <source>%1 Blobs: %2</source>
        <translation>%1 blobs: %2</translation>
    </message>
    <message>
        <source>%1 bis %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 und %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Blob flackert: Fläche %1–%2</source>
        <translation>El blob parpadea: área %1–%2</translation>
    </message>
    <message>
        <source>Blob flackert: Rundheit %1–%2 %</source>
        <translation>El blob parpadea: redondez %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Symmetrie %1–%2 %</source>
        <translation>El blob parpadea: simetría %1–%2 %</translation>
    </message>
    <message>
        <source>Blob flackert: Helligkeit %1–%2</source>
        <translation>El blob parpadea: brillo %1–%2</translation>
    </message>
    <message>
        <source>Nächster Kandidat: %1</source>
        <translation>Candidato más cercano: %1</translation>
    </message>
    <message>
        <source>%1. Keine Einstellung trennt ihn von dem Fleck mit %2.</source>
        <translation>%1. Ningún ajuste lo separa de la mancha de %2.</translation>
    </message>
    <message>
        <source>Min Area</source>
        <translation>Área mín.</translation>
    </message>
    <message>
        <source>Max Area</source>
        <translation>Área máx.</translation>
    </message>
    <message>
        <source>Min Circularity</source>
        <translation>Redondez mín.</translation>
    </message>
    <message>
        <source>Min Inertia</source>
        <translation>Inercia mín.</translation>
    </message>
    <message>
        <source>Min Threshold</source>
        <translation>Umbral mín.</translation>
    </message>
    <message>
        <source>Max Threshold</source>
        <translation>Umbral máx.</translation>
    </message>
</context>
<context>
    <name>BoundedText</name>
    <message>
        <source>Der Text wurde gekürzt.</source>
        <translation>El texto se ha recortado.</translation>
    </message>
</context>
<context>
    <name>BugReportDialog</name>
    <message>
        <source>Crash</source>
        <translation>Cierre inesperado</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Flujo de trabajo</translation>
    </message>
    <message>
        <source>GUI</source>
        <translation>Interfaz (GUI)</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Feature vorschlagen</source>
        <translation>Proponer una función</translation>
    </message>
    <message>
        <source>Bug melden</source>
        <translation>Informar de un error</translation>
    </message>
    <message>
        <source>Welche Funktion wünschst du dir? Erzähl uns von deiner Idee.</source>
        <translation>¿Qué función te gustaría tener? Cuéntanos tu idea.</translation>
    </message>
    <message>
        <source>Vielen Dank fürs Helfen! Der Report geht direkt an den Support.</source>
        <translation>¡Muchas gracias por tu ayuda! El informe llega directamente a soporte.</translation>
    </message>
    <message>
        <source>Vielen Dank! Dein Feature-Vorschlag wurde erfasst.</source>
        <translation>¡Muchas gracias! Hemos registrado tu propuesta de función.</translation>
    </message>
    <message>
        <source>Vielen Dank! Der Bug-Report wurde erfasst.</source>
        <translation>¡Muchas gracias! Hemos registrado el informe de error.</translation>
    </message>
    <message>
        <source>Bitte keine sensiblen Daten (Passwörter, persönliche Adressen) in der Beschreibung. Der Report wird vom Support gelesen + ggf. lange aufbewahrt.</source>
        <translation>No incluyas datos sensibles (contraseñas, direcciones personales) en la descripción. El equipo de soporte lee el informe y puede conservarlo durante mucho tiempo.</translation>
    </message>
    <message>
        <source>Titel *</source>
        <translation>Título *</translation>
    </message>
    <message>
        <source>Kurz: was soll Meridax können?</source>
        <translation>En pocas palabras: ¿qué debería poder hacer Meridax?</translation>
    </message>
    <message>
        <source>Kurz: was ist passiert?</source>
        <translation>En pocas palabras: ¿qué ha pasado?</translation>
    </message>
    <message>
        <source>Kategorie *</source>
        <translation>Categoría *</translation>
    </message>
    <message>
        <source>(bitte wählen)</source>
        <translation>(elige una)</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>min. %1 Zeichen (noch %2)</source>
        <translation>mín. %1 caracteres (faltan %2)</translation>
    </message>
    <message>
        <source>Was würdest du gerne tun? Wie würde es deinem Workflow helfen?</source>
        <translation>¿Qué te gustaría hacer? ¿Cómo mejoraría tu forma de trabajar?</translation>
    </message>
    <message>
        <source>Reproschritte, erwartetes vs. tatsächliches Verhalten …</source>
        <translation>Pasos para reproducirlo, comportamiento esperado y comportamiento real…</translation>
    </message>
</context>
<context>
    <name>CalibrationHint</name>
    <message>
        <source>✓ Blob im Sektor – bereit zum Messen</source>
        <translation>✓ Blob en el sector: listo para medir</translation>
    </message>
    <message>
        <source>⟳ Kamera auf Sektor drehen</source>
        <translation>⟳ Gira la cámara hasta el sector</translation>
    </message>
    <message>
        <source>⚠ Kein Blob sichtbar</source>
        <translation>⚠ Ningún blob visible</translation>
    </message>
    <message>
        <source>%1 Blobs – bitte einen wählen</source>
        <translation>%1 blobs: elige uno</translation>
    </message>
</context>
<context>
    <name>CalibrationPane</name>
    <message>
        <source>Kalibrierung</source>
        <translation>Calibración</translation>
    </message>
    <message>
        <source>Messpositionen</source>
        <translation>Posiciones de medida</translation>
    </message>
    <message>
        <source>Anzahl Mess-Punkte für die Sensor-Kalibrierung (3–15). Mehr Punkte = robusteres Ergebnis. Bei genau 3 Punkten lässt sich die Standardabweichung nicht bewerten; ab 5 Punkten bestimmt Meridax zusätzlich die Rundheitsform.</source>
        <translation>Número de puntos de medida para calibrar el sensor (3–15). Más puntos = resultado más robusto. Con solo 3 puntos no se puede valorar la desviación típica; a partir de 5 puntos, Meridax determina además el perfil de redondez.</translation>
    </message>
    <message>
        <source>Frames / Position</source>
        <translation>Imágenes / posición</translation>
    </message>
    <message>
        <source>Wie viele Bilder pro Mess-Punkt gemittelt werden. Mehr Frames glätten das Rauschen, dauert aber länger.</source>
        <translation>Cuántas imágenes se promedian en cada punto de medida. Con más imágenes se suaviza el ruido, pero se tarda más.</translation>
    </message>
    <message>
        <source>Kalibrierung läuft…</source>
        <translation>Calibrando…</translation>
    </message>
    <message>
        <source>Kalibrierung starten</source>
        <translation>Iniciar calibración</translation>
    </message>
    <message>
        <source>Position %1 von %2</source>
        <translation>Posición %1 de %2</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Blob-Parameter</source>
        <translation>Parámetros de blob</translation>
    </message>
    <message>
        <source>Gemessene Punkte</source>
        <translation>Puntos medidos</translation>
    </message>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Ajuste de Taubin (%1 puntos)</translation>
    </message>
    <message>
        <source>Detailauswertung</source>
        <translation>Análisis detallado</translation>
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
        <translation>Exposición</translation>
    </message>
    <message>
        <source>Wie lange der Sensor pro Frame Licht sammelt. Länger = heller, aber empfindlicher für Bewegung. AUTO = Treiber wählt selbst.</source>
        <translation>Cuánto tiempo capta luz el sensor en cada imagen. Más tiempo = más claro, pero más sensible al movimiento. AUTO = lo elige el controlador.</translation>
    </message>
    <message>
        <source>Helligkeit</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Verschiebt das ganze Bild heller oder dunkler, ohne die Belichtung zu ändern. Praktisch um Schatten anzuheben.</source>
        <translation>Aclara u oscurece toda la imagen sin cambiar la exposición. Práctico para levantar las sombras.</translation>
    </message>
    <message>
        <source>Kontrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Spreizt helle und dunkle Bereiche auseinander. Feine Strukturen werden sichtbarer, das Rauschen aber auch.</source>
        <translation>Separa más las zonas claras de las oscuras. Las estructuras finas se ven mejor, pero el ruido también.</translation>
    </message>
    <message>
        <source>Sättigung</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Wie kräftig die Farben sind. 0 = Schwarz-Weiß, hoch = bunter. Hat keinen Effekt auf Mono-Kameras.</source>
        <translation>Intensidad de los colores. 0 = blanco y negro; alto = colores más vivos. No tiene efecto en cámaras monocromas.</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Ganancia</translation>
    </message>
    <message>
        <source>Verstärkt das Sensorsignal nach der Belichtung. Heller bei kurzer Belichtung, dafür mehr Rauschen — entspricht &apos;ISO&apos; bei Astrokameras.</source>
        <translation>Amplifica la señal del sensor después de la exposición. Más claro con exposiciones cortas, pero con más ruido; equivale al «ISO» en las cámaras astronómicas.</translation>
    </message>
    <message>
        <source>Fokus</source>
        <translation>Enfoque</translation>
    </message>
    <message>
        <source>Stellt die Linse manuell ein. Bei den meisten USB-Webcams: Wert 0 = Autofokus.</source>
        <translation>Ajusta la lente manualmente. En la mayoría de las webcams USB: valor 0 = enfoque automático.</translation>
    </message>
    <message>
        <source>AF</source>
        <translation>AF</translation>
    </message>
    <message>
        <source>Eingestellt: %1 ms.</source>
        <translation>Ajustado: %1 ms.</translation>
    </message>
</context>
<context>
    <name>CameraSettingsPane</name>
    <message>
        <source>Kamera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Aktualisieren</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Auflösung</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Bildgröße und Bildrate aus den von der Kamera unterstützten Modi. Nur im gestoppten Zustand änderbar. Die Kalibrierung wird pro Auflösung gespeichert und beim Verbinden dieser Auflösung wiederhergestellt.</source>
        <translation>Tamaño y frecuencia de imagen de entre los modos que admite la cámara. Solo se puede cambiar con la cámara parada. La calibración se guarda por separado para cada resolución y se restaura al conectar con esa resolución.</translation>
    </message>
    <message>
        <source>Kamera-Eigenschaften</source>
        <translation>Propiedades de la cámara</translation>
    </message>
    <message>
        <source>Zentrum &amp; Ansicht</source>
        <translation>Centro y vista</translation>
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
        <translation>Posición X del centro de la imagen en píxeles. Punto de referencia de todos los círculos superpuestos y del retículo. Aquí también puedes introducir valores de centrado de otros fabricantes (p. ej., OCAL).</translation>
    </message>
    <message>
        <source>Zentrum Y</source>
        <translation>Centro Y</translation>
    </message>
    <message>
        <source>Y-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).</source>
        <translation>Posición Y del centro de la imagen en píxeles. Punto de referencia de todos los círculos superpuestos y del retículo. Aquí también puedes introducir valores de centrado de otros fabricantes (p. ej., OCAL).</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Verschiebt die Overlays relativ zum Bildmittelpunkt — z.B. wenn die Optik nicht zentriert auf dem Sensor sitzt. Nicht nötig wenn die Kamera mit Optik kalibriert wurde — dann sollten die Werte 0 sein.</source>
        <translation>Desplaza las superposiciones respecto al centro de la imagen, p. ej. si la óptica no está centrada sobre el sensor. No hace falta si la cámara se ha calibrado con la óptica; en ese caso, los valores deberían ser 0.</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>Desplaz. X</translation>
    </message>
    <message>
        <source>Horizontale bzw. vertikale Verschiebung der Overlays gegen das Zentrum, in Pixeln.</source>
        <translation>Desplazamiento horizontal o vertical de las superposiciones respecto al centro, en píxeles.</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Desplaz. Y</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Bildvergrößerung in der Anzeige. 0 = volle Höhe ohne Beschneidung, 100 = maximaler Zoom. Mausrad und Pinch zoomen parallel.</source>
        <translation>Ampliación de la imagen en pantalla. 0 = altura completa sin recorte, 100 = zoom máximo. También puedes usar la rueda del ratón o el gesto de pellizcar.</translation>
    </message>
</context>
<context>
    <name>CenterDiagram</name>
    <message>
        <source>Lage des Zentrums</source>
        <translation>Posición del centro</translation>
    </message>
    <message>
        <source>geometrische Sensormitte</source>
        <translation>centro geométrico del sensor</translation>
    </message>
    <message>
        <source>gemessenes Zentrum</source>
        <translation>centro medido</translation>
    </message>
    <message>
        <source>Versatz %1 px   (x %2 / y %3)</source>
        <translation>Desvío %1 px   (x %2 / y %3)</translation>
    </message>
</context>
<context>
    <name>CenterDialog</name>
    <message>
        <source>Zentrum exzellent bestimmt</source>
        <translation>Determinación excelente del centro</translation>
    </message>
    <message>
        <source>Zentrum gut bestimmt</source>
        <translation>Buena determinación del centro</translation>
    </message>
    <message>
        <source>Zentrum brauchbar — mehr Positionen empfohlen</source>
        <translation>Centro aceptable: se recomiendan más posiciones</translation>
    </message>
    <message>
        <source>Zentrum ungenau — bitte neu messen</source>
        <translation>Centro impreciso: vuelve a medir</translation>
    </message>
    <message>
        <source>Güte nicht bewertbar</source>
        <translation>Calidad no evaluable</translation>
    </message>
    <message>
        <source>Kalibrierung abgeschlossen</source>
        <translation>Calibración terminada</translation>
    </message>
    <message>
        <source>Gemessenes Zentrum übernehmen?</source>
        <translation>¿Aplicar el centro medido?</translation>
    </message>
    <message>
        <source>Mit drei oder vier Messpunkten schmiegt sich der Kreis so eng an die Punkte, dass Streuung und Genauigkeit nicht mehr aussagekräftig sind — eine Formabweichung verschiebt den Mittelpunkt dann unbemerkt. Das Zentrum ist als Näherung verwendbar. Für eine belastbare Bewertung bitte mit mindestens sechs Positionen messen.</source>
        <translation>Con tres o cuatro puntos de medida, el círculo se ciñe tanto a los puntos que la dispersión y la precisión dejan de ser significativas: una desviación de forma desplaza entonces el centro sin que se note. El centro sirve como aproximación. Para una evaluación fiable, mide al menos en seis posiciones.</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Actualizar perfil</translation>
    </message>
    <message>
        <source>Bildmitte ins Kamera-Profil speichern und beim nächsten Verbinden wiederherstellen.</source>
        <translation>Guardar el centro de la imagen en el perfil de cámara y restaurarlo en la próxima conexión.</translation>
    </message>
    <message>
        <source>Ja</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Gemessen mit %1. Das Zentrum gilt, sobald diese Kamera mit dieser Auflösung wieder gewählt ist.</source>
        <translation>Medido con %1. El centro se aplica en cuanto se elija de nuevo esta cámara con esta resolución.</translation>
    </message>
</context>
<context>
    <name>CenterFigures</name>
    <message>
        <source>Taubin-Fit (%1 Punkte)</source>
        <translation>Ajuste de Taubin (%1 puntos)</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centro ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n. def.</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Desv. típ.</translation>
    </message>
</context>
<context>
    <name>CrashDetails</name>
    <message>
        <source>Crash-Details anzeigen</source>
        <translation>Mostrar detalles del fallo</translation>
    </message>
    <message>
        <source>ausgeklappt</source>
        <translation>desplegado</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>plegado</translation>
    </message>
</context>
<context>
    <name>CrashFooter</name>
    <message>
        <source>Verwerfen</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Mit Beschreibung</source>
        <translation>Con descripción</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Wird gesendet…</source>
        <translation>Enviando…</translation>
    </message>
</context>
<context>
    <name>CrashRecoveryDialog</name>
    <message>
        <source>Meridax ist beim letzten Mal abgestürzt</source>
        <translation>Meridax se cerró inesperadamente la última vez</translation>
    </message>
    <message>
        <source>Hilf uns das zu fixen — schick uns die Crash-Info.</source>
        <translation>Ayúdanos a corregirlo: envíanos los datos del fallo.</translation>
    </message>
    <message>
        <source>Wir haben einen Crash-Bericht gespeichert. Der Bericht enthält:</source>
        <translation>Hemos guardado un informe de fallo. El informe contiene:</translation>
    </message>
    <message>
        <source>• Was schiefgegangen ist (Fehlercode + Modul)</source>
        <translation>• Qué ha fallado (código de error + módulo)</translation>
    </message>
    <message>
        <source>• Die letzten Log-Zeilen vor dem Absturz (anonymisiert)</source>
        <translation>• Las últimas líneas del registro antes del fallo (anonimizadas)</translation>
    </message>
    <message>
        <source>• App-Version und Build-Info</source>
        <translation>• La versión de la aplicación y los datos de compilación</translation>
    </message>
    <message>
        <source>E-Mail-Adressen und dein Benutzername in Dateipfaden werden vorher unkenntlich gemacht. Namen und Kennungen deiner Kameras bleiben lesbar.</source>
        <translation>Antes del envío se ocultan las direcciones de correo y tu nombre de usuario en las rutas de archivos. Los nombres e identificadores de tus cámaras siguen siendo legibles.</translation>
    </message>
    <message>
        <source>Der Bericht ist leer oder lässt sich nicht lesen. Du kannst ihn verwerfen oder mit eigenen Worten beschreiben, was geschehen ist.</source>
        <translation>El informe está vacío o no se puede leer. Puedes descartarlo o describir con tus propias palabras lo que ha pasado.</translation>
    </message>
</context>
<context>
    <name>FeedbackDialog</name>
    <message>
        <source>Schade — was können wir besser machen?</source>
        <translation>Lo sentimos. ¿Qué podemos mejorar?</translation>
    </message>
    <message>
        <source>Danke fürs ehrliche Feedback.</source>
        <translation>Gracias por tu sinceridad.</translation>
    </message>
    <message>
        <source>OK — wo siehst du Luft nach oben?</source>
        <translation>De acuerdo. ¿Dónde ves margen de mejora?</translation>
    </message>
    <message>
        <source>Schön zu hören!</source>
        <translation>¡Nos alegra saberlo!</translation>
    </message>
    <message>
        <source>Wow — danke!</source>
        <translation>¡Vaya, gracias!</translation>
    </message>
    <message>
        <source>Feedback senden</source>
        <translation>Enviar opinión</translation>
    </message>
    <message>
        <source>Wie gefällt dir Meridax? Deine Bewertung hilft uns weiter.</source>
        <translation>¿Qué te parece Meridax? Tu valoración nos ayuda a mejorar.</translation>
    </message>
    <message>
        <source>Vielen Dank für dein Feedback!</source>
        <translation>¡Muchas gracias por tu opinión!</translation>
    </message>
    <message>
        <source>Deine Bewertung</source>
        <translation>Tu valoración</translation>
    </message>
    <message>
        <source>Kommentar (optional)</source>
        <translation>Comentario (opcional)</translation>
    </message>
    <message>
        <source>Was gefällt dir? Was würdest du anders machen?</source>
        <translation>¿Qué te gusta? ¿Qué cambiarías?</translation>
    </message>
</context>
<context>
    <name>FewPositionsWarning</name>
    <message>
        <source>Weniger als 6 Messpunkte: Formabweichungen wie ein Dreikant sind dann nicht erkennbar und verschieben den berechneten Mittelpunkt. Die angezeigte Genauigkeit ist in diesem Fall zu optimistisch. Klicken für Details im Handbuch.</source>
        <translation>Menos de 6 puntos de medida: las desviaciones de forma, como un perfil trilobulado, no se pueden detectar y desplazan el centro calculado. En este caso, la precisión indicada es demasiado optimista. Haz clic para ver los detalles en el manual.</translation>
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
        <translation>Radio</translation>
    </message>
    <message>
        <source>Std-Abw.</source>
        <translation>Desv. típ.</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n. def.</translation>
    </message>
</context>
<context>
    <name>FocusPresetChip</name>
    <message>
        <source>Klick: Fokus + Markierungen anfahren
Doppelklick: umbenennen</source>
        <translation>Clic: aplicar enfoque + marcas
Doble clic: cambiar nombre</translation>
    </message>
    <message>
        <source>Klick: nur Fokus anfahren
Doppelklick: umbenennen</source>
        <translation>Clic: aplicar solo el enfoque
Doble clic: cambiar nombre</translation>
    </message>
    <message>
        <source>Preset entfernen</source>
        <translation>Quitar preajuste</translation>
    </message>
    <message>
        <source>Preset mit aktuellem Stand aktualisieren</source>
        <translation>Actualizar el preajuste con el estado actual</translation>
    </message>
    <message>
        <source>Leertaste: anfahren, Eingabetaste: umbenennen</source>
        <translation>Espacio: ir al preajuste, Intro: cambiar nombre</translation>
    </message>
    <message>
        <source>Name des Presets</source>
        <translation>Nombre del preajuste</translation>
    </message>
</context>
<context>
    <name>FocusPresetOverlay</name>
    <message>
        <source>Fokus-Preset anlegen</source>
        <translation>Crear preajuste de enfoque</translation>
    </message>
    <message>
        <source>Name (Enter)</source>
        <translation>Nombre (Intro)</translation>
    </message>
</context>
<context>
    <name>FocusTapArea</name>
    <message>
        <source>Keine fokussierbare Struktur gefunden.</source>
        <translation>No se ha encontrado ninguna estructura que enfocar.</translation>
    </message>
    <message>
        <source>Fokus dieser Kamera ist nicht steuerbar.</source>
        <translation>El enfoque de esta cámara no se puede controlar.</translation>
    </message>
    <message>
        <source>Fokusbereich wird noch ermittelt — bitte kurz warten.</source>
        <translation>Aún se está determinando el rango de enfoque: espera un momento.</translation>
    </message>
    <message>
        <source>Schärfste Stelle gefunden.</source>
        <translation>Posición más nítida encontrada.</translation>
    </message>
</context>
<context>
    <name>FocusTapButton</name>
    <message>
        <source>Fokus-Antippen</source>
        <translation>Enfocar con un clic</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktiv – ins Bild auf eine Struktur klicken stellt dort scharf.
Klick hier zum Deaktivieren.</source>
        <translation>Enfocar con un clic está activado: haz clic en una estructura de la imagen para enfocarla.
Haz clic aquí para desactivarlo.</translation>
    </message>
    <message>
        <source>Fokus-Antippen aktivieren – danach ins Bild auf eine Struktur klicken, um dort scharfzustellen.</source>
        <translation>Activar enfocar con un clic: después, haz clic en una estructura de la imagen para enfocarla.</translation>
    </message>
</context>
<context>
    <name>LeftSettingsPanel</name>
    <message>
        <source>Kamera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Kalibrierung</source>
        <translation>Calibración</translation>
    </message>
</context>
<context>
    <name>LegalTextDialog</name>
    <message>
        <source>Datenschutzerklärung</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Nutzungsbedingungen</source>
        <translation>Condiciones de uso</translation>
    </message>
    <message>
        <source>%1 (v%2)</source>
        <translation>%1 (v%2)</translation>
    </message>
    <message>
        <source>Dieser Rechtstext liegt noch nicht lokal vor. Bitte verbinde dich einmal mit dem Internet und starte Meridax neu, damit er vom Server geladen werden kann.</source>
        <translation>Este texto legal aún no está disponible en este equipo. Conéctate una vez a Internet y reinicia Meridax para que se pueda descargar del servidor.</translation>
    </message>
</context>
<context>
    <name>LineStyleRow</name>
    <message>
        <source>Stil</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Durchgehend</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Gestrichelt</source>
        <translation>Discontinua</translation>
    </message>
    <message>
        <source>Gepunktet</source>
        <translation>De puntos</translation>
    </message>
    <message>
        <source>Strich-Punkt</source>
        <translation>Raya y punto</translation>
    </message>
</context>
<context>
    <name>LockButton</name>
    <message>
        <source>Zentrum gesperrt – klicken zum Entsperren</source>
        <translation>Centro bloqueado: haz clic para desbloquearlo</translation>
    </message>
    <message>
        <source>Zentrum entsperrt – klicken zum Sperren</source>
        <translation>Centro desbloqueado: haz clic para bloquearlo</translation>
    </message>
</context>
<context>
    <name>LogOption</name>
    <message>
        <source>Aktuelles Log mitschicken (anonymisiert)</source>
        <translation>Adjuntar el registro actual (anonimizado)</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>LogPreviewDialog</name>
    <message>
        <source>Log-Vorschau (so geht es an den Server)</source>
        <translation>Vista previa del registro (tal como se envía al servidor)</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Messung verworfen: andere Kamera oder Auflösung gewählt</source>
        <translation>Medición descartada: se eligió otra cámara o resolución</translation>
    </message>
</context>
<context>
    <name>MeasureButton</name>
    <message>
        <source>Messe… %1 / %2</source>
        <translation>Midiendo… %1 / %2</translation>
    </message>
    <message>
        <source>Position messen</source>
        <translation>Medir posición</translation>
    </message>
</context>
<context>
    <name>MeasurementTable</name>
    <message>
        <source>Schritt</source>
        <translation>Paso</translation>
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
        <translation>Marcas de medida</translation>
    </message>
</context>
<context>
    <name>OverlaySettingsPane</name>
    <message>
        <source>Kreis %1</source>
        <translation>Círculo %1</translation>
    </message>
    <message>
        <source>Farbe: %1</source>
        <translation>Color: %1</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <source>Messkreise</source>
        <translation>Círculos de medida</translation>
    </message>
    <message>
        <source>Fadenkreuz</source>
        <translation>Retículo</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Lines (3)</source>
        <translation>Líneas (3)</translation>
    </message>
    <message>
        <source>Kreuz (4)</source>
        <translation>Cruz (4)</translation>
    </message>
</context>
<context>
    <name>PanelHandle</name>
    <message>
        <source>ausgeklappt</source>
        <translation>desplegado</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>plegado</translation>
    </message>
</context>
<context>
    <name>ProfileSettings</name>
    <message>
        <source>Kamera-Profil</source>
        <translation>Perfil de cámara</translation>
    </message>
    <message>
        <source>Keine Kamera ausgewählt</source>
        <translation>Ninguna cámara seleccionada</translation>
    </message>
    <message>
        <source>Kameraeinstellungen wiederherstellen</source>
        <translation>Restaurar ajustes de cámara</translation>
    </message>
    <message>
        <source>Kalibrierung wiederherstellen</source>
        <translation>Restaurar calibración</translation>
    </message>
    <message>
        <source>Gespeicherte Bildmitte:</source>
        <translation>Centro de la imagen guardado:</translation>
    </message>
    <message>
        <source>noch nicht gespeichert</source>
        <translation>aún sin guardar</translation>
    </message>
    <message>
        <source>Profil aktualisieren</source>
        <translation>Actualizar perfil</translation>
    </message>
    <message>
        <source>Profil speichern</source>
        <translation>Guardar perfil</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>QualityStrip</name>
    <message>
        <source>exzellent</source>
        <translation>excelente</translation>
    </message>
    <message>
        <source>gut</source>
        <translation>bueno</translation>
    </message>
    <message>
        <source>brauchbar</source>
        <translation>aceptable</translation>
    </message>
    <message>
        <source>ungenau</source>
        <translation>impreciso</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>ovalado</translation>
    </message>
    <message>
        <source>Dreikant</source>
        <translation>trilobulado</translation>
    </message>
    <message>
        <source>Vierkant</source>
        <translation>tetralobulado</translation>
    </message>
    <message>
        <source>%1-Kant</source>
        <translation>%1 lóbulos</translation>
    </message>
    <message>
        <source>Die Bahn ist oval (2. Ordnung). Typische Ursachen: gekippte Rotationsachse oder unrunde Passung.</source>
        <translation>La trayectoria es ovalada (orden 2). Causas típicas: eje de rotación inclinado o encaje no redondo.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Dreikant (3. Ordnung) — die klassische Signatur eines Bauteils, das im Dreibacken-Futter gespannt und gedreht wurde.</source>
        <translation>La trayectoria es trilobulada (orden 3): la huella clásica de una pieza torneada en un plato de tres garras.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen Vierkant (4. Ordnung) — typisch für ein Vierbacken-Futter oder eine geschlitzte Spannzange.</source>
        <translation>La trayectoria es tetralobulada (orden 4): típica de un plato de cuatro garras o de una pinza ranurada.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt einen %1-Kant (%1. Ordnung) — meist von der Spannvorrichtung, etwa einer Spannzange mit %1 Schlitzen.</source>
        <translation>La trayectoria presenta %1 lóbulos (orden %1): suelen deberse al sistema de sujeción, por ejemplo una pinza con %1 ranuras.</translation>
    </message>
    <message>
        <source>Die Bahn zeigt eine Welligkeit %1. Ordnung — bei so hohen Ordnungen meist Rattermarken aus der Bearbeitung.</source>
        <translation>La trayectoria presenta una ondulación de orden %1; con órdenes tan altos suelen ser marcas de vibración del mecanizado.</translation>
    </message>
    <message>
        <source>Mit weniger als fünf Messpunkten lässt sich die Genauigkeit nicht beziffern: Formabweichungen sind nicht von Messrauschen zu trennen und verschieben den Mittelpunkt unbemerkt. Das Zentrum ist als Näherung verwendbar.</source>
        <translation>Con menos de cinco puntos de medida no se puede cuantificar la precisión: las desviaciones de forma no se distinguen del ruido de medida y desplazan el centro sin que se note. El centro sirve como aproximación.</translation>
    </message>
    <message>
        <source>Die Messpunkte decken den Umlauf nicht gleichmäßig ab — bitte über den vollen Kreis verteilen. Formfehler mitteln sich sonst nicht heraus.</source>
        <translation>Los puntos de medida no cubren la vuelta de manera uniforme: repártelos por todo el círculo. De lo contrario, los errores de forma no se compensan al promediar.</translation>
    </message>
    <message>
        <source>Die Streuung ist zufällig verteilt — mehr Frames pro Position oder mehr Messpunkte verbessern das Ergebnis.</source>
        <translation>La dispersión es aleatoria: con más imágenes por posición o más puntos de medida mejora el resultado.</translation>
    </message>
    <message>
        <source>Das ist Form, kein Messfehler: neu messen ändert daran nichts, und der Mittelpunkt bleibt davon unberührt.</source>
        <translation>Se trata de la forma, no de un error de medida: volver a medir no cambia nada y el centro no se ve afectado.</translation>
    </message>
    <message>
        <source>Messgüte</source>
        <translation>Calidad de medida</translation>
    </message>
    <message>
        <source>Zentrum ±</source>
        <translation>Centro ±</translation>
    </message>
    <message>
        <source>n. def.</source>
        <translation>n. def.</translation>
    </message>
    <message>
        <source>Winkelabdeckung</source>
        <translation>Cobertura angular</translation>
    </message>
    <message>
        <source>größte Lücke %1°</source>
        <translation>hueco máx. %1°</translation>
    </message>
    <message>
        <source>Rundheit</source>
        <translation>Redondez</translation>
    </message>
</context>
<context>
    <name>ReadingDialog</name>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>ResidualPlot</name>
    <message>
        <source>Detailauswertung</source>
        <translation>Análisis detallado</translation>
    </message>
    <message>
        <source>Rot markierte Punkte liegen außerhalb der festen Skala — für die vollständige Ansicht auf Auto umschalten.</source>
        <translation>Los puntos marcados en rojo quedan fuera de la escala fija: cambia a Auto para verlos todos.</translation>
    </message>
</context>
<context>
    <name>RightOverlayPanel</name>
    <message>
        <source>Einblendungen</source>
        <translation>Superposiciones</translation>
    </message>
</context>
<context>
    <name>RoundnessDiagram</name>
    <message>
        <source>Rundheit der Bahn</source>
        <translation>Redondez de la trayectoria</translation>
    </message>
    <message>
        <source>Skala</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Auto (±%1 px)</source>
        <translation>Auto (±%1 px)</translation>
    </message>
    <message>
        <source>fest ±%1 px</source>
        <translation>fija ±%1 px</translation>
    </message>
    <message>
        <source>Sollkreis</source>
        <translation>Círculo teórico</translation>
    </message>
    <message>
        <source>Messpunkte</source>
        <translation>Puntos de medida</translation>
    </message>
    <message>
        <source>Messunsicherheit ±%1 px</source>
        <translation>Incertidumbre de medida ±%1 px</translation>
    </message>
    <message>
        <source>Messunsicherheit n. def.</source>
        <translation>Incertidumbre de medida n. def.</translation>
    </message>
    <message>
        <source>Mittelpunkt</source>
        <translation>Centro</translation>
    </message>
</context>
<context>
    <name>ScreenshotButton</name>
    <message>
        <source>Screenshot — Zielordner erst in den Einstellungen wählen</source>
        <translation>Captura: elige antes la carpeta de destino en los ajustes</translation>
    </message>
    <message>
        <source>Screenshot mit Markierungen speichern
%1</source>
        <translation>Guardar captura con marcas
%1</translation>
    </message>
    <message>
        <source>Screenshot ohne Markierungen speichern
%1</source>
        <translation>Guardar captura sin marcas
%1</translation>
    </message>
    <message>
        <source>Screenshot: zuerst in den Einstellungen einen Ordner wählen</source>
        <translation>Captura: elige antes una carpeta en los ajustes</translation>
    </message>
    <message>
        <source>Screenshot fehlgeschlagen — siehe Log</source>
        <translation>Error al hacer la captura: consulta el registro</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Screenshot gespeichert</source>
        <translation>Captura guardada</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderDialog</name>
    <message>
        <source>Screenshot-Ordner wählen</source>
        <translation>Elegir carpeta de capturas</translation>
    </message>
</context>
<context>
    <name>ScreenshotPicker</name>
    <message>
        <source>Datei konnte nicht geladen werden.</source>
        <translation>No se ha podido cargar el archivo.</translation>
    </message>
    <message>
        <source>Screenshot (optional, max. 5 MB, PNG/JPEG)</source>
        <translation>Captura de pantalla (opcional, máx. 5 MB, PNG/JPEG)</translation>
    </message>
    <message>
        <source>Datei auswählen…</source>
        <translation>Elegir archivo…</translation>
    </message>
    <message>
        <source>Anderen Screenshot wählen</source>
        <translation>Elegir otra captura</translation>
    </message>
    <message>
        <source>Entfernen</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Screenshot auswählen</source>
        <translation>Elegir captura</translation>
    </message>
    <message>
        <source>Bilder (*.png *.jpg *.jpeg)</source>
        <translation>Imágenes (*.png *.jpg *.jpeg)</translation>
    </message>
</context>
<context>
    <name>ScreenshotSettings</name>
    <message>
        <source>Screenshots</source>
        <translation>Capturas de pantalla</translation>
    </message>
    <message>
        <source>Zielordner</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>Nicht festgelegt</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Ordner wählen…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Markierungen einschließen</source>
        <translation>Incluir marcas</translation>
    </message>
    <message>
        <source>Fadenkreuz und Messkreise im Screenshot mit aufnehmen.</source>
        <translation>Incluir el retículo y los círculos de medida en la captura.</translation>
    </message>
    <message>
        <source>Fokus-Presets</source>
        <translation>Preajustes de enfoque</translation>
    </message>
    <message>
        <source>Markierungen mit speichern</source>
        <translation>Guardar también las marcas</translation>
    </message>
    <message>
        <source>Beim Anlegen eines Fokus-Preset werden Kreise und Fadenkreuz mit gespeichert
und beim Anfahren wiederhergestellt. Aus = nur Fokuswert wird angefahren.</source>
        <translation>Al crear un preajuste de enfoque se guardan también los círculos y el retículo,
y se restauran al aplicarlo. Desactivado = solo se aplica el valor de enfoque.</translation>
    </message>
    <message>
        <source>Fokuswert mit anzeigen</source>
        <translation>Mostrar valor de enfoque</translation>
    </message>
    <message>
        <source>Im Overlay-Chip wird der gespeicherte Fokuswert (f=NNN) eingeblendet.</source>
        <translation>El botón del preajuste sobre la imagen muestra el valor de enfoque guardado (f=NNN).</translation>
    </message>
</context>
<context>
    <name>SectionChevron</name>
    <message>
        <source>ausgeklappt</source>
        <translation>desplegado</translation>
    </message>
    <message>
        <source>eingeklappt</source>
        <translation>plegado</translation>
    </message>
</context>
<context>
    <name>ServerError</name>
    <message>
        <source>Zu viele Anfragen — bitte versuche es später erneut.</source>
        <translation>Demasiadas solicitudes: vuelve a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Maximal 10 Bug-Reports pro 24h. Bitte später erneut.</source>
        <translation>Máximo 10 informes de error cada 24 h. Vuelve a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Max. 5 Feature-Vorschläge pro 24h. Bitte später erneut.</source>
        <translation>Máx. 5 propuestas de función cada 24 h. Vuelve a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Du hast in den letzten 24h schon Feedback gesendet — danke! Bitte etwas warten.</source>
        <translation>Ya has enviado tu opinión en las últimas 24 h. ¡Gracias! Espera un poco.</translation>
    </message>
    <message>
        <source>Titel ist ungültig (max. 200 Zeichen).</source>
        <translation>El título no es válido (máx. 200 caracteres).</translation>
    </message>
    <message>
        <source>Beschreibung ist ungültig (max. 8000 Zeichen).</source>
        <translation>La descripción no es válida (máx. 8000 caracteres).</translation>
    </message>
    <message>
        <source>Bewertung muss zwischen 1 und 5 liegen.</source>
        <translation>La valoración debe estar entre 1 y 5.</translation>
    </message>
    <message>
        <source>Kommentar zu lang (max. 4000 Zeichen).</source>
        <translation>Comentario demasiado largo (máx. 4000 caracteres).</translation>
    </message>
    <message>
        <source>Screenshot zu groß (max. 5 MB).</source>
        <translation>Captura demasiado grande (máx. 5 MB).</translation>
    </message>
    <message>
        <source>Nur PNG / JPEG erlaubt.</source>
        <translation>Solo se admite PNG / JPEG.</translation>
    </message>
    <message>
        <source>Screenshot konnte nicht gelesen werden.</source>
        <translation>No se ha podido leer la captura.</translation>
    </message>
    <message>
        <source>Server nicht erreichbar. Bitte später erneut versuchen.</source>
        <translation>No se puede conectar con el servidor. Vuelve a intentarlo más tarde.</translation>
    </message>
</context>
<context>
    <name>SettingsHeader</name>
    <message>
        <source>Einstellungen</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Online-Dokumentation im Browser öffnen</source>
        <translation>Abrir la documentación en línea en el navegador</translation>
    </message>
    <message>
        <source>Über Meridax — Build-Info anzeigen</source>
        <translation>Acerca de Meridax: ver datos de compilación</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>SettingsLink</name>
    <message>
        <source>Einstellungen</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>SliderValueDisplay</name>
    <message>
        <source>Doppelklick zum Bearbeiten</source>
        <translation>Doble clic para editar</translation>
    </message>
    <message>
        <source>Doppelklick: manuellen Wert eingeben</source>
        <translation>Doble clic: introducir un valor manual</translation>
    </message>
    <message>
        <source>Auto-Modus aktiv — Slider bewegen für manuellen Wert</source>
        <translation>Modo automático activo: mueve el deslizador para fijar un valor manual</translation>
    </message>
</context>
<context>
    <name>SliderValueEditor</name>
    <message>
        <source>Bereich %1 – %2  ·  Punkt (.) als Dezimaltrennzeichen</source>
        <translation>Intervalo %1 – %2  ·  Punto (.) como separador decimal</translation>
    </message>
    <message>
        <source>Komma → Punkt umgewandelt</source>
        <translation>Convertido: coma → punto</translation>
    </message>
</context>
<context>
    <name>StarRow</name>
    <message>
        <source>Sehr unzufrieden</source>
        <translation>Muy malo</translation>
    </message>
    <message>
        <source>Unzufrieden</source>
        <translation>Malo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptable</translation>
    </message>
    <message>
        <source>Gut</source>
        <translation>Bueno</translation>
    </message>
    <message>
        <source>Begeistert</source>
        <translation>Excelente</translation>
    </message>
</context>
<context>
    <name>SubmissionFooter</name>
    <message>
        <source>Wird gesendet…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Senden</source>
        <translation>Enviar</translation>
    </message>
</context>
<context>
    <name>SupportSettings</name>
    <message>
        <source>Support &amp; Feedback</source>
        <translation>Soporte y opiniones</translation>
    </message>
    <message>
        <source>BETA-TESTER</source>
        <translation>BETA TESTER</translation>
    </message>
    <message>
        <source>Du bist als Beta-Tester freigeschaltet — danke fürs Testen!</source>
        <translation>Tienes acceso como beta tester. ¡Gracias por probar el programa!</translation>
    </message>
    <message>
        <source>Probleme? Feedback? Wir hören zu — schick uns einen Bug-Report.</source>
        <translation>¿Problemas? ¿Comentarios? Te escuchamos: envíanos un informe de error.</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1 (Beta).</source>
        <translation>Versión instalada actualmente: %1 (beta).</translation>
    </message>
    <message>
        <source>Aktuell installierte Version: %1.</source>
        <translation>Versión instalada actualmente: %1.</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Bug-Reports sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Los informes de error están desactivados temporalmente en el servidor.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Propuesta</translation>
    </message>
    <message>
        <source>Feature-Vorschläge sind serverseitig vorübergehend deaktiviert.</source>
        <translation>Las propuestas de función están desactivadas temporalmente en el servidor.</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Opinión</translation>
    </message>
</context>
<context>
    <name>SweepIndicator</name>
    <message>
        <source>Fokussiere…</source>
        <translation>Enfocando…</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Kamera verbunden</source>
        <translation>Cámara conectada</translation>
    </message>
    <message>
        <source>Kamera nicht verbunden</source>
        <translation>Cámara no conectada</translation>
    </message>
    <message>
        <source>Kalibriert</source>
        <translation>Calibrada</translation>
    </message>
    <message>
        <source>Nicht kalibriert</source>
        <translation>Sin calibrar</translation>
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
        <translation>Parar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>UpdateBanner</name>
    <message>
        <source>Update verfügbar: %1</source>
        <translation>Actualización disponible: %1</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Auf Stable wechseln</source>
        <translation>Pasar a la estable</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>Was ist neu in Version %1?</source>
        <translation>Novedades de la versión %1</translation>
    </message>
    <message>
        <source>Was ist neu?</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Keine Release-Notes verfügbar.</source>
        <translation>No hay notas de la versión disponibles.</translation>
    </message>
    <message>
        <source>Herunterladen</source>
        <translation>Descargar</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Verkleinern</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Vergrößern</source>
        <translation>Ampliar</translation>
    </message>
</context>
<context>
    <name>meridax::CameraController</name>
    <message>
        <source>Kamerafehler – bitte Gerät und Verbindung prüfen.</source>
        <translation>Error de cámara: comprueba el dispositivo y la conexión.</translation>
    </message>
    <message>
        <source>Kalibrierungszentrum konnte nicht berechnet werden.</source>
        <translation>No se ha podido calcular el centro de calibración.</translation>
    </message>
    <message>
        <source>Kamera antwortet nicht</source>
        <translation>La cámara no responde</translation>
    </message>
    <message>
        <source>Kamera liefert kein Bild</source>
        <translation>La cámara no envía imagen</translation>
    </message>
    <message>
        <source>Kamera startet…</source>
        <translation>Iniciando la cámara…</translation>
    </message>
</context>
<context>
    <name>meridax::CameraViewModel</name>
    <message>
        <source>Rechtstexte konnten nicht geladen werden. Bitte erneut versuchen.</source>
        <translation>No se han podido cargar los textos legales. Vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Preajuste %1</translation>
    </message>
</context>
</TS>
