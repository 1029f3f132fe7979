import QtQuick
import QtQuick.Controls.Material

/// Green pill in place of a number: an automatic mode is on.
Rectangle {
    id: root

    required property string text
    required property string toolTip

    signal doubleClicked()

    implicitWidth: label.implicitWidth + 16
    implicitHeight: label.implicitHeight + 4
    radius: height / 2
    color: "#4CAF50"

    Label {
        id: label
        anchors.centerIn: parent
        text: root.text
        font.pixelSize: 11
        font.bold: true
        color: "white"
        Accessible.ignored: true
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        onDoubleClicked: root.doubleClicked()
    }

    HelpTip {
        wanted: mouse.containsMouse
        text: root.toolTip
    }
}
