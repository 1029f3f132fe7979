import QtQuick
import QtQuick.Layouts
import Meridax

/// What came of the sending. The error may be a text of the server's.
ColumnLayout {
    id: root

    required property string successText

    spacing: 4
    visible: ViewModel.bugReportSuccess || ViewModel.bugReportError !== ""
    Layout.fillWidth: true

    LiveLabel {
        objectName: "successLabel"
        visible: ViewModel.bugReportSuccess
        text: root.successText
        font.pixelSize: 13
        color: Theme.textGood
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    LiveLabel {
        objectName: "errorLabel"
        urgent: true
        visible: text !== ""
        text: ViewModel.bugReportError
        textFormat: Text.PlainText
        font.pixelSize: 13
        color: "#F44336"
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
}
