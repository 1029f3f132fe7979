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

    CompactSwitch {
        objectName: "switch"
        text: root.label
        shownChecked: root.checked
        Material.foreground: Theme.rowLabelEnabled
        Accessible.description: root.tooltipText
        onChosen: checked => root.chosen(checked)
    }

    InfoTooltip {
        text: root.tooltipText
    }

    Item {
        Layout.fillWidth: true
    }
}
