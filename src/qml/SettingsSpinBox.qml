import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A labelled whole number. `value` is set from outside; a user's change goes out by
/// `valueModified` alone.
RowLayout {
    id: root

    property string label
    property int from: 0
    property int to: 100
    property int value: 0

    signal valueModified(newValue: int)

    spacing: 8

    Label {
        Layout.fillWidth: true
        text: root.label
        font.pixelSize: 12
        elide: Text.ElideRight
        color: root.enabled ? Theme.spinboxLabel : Theme.spinboxLabelDis
    }

    CompactSpinBox {
        objectName: "spinBox"
        from: root.from
        to: root.to
        shownValue: root.value
        Accessible.name: root.label
        onChosen: newValue => root.valueModified(newValue)
    }
}
