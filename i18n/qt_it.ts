<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<!-- What Qt itself shows and has no translation for in this language. -->
<context>
    <name>ColorDialog</name>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Overwrite file?</source>
        <translation>Sovrascrivere il file?</translation>
    </message>
    <message>
        <source>“%1” already exists.
Do you want to replace it?</source>
        <translation>“%1” esiste già.
Vuoi sostituirlo?</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
</context>
</TS>
