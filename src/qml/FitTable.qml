import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The fitted circle in figures.
Rectangle {
    id: root

    required property point center
    required property real circleRadius
    required property real stdDev
    required property int pointCount

    // Through three points there is always a circle, and four leave hardly a degree of freedom: a
    // rating of their scatter would be a lie.
    readonly property bool _stdDevKnown: pointCount > 4

    function stdDevColor(deviation: real): color {
        return deviation < 0.5 ? "#4CAF50" : deviation < 1.0 ? "#8BC34A"
             : deviation < 3.0 ? "#F57F17" : "#E53935";
    }

    implicitHeight: grid.implicitHeight + 16
    radius: 4
    color: Theme.tableBg

    GridLayout {
        id: grid
        anchors.fill: parent
        anchors.margins: 8
        columns: 2
        columnSpacing: 16
        rowSpacing: 4

        FigureCaption { text: qsTr("Center") }
        FigureValue {
            objectName: "centerValue"
            text: "%1  /  %2".arg(root.center.x.toFixed(2)).arg(root.center.y.toFixed(2))
            color: Material.accentColor
        }

        FigureCaption { text: qsTr("Radius") }
        FigureValue { text: root.circleRadius.toFixed(2) + " px" }

        FigureCaption { text: qsTr("Std-Abw.") }
        FigureValue {
            objectName: "stdDevValue"
            text: root._stdDevKnown ? root.stdDev.toFixed(3) + " px" : qsTr("n. def.")
            color: root._stdDevKnown ? root.stdDevColor(root.stdDev) : Theme.textMuted
        }
    }
}
