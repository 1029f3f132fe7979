import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Which builds are running, client above server, so that a support call can tell at once; beside it
/// the ways to the release notes and the legal texts.
CenteredDialog {
    id: root

    readonly property color accent: "#4A9ECA"

    signal openWhatsNew()

    function _openLegalText(kind: string) {
        legalTextDialog.kind = kind;
        legalTextDialog.open();
    }

    // The German labels of the footer need it.
    width: 640
    height: Math.min(implicitHeight, (parent?.height ?? 0) - 32)
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    title: "Meridax"

    onAboutToShow: closeButton.forceActiveFocus()

    header: DialogBand {
        padding: 18

        MakerLogo {
            logoHeight: 36
        }

        DialogTitle {
            title: root.title
            titleSize: 18
            titleColor: root.accent
            subtitle: qsTr("Tarnwick Optics — präzise Kamerakollimation")
        }
    }
    contentItem: Pane {
        padding: 22
        background: null

        contentItem: ColumnLayout {
            spacing: 14

            BuildBlock {
                objectName: "clientBlock"
                heading: qsTr("Client")
                entries: [
                    { label: qsTr("Version:"), value: ViewModel.appVersion },
                    { label: qsTr("Commit:"), value: ViewModel.appCommitSha },
                    { label: qsTr("Build:"), value: ViewModel.appBuildTime }
                ]
            }

            Rectangle {
                implicitHeight: 1
                color: Theme.dividerMid
                Layout.fillWidth: true
            }

            BuildBlock {
                objectName: "serverBlock"
                heading: qsTr("Server")
                entries: [
                    { label: qsTr("Host:"), value: ViewModel.serverHost },
                    { label: qsTr("API-Version:"), value: ViewModel.serverApiVersion },
                    { label: qsTr("Commit:"), value: ViewModel.serverCommitSha },
                    { label: qsTr("Build:"), value: ViewModel.serverBuildTime }
                ]
            }
        }
    }
    footer: Pane {
        // Right and below a little more: a button's shadow must not stick out of the corner.
        padding: 12
        rightPadding: 16
        bottomPadding: 16
        background: null
        implicitHeight: footerRow.implicitHeight + topPadding + bottomPadding

        Item {
            anchors.fill: parent

            RowLayout {
                id: footerRow

                anchors.fill: parent
                spacing: 4

                FlatButton {
                    objectName: "whatsNewButton"
                    text: qsTr("Was ist neu?")
                    onClicked: {
                        root.close();
                        root.openWhatsNew();
                    }
                }

                FlatButton {
                    objectName: "eulaButton"
                    text: qsTr("Nutzungsbedingungen")
                    onClicked: root._openLegalText("eula")
                }

                FlatButton {
                    objectName: "privacyButton"
                    text: qsTr("Datenschutz")
                    onClicked: root._openLegalText("privacy")
                }

                Item {
                    Layout.fillWidth: true
                }

                FilledButton {
                    id: closeButton

                    objectName: "closeButton"
                    text: qsTr("Schließen")
                    implicitHeight: 36
                    Material.background: root.accent
                    Material.elevation: 0
                    onClicked: root.close()
                }
            }
        }
    }

    LegalTextDialog {
        id: legalTextDialog

        objectName: "legalTextDialog"
        // Over the dialog it belongs to.
        z: 24
    }
}
