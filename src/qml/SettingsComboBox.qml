pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Material

/// A combo box in the compact size of the panels.
ComboBox {
    id: root

    implicitHeight: 32
    topInset: 0
    bottomInset: 0
    font.pixelSize: 12

    Accessible.role: Accessible.ComboBox
    Accessible.name: displayText

    delegate: MenuItem {
        required property int index

        width: ListView.view.width
        height: 32
        text: root.textAt(index)
        font: root.font
        highlighted: root.highlightedIndex === index
        Material.foreground: root.currentIndex === index ? root.Material.accent
                                                         : root.Material.foreground
    }
}
