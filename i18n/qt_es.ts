<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<!-- What Qt itself shows and has no translation for in this language. -->
<context>
    <name>ColorDialog</name>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Overwrite file?</source>
        <translation>¿Sobrescribir el archivo?</translation>
    </message>
    <message>
        <source>“%1” already exists.
Do you want to replace it?</source>
        <translation>«%1» ya existe.
¿Quieres reemplazarlo?</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
</context>
</TS>
