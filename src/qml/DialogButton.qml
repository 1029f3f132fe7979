import QtQuick
import QtQuick.Controls.Material

/// A button in the button row of a dialog.
Button {
    id: root

    flat: true

    Accessible.role: Accessible.Button
    Accessible.name: text

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    FocusFrame {
        anchors {
            topMargin: root.topInset - 2
            bottomMargin: root.bottomInset - 2
        }
        radius: height / 2
        visible: root.visualFocus
    }
}
