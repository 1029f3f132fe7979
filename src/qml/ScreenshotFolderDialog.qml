import QtQuick.Dialogs
import Meridax
import "folderUrl.mjs" as FolderUrl

/// Asks where screenshots go.
FolderDialog {
    title: qsTr("Screenshot-Ordner wählen")
    onAccepted: ViewModel.screenshotPath = FolderUrl.toPath(selectedFolder.toString())

    // Bound to the path, the dialog would jump while the user is in it.
    onVisibleChanged: {
        if (visible && ViewModel.screenshotPath !== "")
            currentFolder = FolderUrl.fromPath(ViewModel.screenshotPath);
    }
}
