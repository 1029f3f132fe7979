import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The roundness of the path with its scale switch and legend.
ColumnLayout {
    id: root

    required property bool fixedScale
    required property real fixedFullScale
    required property color colIdeal
    required property color colScale
    required property color colData
    readonly property alias clipped: canvas.clipped

    signal fixedScaleChosen(fixedScale: bool)

    spacing: 6

    Label {
        Layout.alignment: Qt.AlignHCenter
        text: qsTr("Rundheit der Bahn")
        font.pixelSize: 11
        font.bold: true
        color: Theme.text
    }

    RoundnessCanvas {
        id: canvas
        objectName: "roundnessCanvas"
        Layout.fillWidth: true
        implicitHeight: Math.min(width, 230)
        points: ViewModel.measurements
        fitCenter: Qt.point(ViewModel.pendingCenterX, ViewModel.pendingCenterY)
        fitRadius: ViewModel.fitRadius
        sigma: ViewModel.qualityAssessable ? ViewModel.centerSigma : 0
        sigmaGood: ViewModel.qualityLevel <= 1
        fixedFull: root.fixedScale ? root.fixedFullScale : 0
        colIdeal: root.colIdeal
        colScale: root.colScale
        colData: root.colData
    }

    // Under its own diagram: the scale concerns the roundness alone.
    RowLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: 4

        Label {
            text: qsTr("Skala")
            font.pixelSize: 9
            color: Theme.textMuted
        }

        ScaleButton {
            objectName: "autoScaleButton"
            text: qsTr("Auto (±%1 px)").arg(canvas.autoScale)
            active: !root.fixedScale
            onClicked: root.fixedScaleChosen(false)
        }

        ScaleButton {
            objectName: "fixedScaleButton"
            text: qsTr("fest ±%1 px").arg(root.fixedFullScale)
            active: root.fixedScale
            onClicked: root.fixedScaleChosen(true)
        }
    }

    Flow {
        Layout.fillWidth: true
        spacing: 8

        LegendEntry {
            symbol: LegendEntry.Line
            symbolColor: root.colIdeal
            text: qsTr("Sollkreis")
        }

        LegendEntry {
            symbol: LegendEntry.Line
            symbolColor: root.colData
            text: qsTr("Messpunkte")
        }

        LegendEntry {
            objectName: "sigmaLegend"
            symbol: LegendEntry.Dot
            symbolColor: canvas.sigmaColor
            text: ViewModel.qualityAssessable
                  ? qsTr("Messunsicherheit ±%1 px").arg(ViewModel.centerSigma.toFixed(2))
                  : qsTr("Messunsicherheit n. def.")
        }

        LegendEntry {
            symbol: LegendEntry.Cross
            symbolColor: root.colScale
            text: qsTr("Mittelpunkt")
        }
    }
}
