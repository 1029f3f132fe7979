import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Where screenshots go, what they and the focus presets hold.
SettingsColumn {
    id: root

    signal folderRequested()

    SectionLabel {
        text: qsTr("Screenshots")
    }

    Label {
        text: qsTr("Zielordner")
        font.pixelSize: root.labelSize
        color: Theme.textMuted
    }

    RowLayout {
        spacing: root.rowSpacing
        Layout.fillWidth: true

        Label {
            objectName: "screenshotPathLabel"
            text: ViewModel.screenshotPath !== "" ? ViewModel.screenshotPath
                                                  : qsTr("Nicht festgelegt")
            textFormat: Text.PlainText
            font.pixelSize: root.valueSize
            color: ViewModel.screenshotPath !== "" ? Theme.text : Theme.textDisabled
            elide: Text.ElideMiddle
            Layout.fillWidth: true
        }

        HeaderButton {
            objectName: "screenshotFolderButton"
            icon.source: "qrc:/resources/icon_folder.svg"
            toolTip: qsTr("Ordner wählen…")
            onClicked: root.folderRequested()
        }
    }

    SettingsCheckBox {
        objectName: "screenshotIncludeOverlays"
        text: qsTr("Markierungen einschließen")
        toolTip: qsTr("Fadenkreuz und Messkreise im Screenshot mit aufnehmen.")
        shownChecked: ViewModel.screenshotIncludeOverlays
        onChosen: checked => ViewModel.screenshotIncludeOverlays = checked
    }

    SectionLabel {
        text: qsTr("Fokus-Presets")
        Layout.topMargin: root.rowSpacing
    }

    SettingsCheckBox {
        objectName: "focusPresetIncludeMarkers"
        text: qsTr("Markierungen mit speichern")
        toolTip: qsTr("Beim Anlegen eines Fokus-Preset werden Kreise und Fadenkreuz mit gespeichert\nund beim Anfahren wiederhergestellt. Aus = nur Fokuswert wird angefahren.")
        shownChecked: ViewModel.focusPresetIncludeMarkers
        onChosen: checked => ViewModel.focusPresetIncludeMarkers = checked
    }

    SettingsCheckBox {
        objectName: "focusPresetShowValue"
        text: qsTr("Fokuswert mit anzeigen")
        toolTip: qsTr("Im Overlay-Chip wird der gespeicherte Fokuswert (f=NNN) eingeblendet.")
        shownChecked: ViewModel.focusPresetShowValue
        onChosen: checked => ViewModel.focusPresetShowValue = checked
    }
}
