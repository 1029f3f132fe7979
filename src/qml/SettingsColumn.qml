import QtQuick
import QtQuick.Layouts

/// One of the equally wide columns of the settings panel.
ColumnLayout {
    readonly property int labelSize: 11
    readonly property int valueSize: 13
    readonly property int rowSpacing: 6

    spacing: rowSpacing
    Layout.fillWidth: true
    Layout.preferredWidth: 1
    Layout.alignment: Qt.AlignTop
}
