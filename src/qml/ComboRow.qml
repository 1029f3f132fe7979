import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A labelled choice. `selectedIndex` is set from outside; a user's choice goes out by `chosen`
/// alone.
RowLayout {
    id: root

    required property string label
    required property list<string> model
    required property int selectedIndex

    signal chosen(index: int)

    spacing: 8

    Label {
        Layout.preferredWidth: 100
        text: root.label
        font.pixelSize: 12
        elide: Text.ElideRight
        color: root.enabled ? Theme.rowLabelEnabled : Theme.rowLabel
        Accessible.ignored: true
    }

    SelectionComboBox {
        objectName: "combo"
        Layout.fillWidth: true
        model: root.model
        selectedIndex: root.selectedIndex
        name: root.label
        onActivated: index => root.chosen(index)
    }
}
