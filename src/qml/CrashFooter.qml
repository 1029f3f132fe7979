import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The decisions about a crash report.
Pane {
    id: root

    /// There is something to send.
    required property bool sendable

    signal discarded()
    signal described()
    signal sent()

    padding: 12
    topPadding: 4
    rightPadding: 20
    background: null

    contentItem: RowLayout {
        spacing: 8
        enabled: !ViewModel.bugReportPending

        BusyIndicator {
            visible: ViewModel.bugReportPending
            running: visible
            padding: 0
            implicitWidth: 28
            implicitHeight: 28
            Material.accent: "#FFA726"
            Accessible.role: Accessible.Indicator
            Accessible.name: qsTr("Wird gesendet…")
        }

        Item {
            Layout.fillWidth: true
        }

        FlatButton {
            objectName: "discardCrashButton"
            text: qsTr("Verwerfen")
            onClicked: root.discarded()
        }

        FlatButton {
            objectName: "describeCrashButton"
            text: qsTr("Mit Beschreibung")
            onClicked: root.described()
        }

        FilledButton {
            objectName: "sendCrashButton"
            text: qsTr("Senden")
            implicitHeight: 36
            enabled: root.sendable
            Material.background: "#FFA726"
            onClicked: root.sent()
        }
    }
}
