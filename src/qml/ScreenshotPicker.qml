import QtQuick
import QtQuick.Controls.Material
import QtQuick.Dialogs
import QtQuick.Layouts
import Meridax
import "folderUrl.mjs" as FolderUrl

/// The choice of an image that goes with a report. It is held here until it is sent.
ColumnLayout {
    id: root

    property string base64
    property string mime
    property string fileName
    property string error

    function clear() {
        base64 = "";
        mime = "";
        fileName = "";
        error = "";
    }

    /// Takes the image file at the address `url`, or says why not.
    function load(url: string) {
        const result = ViewModel.loadScreenshotFile(url);
        clear();
        if (result.success) {
            base64 = result.base64;
            mime = result.mime;
            fileName = FolderUrl.toPath(url).split(/[\\/]/).pop();
        } else {
            error = result.error || qsTr("Datei konnte nicht geladen werden.");
        }
    }

    spacing: 4
    Layout.fillWidth: true

    Label {
        id: caption

        text: qsTr("Screenshot (optional, max. 5 MB, PNG/JPEG)")
        font.pixelSize: 12
        color: Theme.text
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    RowLayout {
        spacing: 8
        Layout.fillWidth: true

        FlatButton {
            objectName: "chooseScreenshotButton"
            text: root.fileName === "" ? qsTr("Datei auswählen…")
                                       : qsTr("Anderen Screenshot wählen")
            flat: false
            Accessible.description: caption.text
            onClicked: {
                root.error = "";
                fileDialog.open();
            }
        }

        Label {
            objectName: "screenshotNameLabel"
            text: root.fileName
            textFormat: Text.PlainText
            font.pixelSize: 12
            color: Theme.textGood
            elide: Text.ElideMiddle
            Layout.fillWidth: true
        }

        FlatButton {
            objectName: "removeScreenshotButton"
            visible: root.fileName !== ""
            text: qsTr("Entfernen")
            onClicked: root.clear()
        }
    }

    LiveLabel {
        objectName: "screenshotErrorLabel"
        urgent: true
        visible: text !== ""
        text: root.error
        textFormat: Text.PlainText
        font.pixelSize: 12
        color: "#F44336"
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }

    FileDialog {
        id: fileDialog

        objectName: "screenshotFileDialog"
        title: qsTr("Screenshot auswählen")
        nameFilters: [qsTr("Bilder (*.png *.jpg *.jpeg)")]
        onAccepted: root.load(selectedFile.toString())
    }
}
