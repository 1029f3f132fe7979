import QtQuick
import QtQuick.Controls.Material

/// A switch in the compact size of the panels. `shownChecked` is set from outside; a user's change
/// goes out by `chosen` alone.
Switch {
    id: root

    property bool shownChecked: false

    signal chosen(checked: bool)

    implicitHeight: 32
    leftPadding: 0
    rightPadding: 0
    topPadding: 0
    bottomPadding: 0
    font.pixelSize: 12
    Material.accent: "#4A9ECA"

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checked: checked
    // By themselves they would change the mark and tell nobody.
    Accessible.onPressAction: click()
    Accessible.onToggleAction: click()

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()
    onToggled: chosen(checked)

    FocusFrame {
        visible: root.visualFocus
    }

    Binding {
        target: root
        property: "checked"
        value: root.shownChecked
        restoreMode: Binding.RestoreNone
    }
}
