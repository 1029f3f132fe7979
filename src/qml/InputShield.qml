import QtQuick

/// Keeps clicks and hovering on what lies over the picture from reaching the marks underneath.
MouseArea {
    anchors.fill: parent
    hoverEnabled: true
    acceptedButtons: Qt.AllButtons
}
