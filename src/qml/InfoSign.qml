import QtQuick
import QtQuick.Controls.Material

/// A circled "i". Drawn, since not every font has the character.
Rectangle {
    id: root

    required property color signColor
    property int size: 16

    implicitWidth: size
    implicitHeight: size
    radius: size / 2
    color: "transparent"
    border.width: 1
    border.color: signColor

    Label {
        anchors.centerIn: parent
        text: "i"
        font {
            pixelSize: Math.round(root.size * 0.7)
            bold: true
        }
        color: root.signColor
        Accessible.ignored: true
    }
}
