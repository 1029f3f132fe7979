import QtQuick
import QtQuick.Controls

/// "−" or "+" beside the zoom slider.
AbstractButton {
    id: button

    implicitWidth: 24
    implicitHeight: 24
    autoRepeat: true

    Accessible.role: Accessible.Button

    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    contentItem: Label {
        text: button.text
        font.pixelSize: 16
        color: "#FFFFFF"
        // The ground lets the picture through, which may be bright.
        style: Text.Outline
        styleColor: Qt.rgba(0, 0, 0, 0.5)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: width / 2
        color: "transparent"

        FocusFrame {
            radius: height / 2
            visible: button.visualFocus
        }
    }
}
