import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts

/// The lower edge of a form: how the sending stands, the way out, the way on.
Pane {
    id: root

    required property color accent
    required property bool pending
    required property bool succeeded
    required property bool sendEnabled

    signal cancelled()
    signal sent()

    padding: 12
    topPadding: 4
    rightPadding: 20
    background: null

    contentItem: RowLayout {
        spacing: 8

        BusyIndicator {
            objectName: "busyIndicator"
            visible: root.pending
            running: visible
            padding: 0
            implicitWidth: 28
            implicitHeight: 28
            Material.accent: root.accent
            Accessible.role: Accessible.Indicator
            Accessible.name: qsTr("Wird gesendet…")
        }

        Item {
            Layout.fillWidth: true
        }

        FlatButton {
            objectName: "cancelButton"
            text: root.succeeded ? qsTr("Schließen") : qsTr("Abbrechen")
            onClicked: root.cancelled()
        }

        FilledButton {
            objectName: "sendButton"
            text: qsTr("Senden")
            implicitHeight: 36
            visible: !root.succeeded
            enabled: root.sendEnabled
            Material.background: root.accent
            onClicked: root.sent()
        }
    }
}
