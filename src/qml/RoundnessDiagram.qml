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
        id: heading

        Layout.alignment: Qt.AlignHCenter
        text: qsTr("Rundheit der Bahn")
        font.pixelSize: 11
        font.bold: true
        color: Theme.text
        Accessible.ignored: true
    }

    RoundnessCanvas {
        id: canvas
        objectName: "roundnessCanvas"
        Accessible.role: Accessible.Graphic
        Accessible.name: heading.text
        Accessible.description: "±%1 px".arg(shownScale)
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
        spacing: 2

        Keys.onLeftPressed: {
            autoButton.forceActiveFocus(Qt.OtherFocusReason);
            root.fixedScaleChosen(false);
        }
        Keys.onRightPressed: {
            fixedButton.forceActiveFocus(Qt.OtherFocusReason);
            root.fixedScaleChosen(true);
        }

        Label {
            text: qsTr("Skala")
            font.pixelSize: 9
            color: Theme.textMuted
        }

        ScaleButton {
            id: autoButton

            objectName: "autoScaleButton"
            text: qsTr("Auto (±%1 px)").arg(canvas.autoScale)
            active: !root.fixedScale
            onClicked: root.fixedScaleChosen(false)
        }

        ScaleButton {
            id: fixedButton

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
