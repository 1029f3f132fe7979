import QtQuick
import QtQuick.Controls.Material
import Meridax

/// A button without a ground, in the compact shape of the panels and dialogs.
Button {
    id: root

    implicitHeight: 36
    topInset: 0
    bottomInset: 0
    verticalPadding: 4
    font.pixelSize: 13
    flat: true
    Material.foreground: Theme.text
    Material.roundedScale: Material.ExtraSmallScale

    Accessible.role: Accessible.Button
    Accessible.name: text

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    FocusFrame {
        visible: root.visualFocus
    }
}
