import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// What came of the sending. The error may be a text of the server's.
ColumnLayout {
    id: root

    required property string successText

    spacing: 4
    visible: ViewModel.bugReportSuccess || ViewModel.bugReportError !== ""
    Layout.fillWidth: true

    Label {
        objectName: "successLabel"
        visible: ViewModel.bugReportSuccess
        text: root.successText
        font.pixelSize: 13
        color: "#4CAF50"
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Layout.fillWidth: true
    }

    Label {
        objectName: "errorLabel"
        visible: text !== ""
        text: ViewModel.bugReportError
        textFormat: Text.PlainText
        font.pixelSize: 13
        color: "#F44336"
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
        Layout.fillWidth: true
    }
}
