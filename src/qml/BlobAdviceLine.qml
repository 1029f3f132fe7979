import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Says why the mark is not found, and offers the values that find it.
ColumnLayout {
    id: root

    required property var advice
    /// Values were taken over and can be taken back.
    required property bool applied

    readonly property bool saysSomething: label.text !== ""
    readonly property bool mendable: (advice.changes ?? []).length > 0

    signal accepted
    signal undone

    spacing: 4

    LiveLabel {
        id: label

        objectName: "blobAdviceText"
        Layout.fillWidth: true
        visible: text !== ""
        text: words.line(root.advice)
        color: Theme.text
        font.pixelSize: 12
        wrapMode: Text.WordWrap
        settleTime: 800
    }

    Label {
        objectName: "blobAdviceChanges"
        Layout.fillWidth: true
        visible: root.mendable
        text: words.changes(root.advice)
        color: Theme.textMuted
        font.pixelSize: 11
        wrapMode: Text.WordWrap
    }

    LiveLabel {
        objectName: "blobAdviceDone"
        Layout.fillWidth: true
        visible: root.applied
        text: qsTr("Werte übernommen.")
        color: Theme.text
        font.pixelSize: 12
        wrapMode: Text.WordWrap
    }

    FilledButton {
        id: applyButton

        objectName: "applyBlobAdvice"
        Layout.fillWidth: true
        visible: root.mendable
        text: qsTr("Werte übernehmen")
        font.pixelSize: 12
        implicitHeight: 34
        Material.background: "#4A9ECA"
        Accessible.description: words.changes(root.advice)
        onClicked: {
            // The button goes; what takes its place keeps the focus of the keyboard.
            const byKeyboard = visualFocus;
            root.accepted();
            if (byKeyboard && undoButton.visible)
                undoButton.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    FilledButton {
        id: undoButton

        objectName: "undoBlobAdvice"
        Layout.fillWidth: true
        visible: root.applied
        text: qsTr("Zurücknehmen")
        font.pixelSize: 12
        implicitHeight: 34
        Material.background: Theme.separatorLine
        onClicked: root.undone()
    }

    BlobWords {
        id: words
    }
}
