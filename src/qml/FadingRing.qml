import QtQuick

/// A ring that flashes up and fades.
Rectangle {
    id: root

    property int duration: 750

    function flash() {
        fade.restart();
    }

    height: width
    radius: width / 2
    color: "transparent"
    border.color: "#37D067"
    opacity: 0
    visible: opacity > 0

    NumberAnimation {
        id: fade

        target: root
        property: "opacity"
        from: 1
        to: 0
        duration: root.duration
        easing.type: Easing.OutQuad
    }
}
