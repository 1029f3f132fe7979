import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A finished calibration in two diagrams: the roundness of the path and where the centre lies.
///
/// Two, because the quantities differ by more than a power of ten and fit no common scale. The
/// choice of scale belongs to the instance and is not stored.
ColumnLayout {
    id: root

    property bool fixedScale: false
    property real fixedFullScale: 5.0
    /// Off where a section supplies the title.
    property bool showHeader: true
    property color colIdeal: "#43A047"
    property color colScale: "#9aa7b4"
    property color colData: "#4A9ECA"
    property color colCenter: "#E91E63"

    spacing: 6

    Label {
        objectName: "plotHeader"
        visible: root.showHeader
        text: qsTr("Detailauswertung")
        font.pixelSize: 12
        font.bold: true
        color: Theme.text
    }

    GridLayout {
        id: diagrams
        objectName: "diagramGrid"
        Layout.fillWidth: true
        // Narrower, two diagrams side by side cannot be read.
        columns: width >= 380 ? 2 : 1
        columnSpacing: 12
        rowSpacing: 10
        uniformCellWidths: true

        RoundnessDiagram {
            id: roundness
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignTop
            fixedScale: root.fixedScale
            fixedFullScale: root.fixedFullScale
            colIdeal: root.colIdeal
            colScale: root.colScale
            colData: root.colData
            onFixedScaleChosen: fixedScale => { root.fixedScale = fixedScale; }
        }

        CenterDiagram {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignTop
            colScale: root.colScale
            colCenter: root.colCenter
        }
    }

    Label {
        objectName: "clipNote"
        Layout.fillWidth: true
        visible: roundness.clipped
        text: qsTr("Rot markierte Punkte liegen außerhalb der festen Skala — für die vollständige Ansicht auf Auto umschalten.")
        font.pixelSize: 10
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        color: "#E53935"
    }
}
