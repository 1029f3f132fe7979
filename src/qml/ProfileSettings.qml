import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// What is stored for the selected camera, and whether it comes back.
SettingsColumn {
    id: root

    readonly property bool cameraSelected: ViewModel.selectedCameraName !== ""
    readonly property bool centerKnown: ViewModel.profileCenterX > 0 && ViewModel.profileCenterY > 0

    SectionLabel {
        text: qsTr("Kamera-Profil")
    }

    Label {
        objectName: "profileCameraLabel"
        text: root.cameraSelected ? ViewModel.selectedCameraName : qsTr("Keine Kamera ausgewählt")
        textFormat: Text.PlainText
        font.pixelSize: root.valueSize
        color: root.cameraSelected ? Theme.text : Theme.textDisabled
        elide: Text.ElideRight
        Layout.fillWidth: true
    }

    SettingsCheckBox {
        objectName: "profileRestoreOnConnect"
        text: qsTr("Kameraeinstellungen wiederherstellen")
        enabled: root.cameraSelected
        shownChecked: ViewModel.profileRestoreOnConnect
        onChosen: checked => ViewModel.profileRestoreOnConnect = checked
    }

    SettingsCheckBox {
        objectName: "profileRestoreCalibration"
        text: qsTr("Kalibrierung wiederherstellen")
        enabled: root.cameraSelected
        shownChecked: ViewModel.profileRestoreCalibration
        onChosen: checked => ViewModel.profileRestoreCalibration = checked
    }

    Flow {
        visible: ViewModel.profileExists
        spacing: root.rowSpacing
        Layout.fillWidth: true

        Label {
            text: qsTr("Gespeicherte Bildmitte:")
            font.pixelSize: root.labelSize
            color: Theme.textMuted
        }

        Label {
            objectName: "profileCenterLabel"
            text: root.centerKnown ? "%1 / %2".arg(ViewModel.profileCenterX.toFixed(2))
                                              .arg(ViewModel.profileCenterY.toFixed(2))
                                   : qsTr("noch nicht gespeichert")
            font.pixelSize: root.labelSize
            color: ViewModel.profileCalibrated ? Theme.textTableHeader
                                               : root.centerKnown ? Theme.text : Theme.textDisabled
        }
    }

    Flow {
        spacing: root.rowSpacing
        Layout.topMargin: root.rowSpacing
        Layout.fillWidth: true

        FilledButton {
            objectName: "saveProfileButton"
            text: ViewModel.profileExists ? qsTr("Profil aktualisieren") : qsTr("Profil speichern")
            enabled: root.cameraSelected
            implicitHeight: 36
            font.pixelSize: root.valueSize
            Material.background: "#4A9ECA"
            onClicked: ViewModel.saveCameraProfile()
        }

        FlatButton {
            objectName: "clearProfileButton"
            text: qsTr("Löschen")
            visible: ViewModel.profileExists
            // The profile of a camera that is away stays until that is back.
            enabled: root.cameraSelected
            onClicked: ViewModel.clearCameraProfile()
        }
    }
}
