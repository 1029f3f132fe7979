import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts

/// A way to reach the support. While the server has paused it, it stays in its place, greyed, and
/// tells why.
Item {
    id: root

    required property string text
    required property color color
    property bool available: true
    property string pausedHint

    signal clicked()

    implicitWidth: 160
    implicitHeight: button.implicitHeight
    opacity: available ? 1 : 0.5
    Layout.fillWidth: true
    Layout.maximumWidth: 160

    FilledButton {
        id: button

        objectName: "button"
        anchors.fill: parent
        text: root.text
        enabled: root.available
        Material.background: root.color
        Material.foreground: "white"
        Accessible.description: root.available ? "" : root.pausedHint
        onClicked: root.clicked()
    }

    // The style would paint over it in the colour of everything that is disabled.
    Rectangle {
        anchors.fill: parent
        visible: !root.available
        radius: 4
        color: root.color

        Label {
            anchors.centerIn: parent
            text: root.text
            font: button.font
            color: "white"
            Accessible.ignored: true
        }
    }

    // On the item around it: a button that is disabled is not told of the pointer.
    HoverHandler {
        id: hover
    }

    HelpTip {
        objectName: "pausedTip"
        wanted: hover.hovered && !root.available
        text: root.pausedHint
    }
}
