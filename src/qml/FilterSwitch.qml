import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A labelled switch with its explanation. `checked` is set from outside; a user's change goes out by
/// `chosen` alone.
RowLayout {
    id: root

    required property string label
    required property string tooltipText
    required property bool checked

    signal chosen(checked: bool)

    spacing: 5

    Switch {
        id: control
        objectName: "switch"
        implicitHeight: 32
        leftPadding: 0
        rightPadding: 0
        topPadding: 0
        bottomPadding: 0
        text: root.label
        font.pixelSize: 12
        Material.accent: "#4A9ECA"
        Material.foreground: Theme.rowLabelEnabled

        Accessible.role: Accessible.CheckBox
        Accessible.name: root.label
        Accessible.description: root.tooltipText
        Accessible.checked: control.checked

        Keys.onReturnPressed: click()
        Keys.onEnterPressed: click()
        onToggled: root.chosen(control.checked)

        Binding on checked {
            value: root.checked
            restoreMode: Binding.RestoreNone
        }
    }

    InfoTooltip {
        text: root.tooltipText
    }

    Item {
        Layout.fillWidth: true
    }
}
