import QtQuick
import QtQuick.Controls.Material

/// Round flat button that steps a value and repeats while held.
RoundButton {
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
    Accessible.onPressAction: clicked()
}
