import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Choice of camera and resolution.
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
                Accessible.description: qsTr("Kamera")
                onActivated: index => { ViewModel.selectedCameraIndex = index; }
            }

            RoundButton {
                objectName: "refreshCamerasButton"
                implicitWidth: 32
                implicitHeight: 32
                topInset: 0
                bottomInset: 0
                leftInset: 0
                rightInset: 0
                padding: 0
                flat: true
                icon.source: "qrc:/resources/icon_refresh.svg"
                icon.width: 18
                icon.height: 18
                enabled: !ViewModel.running
                Accessible.role: Accessible.Button
                Accessible.name: ToolTip.text
                ToolTip.visible: hovered && ViewModel.showTooltips
                ToolTip.delay: 400
                ToolTip.text: qsTr("Aktualisieren")
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
            Accessible.description: qsTr("Auflösung")
            onActivated: index => { ViewModel.selectedResolutionIndex = index; }
        }
    }
}
