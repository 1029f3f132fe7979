import QtQuick
import QtQuick.Controls.Material

/// A tab of a side panel. Its width is the tab bar's affair: a width of its own would be a binding
/// loop.
TabButton {
    id: root

    // Among the tabs the arrow keys lead.
    focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.focusable: checked
    Accessible.selectable: true
    Accessible.selected: checked
    Accessible.onPressAction: click()

    FocusFrame {
        anchors.margins: 2
        visible: root.visualFocus
    }
}
