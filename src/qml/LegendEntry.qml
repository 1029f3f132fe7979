pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Material
import Meridax

/// Symbol and meaning of one mark of a diagram.
Row {
    id: root

    enum Symbol { Line, Dot, Cross }

    required property int symbol
    required property color symbolColor
    required property string text

    spacing: 5

    Item {
        anchors.verticalCenter: parent.verticalCenter
        width: 12
        height: 9

        Rectangle {
            anchors.centerIn: parent
            visible: root.symbol === LegendEntry.Line
            width: parent.width
            height: 2
            color: root.symbolColor
        }

        Rectangle {
            anchors.centerIn: parent
            visible: root.symbol === LegendEntry.Dot
            width: parent.height
            height: width
            radius: width / 2
            color: Qt.alpha(root.symbolColor, 0.25)
            border.width: 1
            border.color: root.symbolColor
        }

        Repeater {
            model: root.symbol === LegendEntry.Cross ? [0, 90] : []

            Rectangle {
                required property int modelData

                anchors.centerIn: parent
                width: 9
                height: 1.5
                rotation: modelData
                color: root.symbolColor
            }
        }
    }

    Label {
        text: root.text
        font.pixelSize: 9
        color: Theme.textMuted
    }
}
