import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A number of the calibration with its explanation; children stand before the spin box.
RowLayout {
    id: root

    required property string label
    required property string tooltipText
    required property int from
    required property int to
    required property int value
    default property alias extras: extraRow.data

    signal valueModified(newValue: int)

    spacing: 6

    Label {
        text: root.label
        font.pixelSize: 12
        color: Theme.rowLabel
    }

    InfoTooltip {
        text: root.tooltipText
    }

    RowLayout {
        id: extraRow
    }

    Item {
        Layout.fillWidth: true
    }

    CompactSpinBox {
        objectName: "spinBox"
        from: root.from
        to: root.to
        shownValue: root.value
        Accessible.name: root.label
        Accessible.description: root.tooltipText
        onChosen: newValue => root.valueModified(newValue)
    }
}
