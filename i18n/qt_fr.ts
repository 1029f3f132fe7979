<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<!-- What Qt itself shows and has no translation for in this language. -->
<context>
    <name>ColorDialog</name>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Overwrite file?</source>
        <translation>Remplacer le fichier ?</translation>
    </message>
    <message>
        <source>“%1” already exists.
Do you want to replace it?</source>
        <translation>« %1 » existe déjà.
Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
</context>
</TS>
