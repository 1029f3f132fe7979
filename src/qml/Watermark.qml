import QtQuick
import QtQuick.Effects
import Meridax

/// The logo pressed into the ground while no camera runs: a shadow below right, a light above left.
Item {
    id: watermark

    implicitWidth: 256
    implicitHeight: 256

    Image {
        id: logo

        anchors.fill: parent
        source: "qrc:/resources/logo.svg"
        sourceSize: Qt.size(width, height)
        visible: false
    }

    MultiEffect {
        x: 1
        y: 1
        width: parent.width
        height: parent.height
        source: logo
        colorization: 1
        colorizationColor: Theme.dark ? "#111111" : "#C8C8C8"
        opacity: 0.30
    }

    MultiEffect {
        x: -1
        y: -1
        width: parent.width
        height: parent.height
        source: logo
        colorization: 1
        colorizationColor: Theme.dark ? "#4A4A4A" : "#FAFAFA"
        opacity: 0.18
    }
}
