pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The measured points, one a row.
Rectangle {
    id: root

    /// Each with step, x and y in frame pixels.
    required property var measurements

    implicitHeight: measurements.length * 24 + 36
    radius: 4
    color: Theme.tableBg

    ListView {
        anchors.fill: parent
        anchors.margins: 8
        interactive: false
        spacing: 2
        model: root.measurements

        header: MeasurementRow {
            stepText: qsTr("Schritt")
            xText: qsTr("X")
            yText: qsTr("Y")
            stepColor: Theme.textTableHeader
            valueColor: Theme.textTableHeader
        }

        delegate: MeasurementRow {
            required property var modelData

            objectName: "pointRow" + stepText
            stepText: modelData.step
            xText: modelData.x.toFixed(1)
            yText: modelData.y.toFixed(1)
            stepColor: Theme.text
            Accessible.name: "%1 %2: X %3, Y %4".arg(qsTr("Schritt")).arg(stepText).arg(xText)
                                                .arg(yText)
            valueColor: Material.accentColor
        }
    }
}
