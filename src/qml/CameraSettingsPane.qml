import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Choice of camera and resolution, the camera's picture properties, centre and view.
Pane {
    id: root

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
            text: qsTr("Kamera")
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 8

            SelectionComboBox {
                objectName: "cameraSelector"
                Layout.fillWidth: true
                model: ViewModel.cameraNames
                selectedIndex: ViewModel.selectedCameraIndex
                enabled: !ViewModel.running
                name: qsTr("Kamera")
                onActivated: index => { ViewModel.selectedCameraIndex = index; }
            }

            RoundIconButton {
                objectName: "refreshCamerasButton"
                toolTip: qsTr("Aktualisieren")
                icon.source: "qrc:/resources/icon_refresh.svg"
                enabled: !ViewModel.running
                onClicked: ViewModel.refreshCameras()
            }
        }

        RowLayout {
            Layout.topMargin: 12
            spacing: 6

            SectionLabel {
                text: qsTr("Auflösung")
            }

            InfoTooltip {
                text: qsTr("Bildgröße und Bildrate aus den von der Kamera unterstützten Modi. Nur im gestoppten Zustand änderbar. Die Kalibrierung wird pro Auflösung gespeichert und beim Verbinden dieser Auflösung wiederhergestellt.")
            }
        }

        SelectionComboBox {
            objectName: "resolutionSelector"
            Layout.fillWidth: true
            model: ViewModel.resolutionOptions
            selectedIndex: ViewModel.selectedResolutionIndex
            visible: count > 0
            enabled: !ViewModel.running
            name: qsTr("Auflösung")
            onActivated: index => { ViewModel.selectedResolutionIndex = index; }
        }

        CollapsibleSection {
            objectName: "propertiesSection"
            Layout.fillWidth: true
            title: qsTr("Kamera-Eigenschaften")
            persistKey: "cameraProps"
            topPadding: 12
            separator: false
            contentEnabled: ViewModel.running

            CameraControls {
                Layout.fillWidth: true
            }
        }

        CollapsibleSection {
            objectName: "centerSection"
            Layout.fillWidth: true
            title: qsTr("Zentrum & Ansicht")
            persistKey: "centerView"
            topPadding: 12
            headerRight: [
                LockButton {
                    objectName: "lockButton"
                }
            ]

            CenterAndView {
                Layout.fillWidth: true
            }
        }
    }
}
