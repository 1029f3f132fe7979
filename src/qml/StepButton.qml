import QtQuick
import QtQuick.Controls.Material

/// Round flat button that steps a value and repeats while held.
RoundButton {
    id: root

    implicitWidth: 40
    implicitHeight: 40
    topInset: 0
    bottomInset: 0
    leftInset: 0
    rightInset: 0
    padding: 0
    flat: true
    font.pixelSize: 17
    autoRepeat: true
    autoRepeatDelay: 600
    autoRepeatInterval: 80

    Accessible.role: Accessible.Button
    Accessible.onPressAction: click()

    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    FocusFrame {
        radius: height / 2
        anchors.margins: 2
        visible: root.visualFocus
    }
}
