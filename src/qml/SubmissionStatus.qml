import QtQuick
import QtQuick.Layouts
import Meridax

/// What came of the sending. The error may be a text of the server's.
ColumnLayout {
    id: root

    required property bool succeeded
    required property string successText
    required property string error

    spacing: 4
    visible: succeeded || error !== ""
    Layout.fillWidth: true

    LiveLabel {
        objectName: "successLabel"
        visible: root.succeeded
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
        text: root.error
        textFormat: Text.PlainText
        font.pixelSize: 13
        color: "#F44336"
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
}
