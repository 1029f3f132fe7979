pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs
import Meridax
import "folderUrl.mjs" as FolderUrl

/// Asks where screenshots go, beginning in the folder in force.
Item {
    id: root

    property FolderDialog _dialog: null

    function open() {
        // Each time a new one: a dialog takes its folder only before it is first shown.
        _dialog?.destroy();
        const folder = ViewModel.screenshotPath;
        _dialog = component.createObject(root, {
            currentFolder: folder !== "" ? FolderUrl.fromPath(folder) : ""
        }) as FolderDialog;
        _dialog.open();
    }

    Component {
        id: component

        FolderDialog {
            objectName: "screenshotFolderDialog"
            title: qsTr("Screenshot-Ordner wählen")
            onAccepted: ViewModel.screenshotPath = FolderUrl.toPath(selectedFolder.toString())
        }
    }
}
