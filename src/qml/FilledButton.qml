import QtQuick
import QtQuick.Controls.Material
import "contrast.mjs" as Contrast

/// A button in a colour of its own, `Material.background`, in the compact shape of the panels. Its
/// text is black or white, whichever reads better there.
Button {
    id: root

    implicitHeight: 40
    topInset: 0
    bottomInset: 0
    verticalPadding: 4
    Material.foreground: Contrast.textOn(Material.background)
    Material.roundedScale: Material.ExtraSmallScale

    Accessible.role: Accessible.Button
    Accessible.name: text

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    FocusFrame {
        visible: root.visualFocus
    }
}
