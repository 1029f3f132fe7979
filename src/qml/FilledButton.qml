import QtQuick
import QtQuick.Controls.Material

/// A button in a colour of its own, `Material.background`, in the compact shape of the panels.
Button {
    id: root

    implicitHeight: 40
    topInset: 0
    bottomInset: 0
    verticalPadding: 4
    Material.foreground: "white"
    Material.roundedScale: Material.ExtraSmallScale

    Accessible.role: Accessible.Button
    Accessible.name: text

    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    FocusFrame {
        visible: root.visualFocus
    }
}
