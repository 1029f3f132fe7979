import QtQuick
import QtQuick.Effects
import Meridax

/// The maker's logo in the colour of the theme; nothing until it has been read.
MultiEffect {
    id: root

    required property real logoHeight

    visible: picture.status === Image.Ready
    source: picture
    colorization: 1
    colorizationColor: Theme.logoColor
    implicitWidth: picture.implicitWidth / 2
    implicitHeight: logoHeight

    Image {
        id: picture

        source: "qrc:/resources/to_logo.png"
        // Twice as high as shown, for screens of a higher density.
        sourceSize.height: root.logoHeight * 2
        visible: false
        Accessible.ignored: true
    }
}
