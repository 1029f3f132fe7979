import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Sends a rating of one to five stars and a comment.
SupportDialog {
    id: root

    /// 0 until one is chosen.
    property int rating: 0
    readonly property int commentMaxLen: 4000
    readonly property list<string> _reactions: [
        "",
        qsTr("Schade — was können wir besser machen?"),
        qsTr("Danke fürs ehrliche Feedback."),
        qsTr("OK — wo siehst du Luft nach oben?"),
        qsTr("Schön zu hören!"),
        qsTr("Wow — danke!")
    ]

    width: 480
    title: qsTr("Feedback senden")
    subtitle: qsTr("Wie gefällt dir Meridax? Deine Bewertung hilft uns weiter.")
    accent: "#43A047"
    successText: qsTr("Vielen Dank für dein Feedback!")
    closeDelay: 1800
    complete: rating > 0 && comment.length <= commentMaxLen
    touched: comment.length > 0

    onAboutToShow: {
        rating = 0;
        comment.text = "";
        stars.forceActiveFocus();
    }
    onSubmitted: ViewModel.submitFeedback(rating, comment.text.trim())

    Label {
        text: qsTr("Deine Bewertung")
        font {
            pixelSize: 16
            bold: true
        }
        color: Theme.text
        horizontalAlignment: Text.AlignHCenter
        Layout.fillWidth: true
    }

    StarRow {
        id: stars

        rating: root.rating
        enabled: root.editable
        Layout.alignment: Qt.AlignHCenter
        onChosen: rating => root.rating = rating
    }

    LiveLabel {
        objectName: "reactionLabel"
        text: root._reactions[root.rating]
        font {
            pixelSize: 13
            italic: true
        }
        color: Theme.textMuted
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    ColumnLayout {
        spacing: 4
        Layout.fillWidth: true

        CountedLabel {
            objectName: "commentCaption"
            text: qsTr("Kommentar (optional)")
            counter: "%1 / %2".arg(comment.length).arg(root.commentMaxLen)
            alert: comment.length > root.commentMaxLen
        }

        HintTextArea {
            id: comment

            objectName: "commentArea"
            name: qsTr("Kommentar (optional)")
            hint: qsTr("Was gefällt dir? Was würdest du anders machen?")
            enabled: root.editable
            Layout.fillWidth: true
            Layout.preferredHeight: 120
        }
    }
}
