import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Meridax

/// The figures of a finished circle fit, one a row.
GridLayout {
    id: root

    required property color qualityColor

    columns: 2
    columnSpacing: 16
    rowSpacing: 4

    Label {
        Layout.columnSpan: 2
        text: qsTr("Taubin-Fit (%1 Punkte)").arg(ViewModel.fitPointCount)
        font.pixelSize: 12
        font.bold: true
        color: Theme.text
    }

    FigureCaption { text: qsTr("Center") }
    FigureValue {
        text: "%1  /  %2".arg(ViewModel.pendingCenterX.toFixed(2))
                         .arg(ViewModel.pendingCenterY.toFixed(2))
    }

    FigureCaption { text: qsTr("Radius") }
    FigureValue { text: ViewModel.fitRadius.toFixed(2) + " px" }

    FigureCaption { text: qsTr("Zentrum ±") }
    FigureValue {
        text: ViewModel.qualityAssessable ? ViewModel.centerSigma.toFixed(2) + " px"
                                          : qsTr("n. def.")
        color: root.qualityColor
    }

    // Neutral: it tells how round the path is, not how good the measurement.
    FigureCaption { text: qsTr("Std-Abw.") }
    FigureValue {
        text: ViewModel.fitPointCount > 4 ? ViewModel.fitStdDev.toFixed(3) + " px"
                                          : qsTr("n. def.")
    }
}
