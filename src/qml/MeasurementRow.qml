import QtQuick
import QtQuick.Controls.Material

/// A row of the table of measured points.
Row {
    id: root

    required property string stepText
    required property string xText
    required property string yText
    required property color stepColor
    required property color valueColor

    height: 22

    Accessible.role: Accessible.Row
    Accessible.name: [stepText, xText, yText].join(", ")

    Label {
        width: 70
        height: parent.height
        text: root.stepText
        font.pixelSize: 12
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
        color: root.stepColor
    }

    Label {
        width: 100
        height: parent.height
        text: root.xText
        font.pixelSize: 12
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
        color: root.valueColor
    }

    Label {
        width: 100
        height: parent.height
        text: root.yText
        font.pixelSize: 12
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
        color: root.valueColor
    }
}
