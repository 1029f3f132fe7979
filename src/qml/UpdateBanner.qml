import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax
import "markdownText.mjs" as MarkdownText

/// Tells of an update, at the top of the window. It only points to the download.
Rectangle {
    id: root

    readonly property color accentColor: "#4A9ECA"
    readonly property color betaColor: "#FFA726"

    readonly property bool _beta: ViewModel.updateChannel === "beta"
    readonly property color _channelColor: _beta ? betaColor : accentColor
    readonly property bool _hasNotes: ViewModel.updateReleaseNotes !== ""

    /// The user wants to read the release notes.
    signal openWhatsNew()

    height: ViewModel.updateBannerVisible ? row.implicitHeight + 16 : 0
    // Visible until it has slid up.
    visible: ViewModel.updateBannerVisible || height > 0
    clip: true
    color: Theme.topBarBg

    Behavior on height {
        NumberAnimation {
            duration: 180
            easing.type: Easing.OutCubic
        }
    }

    InputShield {}

    Rectangle {
        anchors.fill: parent
        color: Qt.alpha(root._channelColor, 0.12)
    }

    Rectangle {
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
        height: 1
        color: Qt.alpha(root._channelColor, 0.4)
    }

    RowLayout {
        id: row

        anchors {
            left: parent.left
            leftMargin: 20
            right: parent.right
            rightMargin: 12
            top: parent.top
            topMargin: 8
        }
        spacing: 12

        Rectangle {
            implicitWidth: 10
            implicitHeight: 10
            radius: 5
            color: root._channelColor
        }

        LiveLabel {
            objectName: "updateLabel"
            text: qsTr("Update verfügbar: %1").arg(ViewModel.updateVersion)
            textFormat: Text.PlainText
            font {
                pixelSize: 12
                bold: true
            }
            color: Theme.text
            // The version is what counts: where there is no room for it the text takes more lines.
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            Layout.fillWidth: true
            Layout.minimumWidth: Math.min(Math.ceil(implicitWidth), root.width / 6)
            Layout.maximumWidth: Math.ceil(implicitWidth)
        }

        BetaTag {
            objectName: "betaTag"
            visible: root._beta
        }

        Label {
            objectName: "notesLabel"
            visible: root._hasNotes
            text: MarkdownText.firstLine(ViewModel.updateReleaseNotes)
            textFormat: Text.PlainText
            font.pixelSize: 11
            color: Theme.textMuted
            elide: Text.ElideRight
            Layout.fillWidth: true
            Layout.minimumWidth: 0
        }

        LinkLabel {
            objectName: "whatsNewLink"
            visible: root._hasNotes
            text: qsTr("Was ist neu?")
            color: root._channelColor
            onClicked: root.openWhatsNew()
        }

        Item {
            visible: !root._hasNotes
            Layout.fillWidth: true
        }

        FilledButton {
            objectName: "downloadButton"
            text: qsTr("Herunterladen")
            implicitHeight: 32
            font.pixelSize: 12
            Material.background: root._channelColor
            Material.foreground: "white"
            onClicked: ViewModel.openUpdateDownload()
        }

        FlatButton {
            objectName: "stableButton"
            text: qsTr("Auf Stable wechseln")
            implicitHeight: 32
            font.pixelSize: 12
            visible: root._beta && ViewModel.latestStableVersion !== ""
                     && ViewModel.latestStableVersion !== ViewModel.updateVersion
            onClicked: ViewModel.openStableDownload()
        }

        HeaderButton {
            objectName: "dismissButton"
            text: "✕"
            implicitWidth: 28
            implicitHeight: 28
            Accessible.name: qsTr("Schließen")
            onClicked: ViewModel.dismissUpdateBanner()
        }
    }
}
