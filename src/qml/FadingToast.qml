import QtQuick
import QtQuick.Controls

/// A short message that comes and goes by itself.
Rectangle {
    id: root

    property alias text: label.text
    property alias textColor: label.color
    property alias font: label.font
    property int horizontalPadding: 10
    property int verticalPadding: 6
    /// ms
    property int fadeIn: 150
    property int hold: 2200
    property int fadeOut: 400

    function show(message: string) {
        text = message;
        animation.restart();
        Accessible.announce(message, Accessible.Assertive);
    }

    implicitWidth: Math.ceil(label.implicitWidth) + 2 * horizontalPadding
    implicitHeight: Math.ceil(label.implicitHeight) + 2 * verticalPadding
    radius: 6
    opacity: 0
    visible: opacity > 0

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Label {
        id: label

        anchors.centerIn: parent
        width: root.width - 2 * root.horizontalPadding
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        font.pixelSize: 12
        Accessible.ignored: true
    }

    SequentialAnimation {
        id: animation

        NumberAnimation {
            target: root
            property: "opacity"
            to: 1
            duration: root.fadeIn
        }
        PauseAnimation { duration: root.hold }
        NumberAnimation {
            target: root
            property: "opacity"
            to: 0
            duration: root.fadeOut
        }
    }
}
