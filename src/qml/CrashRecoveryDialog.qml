import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Offers, after a crash, to send what was recorded of it. Only a decision closes it.
CenteredDialog {
    id: root

    /// It steps aside, such as for the bug dialog it handed over to.
    property bool suppressed: false

    // A full disk leaves an empty file behind.
    readonly property bool _readable: visible && ViewModel.lastCrashReport !== ""

    /// The user wants to add a description.
    signal openBugReportWithCrashDetails()

    width: 540
    height: Math.min(implicitHeight, (parent?.height ?? 0) - 32)
    closePolicy: Popup.NoAutoClose
    visible: ViewModel.hasUnsentCrash && !ViewModel.bugReportPending
             && !ViewModel.bugReportSuccess && !ViewModel.bugReportUnderWay && !suppressed
    title: qsTr("Meridax ist beim letzten Mal abgestürzt")
    borderColor: "#FFA726"
    borderWidth: 2

    onAboutToShow: {
        details.expanded = false;
        // The one control that decides nothing.
        details.takeFocus();
    }

    header: DialogBand {
        inset: root.borderWidth
        color: "#3a2410"

        Rectangle {
            implicitWidth: 36
            implicitHeight: 36
            radius: 18
            color: "#FFA726"

            Label {
                anchors.centerIn: parent
                text: "!"
                font {
                    pixelSize: 22
                    bold: true
                }
                color: "#3a2410"
                Accessible.ignored: true
            }
        }

        DialogTitle {
            title: root.title
            titleSize: 16
            titleColor: "#FFA726"
            subtitle: qsTr("Hilf uns das zu fixen — schick uns die Crash-Info.")
            subtitleColor: "#cca588"
        }
    }
    contentItem: PanelFlickable {
        id: view

        implicitHeight: contentHeight
        contentHeight: column.implicitHeight + 40
        bottomMargin: 0
        scrollBarPolicy: contentHeight > height + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff

        ColumnLayout {
            id: column

            x: 20
            y: 20
            width: view.width - 40
            spacing: 8

            CrashNote {
                text: qsTr("Wir haben einen Crash-Bericht gespeichert. Der Bericht enthält:")
            }

            CrashNote {
                text: qsTr("• Was schiefgegangen ist (Fehlercode + Modul)")
            }

            CrashNote {
                text: qsTr("• Die letzten Log-Zeilen vor dem Absturz (anonymisiert)")
            }

            CrashNote {
                text: qsTr("• App-Version und Build-Info")
            }

            CrashNote {
                text: qsTr("E-Mail-Adressen und dein Benutzername in Dateipfaden werden vorher unkenntlich gemacht. Namen und Kennungen deiner Kameras bleiben lesbar.")
                color: Theme.textMuted
            }

            CrashNote {
                objectName: "crashUnreadableNote"
                visible: !root._readable
                text: qsTr("Der Bericht ist leer oder lässt sich nicht lesen. Du kannst ihn verwerfen oder mit eigenen Worten beschreiben, was geschehen ist.")
            }

            CrashDetails {
                id: details

                objectName: "crashDetails"
                Layout.fillWidth: true
                Layout.topMargin: 4
            }
        }
    }
    footer: CrashFooter {
        sendable: root._readable
        onDiscarded: ViewModel.dismissCrashReport()
        onDescribed: root.openBugReportWithCrashDetails()
        onSent: ViewModel.sendCrashReport("")
    }
}
