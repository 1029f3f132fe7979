/// Choice of a line style; the index is its number.
ComboRow {
    label: qsTr("Stil")
    model: [qsTr("Durchgehend"), qsTr("Gestrichelt"), qsTr("Gepunktet"), qsTr("Strich-Punkt")]
}
