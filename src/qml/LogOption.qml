import QtQuick
import QtQuick.Layouts

/// Whether the log goes with a report, and a look at what would go.
RowLayout {
    id: root

    property bool includeLogs: true

    spacing: 8
    Layout.fillWidth: true

    SettingsCheckBox {
        objectName: "includeLogsCheckBox"
        text: qsTr("Aktuelles Log mitschicken (anonymisiert)")
        shownChecked: root.includeLogs
        onChosen: checked => root.includeLogs = checked
    }

    FlatButton {
        objectName: "previewButton"
        text: qsTr("Vorschau")
        enabled: root.includeLogs
        onClicked: preview.open()
    }

    LogPreviewDialog {
        id: preview

        objectName: "logPreview"
    }
}
