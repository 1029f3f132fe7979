import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Runs a calibration, tunes the blob detector and shows the result in words and figures.
Pane {
    id: root

    // Not on the pane itself: `enabled` is inherited, and the headers of the groups must stay
    // usable without a camera.
    readonly property bool controlsEnabled: ViewModel.running

    readonly property bool _hasMeasurements: ViewModel.measurements.length > 0

    padding: 16
    background: null
    // The column hangs on anchors, so the pane knows no content height of its own.
    contentHeight: column.implicitHeight

    ColumnLayout {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: 8

        SectionLabel {
            text: qsTr("Kalibrierung")
        }

        CountRow {
            objectName: "positionsRow"
            Layout.fillWidth: true
            enabled: root.controlsEnabled
            label: qsTr("Messpositionen")
            tooltipText: qsTr("Anzahl Mess-Punkte für die Sensor-Kalibrierung (3–15). Mehr Punkte = robusteres Ergebnis. Bei genau 3 Punkten lässt sich die Standardabweichung nicht bewerten; ab 5 Punkten bestimmt Meridax zusätzlich die Rundheitsform.")
            from: 3
            to: 15
            value: ViewModel.calibrationPositions
            onValueModified: newValue => { ViewModel.calibrationPositions = newValue; }

            // From 5 on the accuracy is given, but the form is found reliably only from 6.
            FewPositionsWarning {
                objectName: "fewPositionsWarning"
                visible: ViewModel.calibrationPositions < 6
            }
        }

        CountRow {
            objectName: "framesRow"
            Layout.fillWidth: true
            enabled: root.controlsEnabled
            label: qsTr("Frames / Position")
            tooltipText: qsTr("Wie viele Bilder pro Mess-Punkt gemittelt werden. Mehr Frames glätten das Rauschen, dauert aber länger.")
            from: 1
            to: 10
            value: ViewModel.calibrationMeasureFrames
            onValueModified: newValue => { ViewModel.calibrationMeasureFrames = newValue; }
        }

        FilledButton {
            id: startButton

            objectName: "calibrationStartButton"
            Layout.fillWidth: true
            text: ViewModel.calibrationActive ? qsTr("Kalibrierung läuft…")
                                              : qsTr("Kalibrierung starten")
            enabled: root.controlsEnabled && !ViewModel.calibrationActive
            Material.background: "#4CAF50"
            onClicked: {
                // Once it is disabled it has lost the focus.
                const byKeyboard = visualFocus;
                ViewModel.startCalibration();
                if (byKeyboard)
                    measureButton.forceActiveFocus(Qt.TabFocusReason);
            }
        }

        LiveLabel {
            objectName: "positionCounter"
            visible: ViewModel.calibrationActive
            text: qsTr("Position %1 von %2")
                  .arg(Math.min(ViewModel.measurements.length + 1, ViewModel.calibrationPositions))
                  .arg(ViewModel.calibrationPositions)
            font.pixelSize: 12
            font.bold: true
            color: Theme.textTableHeader
        }

        RowLayout {
            Layout.fillWidth: true
            visible: ViewModel.calibrationActive
            spacing: 8

            MeasureButton {
                id: measureButton

                objectName: "measureButton"
                Layout.fillWidth: true
                busy: ViewModel.measureInProgress
                canMeasure: ViewModel.blobCount === 1 && ViewModel.blobInSector
                progress: ViewModel.measureProgressRatio
                framesDone: ViewModel.measureFramesDone
                framesTotal: ViewModel.measureFramesTotal
                Accessible.description: hint.told
                onClicked: ViewModel.measurePosition()
                onVisibleChanged: {
                    if (!visible && activeFocus)
                        startButton.forceActiveFocus(Qt.TabFocusReason);
                }
            }

            FilledButton {
                objectName: "cancelCalibrationButton"
                text: qsTr("Abbrechen")
                // The plain red in both themes, as that of the stop button.
                Material.background: Material.color(Material.Red)
                onClicked: ViewModel.cancelCalibration()
                onVisibleChanged: {
                    if (!visible && activeFocus)
                        startButton.forceActiveFocus(focusReason);
                }
            }
        }

        CalibrationHint {
            id: hint

            objectName: "calibrationHint"
            Layout.fillWidth: true
            visible: ViewModel.calibrationActive && !ViewModel.measureInProgress
            blobCount: ViewModel.blobCount
            blobInSector: ViewModel.blobInSector
        }

        BlobAdviceLine {
            objectName: "blobAdvice"
            Layout.fillWidth: true
            visible: hint.visible && (ViewModel.blobAdviceApplied || saysSomething)
            advice: ViewModel.blobAdvice
            applied: ViewModel.blobAdviceApplied
            onAccepted: ViewModel.applyBlobAdvice()
            onUndone: ViewModel.undoBlobAdvice()
        }

        CollapsibleSection {
            objectName: "blobSection"
            Layout.fillWidth: true
            title: qsTr("Blob-Parameter")
            persistKey: "blobParams"
            defaultCollapsed: false
            contentEnabled: root.controlsEnabled

            BlobParameters {
                Layout.fillWidth: true
            }
        }

        CollapsibleSection {
            objectName: "pointsSection"
            Layout.fillWidth: true
            title: qsTr("Gemessene Punkte")
            persistKey: "measuredPoints"
            visible: root._hasMeasurements

            MeasurementTable {
                objectName: "pointsTable"
                Layout.fillWidth: true
                measurements: ViewModel.measurements
            }
        }

        CollapsibleSection {
            objectName: "fitSection"
            Layout.fillWidth: true
            title: qsTr("Taubin-Fit (%1 Punkte)").arg(ViewModel.fitPointCount)
            persistKey: "taubinFit"
            visible: ViewModel.fitResultValid

            FitTable {
                Layout.fillWidth: true
                center: Qt.point(ViewModel.pendingCenterX, ViewModel.pendingCenterY)
                circleRadius: ViewModel.fitRadius
                stdDev: ViewModel.fitStdDev
                pointCount: ViewModel.fitPointCount
            }
        }

        QualityStrip {
            objectName: "qualityStrip"
            Layout.fillWidth: true
            Layout.topMargin: 4
            visible: ViewModel.fitResultValid
            assessable: ViewModel.qualityAssessable
            level: ViewModel.qualityLevel
            centerSigma: ViewModel.centerSigma
            coverageGap: ViewModel.coverageGapDeg
            coveragePoor: ViewModel.coveragePoor
            formOrder: ViewModel.dominantOrder
            formAmplitude: ViewModel.dominantAmp

            // No line: within the box it would be a second frame.
            CollapsibleSection {
                objectName: "detailSection"
                Layout.fillWidth: true
                title: qsTr("Detailauswertung")
                persistKey: "detailAnalysis"
                separator: false

                ResidualPlot {
                    Layout.fillWidth: true
                    showHeader: false
                }
            }
        }
    }
}
