import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax
import "plotGeometry.mjs" as PlotGeometry

/// Where the measured centre lies on the sensor, with its legend and the offset in numbers.
ColumnLayout {
    id: root

    required property color colScale
    required property color colCenter

    spacing: 6

    Label {
        id: heading

        Layout.alignment: Qt.AlignHCenter
        text: qsTr("Lage des Zentrums")
        font.pixelSize: 11
        font.bold: true
        color: Theme.text
        Accessible.ignored: true
    }

    CenterCanvas {
        id: canvas
        objectName: "centerCanvas"
        Accessible.role: Accessible.Graphic
        Accessible.name: heading.text
        Accessible.description: offsetText.visible ? offsetText.text : ""
        Layout.fillWidth: true
        implicitHeight: Math.min(width, 230)
        center: Qt.point(ViewModel.pendingCenterX, ViewModel.pendingCenterY)
        resolution: Qt.size(ViewModel.resolutionX, ViewModel.resolutionY)
        valid: ViewModel.fitResultValid
        colScale: root.colScale
        colCenter: root.colCenter
    }

    Flow {
        Layout.fillWidth: true
        spacing: 8

        LegendEntry {
            symbol: LegendEntry.Cross
            symbolColor: canvas.colSensor
            text: qsTr("geometrische Sensormitte")
        }

        LegendEntry {
            symbol: LegendEntry.Line
            symbolColor: root.colCenter
            text: qsTr("gemessenes Zentrum")
        }
    }

    Label {
        id: offsetText

        objectName: "offsetText"
        Layout.fillWidth: true
        visible: canvas.haveOffset
        text: qsTr("Versatz %1 px   (x %2 / y %3)").arg(canvas.offTotal.toFixed(1))
                                                   .arg(PlotGeometry.signed(canvas.offX))
                                                   .arg(PlotGeometry.signed(canvas.offY))
        font.pixelSize: 10
        font.family: Theme.monoFamily
        // Broken over two lines, the two components would no longer be read as a pair.
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 7
        horizontalAlignment: Text.AlignHCenter
        color: Theme.text
    }
}
