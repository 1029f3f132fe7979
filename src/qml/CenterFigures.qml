import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Meridax

/// The figures of a finished circle fit, one a row.
GridLayout {
    id: figures

    required property color qualityColor

    readonly property string undefinedText: qsTr("n. def.")
    readonly property string centerText: "%1  /  %2".arg(ViewModel.pendingCenterX.toFixed(2))
                                                    .arg(ViewModel.pendingCenterY.toFixed(2))
    readonly property string sigmaText: ViewModel.qualityAssessable
                                        ? ViewModel.centerSigma.toFixed(2) + " px" : undefinedText
    readonly property string stdDevText: ViewModel.fitPointCount > 4
                                         ? ViewModel.fitStdDev.toFixed(3) + " px" : undefinedText

    component Figure: Label {
        font.pixelSize: 12
        color: Theme.text
        Layout.fillWidth: true
    }

    component FigureName: Label {
        font.pixelSize: 12
        color: Theme.text
    }

    columns: 2
    columnSpacing: 16
    rowSpacing: 4

    Figure {
        text: qsTr("Taubin-Fit (%1 Punkte)").arg(ViewModel.fitPointCount)
        font.bold: true
        Layout.columnSpan: 2
    }

    FigureName { text: qsTr("Center") }
    Figure { text: figures.centerText }

    FigureName { text: qsTr("Radius") }
    Figure { text: ViewModel.fitRadius.toFixed(2) + " px" }

    FigureName { text: qsTr("Zentrum ±") }
    Figure {
        text: figures.sigmaText
        color: figures.qualityColor
    }

    // Neutral: it tells how round the path is, not how good the measurement.
    FigureName { text: qsTr("Std-Abw.") }
    Figure { text: figures.stdDevText }
}
