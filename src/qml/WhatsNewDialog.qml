import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The release notes: of the offered update, or with `showInstalled` the history of the installed
/// version, which needs no server.
ReadingDialog {
    id: root

    property bool showInstalled: false
    readonly property string version: showInstalled ? ViewModel.appVersion
                                                    : ViewModel.updateVersion
    readonly property string notes: showInstalled ? ViewModel.installedReleaseNotes
                                                  : ViewModel.updateReleaseNotes
    readonly property bool isBeta: version.includes("beta") || version.includes("rc")

    title: version !== "" ? qsTr("Was ist neu in Version %1?").arg(version) : qsTr("Was ist neu?")
    accent: isBeta ? "#FFA726" : "#4A9ECA"
    beta: isBeta
    text: notes
    fallback: qsTr("Keine Release-Notes verfügbar.")
    actions: [
        FilledButton {
            objectName: "downloadButton"
            text: qsTr("Herunterladen")
            implicitHeight: 36
            visible: !root.showInstalled && ViewModel.updateDownloadUrl !== ""
            Material.background: root.accent
            onClicked: {
                ViewModel.openUpdateDownload();
                root.close();
            }
        }
    ]
}
