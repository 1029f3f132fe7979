pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Material

/// A combo box in the compact size of the panels.
ComboBox {
    id: root

    /// What is chosen here, for assistive technology.
    property string name

    implicitHeight: 32
    topInset: 0
    bottomInset: 0
    font.pixelSize: 12

    Accessible.role: Accessible.ComboBox
    Accessible.name: name === "" ? displayText : "%1: %2".arg(name).arg(displayText)
    Accessible.onPressAction: {
        if (popup.visible)
            popup.close();
        else if (enabled)
            popup.open();
    }

    // The box tells its text itself.
    Component.onCompleted: contentItem.Accessible.ignored = true
    onHighlightedIndexChanged: {
        if (popup.visible && highlightedIndex >= 0)
            Accessible.announce(textAt(highlightedIndex));
    }

    delegate: MenuItem {
        id: entry

        required property int index

        width: ListView.view.width
        height: 32
        text: root.textAt(index)
        font: root.font
        highlighted: root.highlightedIndex === index
        Material.foreground: root.currentIndex === index ? root.Material.accent
                                                         : root.Material.foreground

        // The style's own would take an "&" in the name of a device for a mark, and a tag for one.
        contentItem: Label {
            text: entry.text
            textFormat: Text.PlainText
            font: entry.font
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }

        Accessible.role: Accessible.MenuItem
        Accessible.name: text
        Accessible.onPressAction: click()
    }
}
