import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Appearance, language and the panels of the window.
SettingsColumn {
    id: root

    readonly property string startStateHint: qsTr("Bestimmt nur den Zustand beim App-Start. Während der Session lässt sich das Panel weiter per Pfeil ein-/ausklappen.")

    SectionLabel {
        text: qsTr("Darstellung")
    }

    SettingsCheckBox {
        objectName: "darkMode"
        text: qsTr("Dunkles Design (Dark Mode)")
        shownChecked: ViewModel.darkMode
        onChosen: checked => ViewModel.darkMode = checked
    }

    RowLayout {
        spacing: root.rowSpacing
        Layout.fillWidth: true

        Label {
            id: languageLabel

            text: qsTr("Sprache / Language")
            font.pixelSize: root.labelSize
            color: Theme.textMuted
        }

        LanguageComboBox {
            objectName: "language"
            name: languageLabel.text
            Layout.fillWidth: true
            Layout.maximumWidth: 180
        }
    }

    SectionLabel {
        text: qsTr("Panels")
        Layout.topMargin: root.rowSpacing
    }

    SettingsCheckBox {
        objectName: "cameraPanelExpandedAtStart"
        text: qsTr("Kamera-Einstellungen (links)")
        toolTip: root.startStateHint
        shownChecked: ViewModel.cameraPanelExpandedAtStart
        onChosen: checked => ViewModel.cameraPanelExpandedAtStart = checked
    }

    SettingsCheckBox {
        objectName: "rememberCollapsedSections"
        text: qsTr("Ein-/Ausklappen merken")
        toolTip: qsTr("Parametergruppen mit einem Pfeil vor der Überschrift lassen sich ein- und ausklappen. Ist die Option an, bleibt dieser Zustand beim Beenden erhalten; ist sie aus, starten alle Gruppen wieder im Vorgabezustand.")
        shownChecked: ViewModel.rememberCollapsedSections
        onChosen: checked => ViewModel.rememberCollapsedSections = checked
    }

    SettingsCheckBox {
        objectName: "overlayPanelExpandedAtStart"
        text: qsTr("Markierungen (rechts)")
        toolTip: root.startStateHint
        shownChecked: ViewModel.overlayPanelExpandedAtStart
        onChosen: checked => ViewModel.overlayPanelExpandedAtStart = checked
    }

    SettingsCheckBox {
        objectName: "showTooltips"
        text: qsTr("Tooltips anzeigen")
        shownChecked: ViewModel.showTooltips
        onChosen: checked => ViewModel.showTooltips = checked
    }

    SettingsCheckBox {
        objectName: "showZoomOverlay"
        text: qsTr("Zoom-Regler anzeigen")
        toolTip: qsTr("Blendet den Zoom-Regler unten mittig über dem Bild ein/aus.")
        shownChecked: ViewModel.showZoomOverlay
        onChosen: checked => ViewModel.showZoomOverlay = checked
    }
}
