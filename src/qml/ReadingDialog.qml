import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A dialog with a long text to read.
CenteredDialog {
    id: root

    required property color accent
    /// Markdown.
    required property string text
    /// Stands in the place of an empty text.
    required property string fallback
    property bool beta: false
    /// Further buttons of the footer, right of "Schließen".
    property alias actions: actionRow.data

    readonly property real _roomX: parent?.width ?? 0
    readonly property real _roomY: parent?.height ?? 0

    // At opening the parent can still report 0, and the dialog would be invisible.
    width: _roomX > 0 ? Math.min(_roomX * 0.8, 720) : 720
    height: _roomY > 0 ? Math.min(_roomY * 0.8, 600) : 600

    onAboutToShow: {
        view.scrollBy(-view.view.contentY);
        // So that the keys scroll at once.
        (text !== "" ? view : closeButton).forceActiveFocus();
    }

    header: DialogBand {
        Label {
            objectName: "titleLabel"
            text: root.title
            textFormat: Text.PlainText
            font {
                pixelSize: 16
                bold: true
            }
            color: root.accent
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
        }

        BetaTag {
            objectName: "betaTag"
            visible: root.beta
        }

        Item {
            Layout.fillWidth: true
        }

        HeaderButton {
            objectName: "crossButton"
            text: "✕"
            implicitWidth: 32
            implicitHeight: 32
            Accessible.name: qsTr("Schließen")
            onClicked: root.close()
        }
    }
    contentItem: Item {
        MarkdownView {
            id: view

            objectName: "markdownView"
            anchors.fill: parent
            visible: root.text !== ""
            // A long text takes its time to lay out.
            markdown: root.visible ? root.text : ""
            name: root.title
        }

        Label {
            objectName: "fallbackLabel"
            anchors {
                fill: parent
                margins: 16
            }
            visible: root.text === ""
            text: root.fallback
            font.pixelSize: 12
            color: Theme.textMuted
            wrapMode: Text.WordWrap
        }
    }
    footer: Pane {
        padding: 12
        topPadding: 8
        rightPadding: 16
        background: Item {
            Rectangle {
                anchors {
                    left: parent.left
                    right: parent.right
                    leftMargin: 1
                    rightMargin: 1
                }
                height: 1
                color: Theme.divider
            }
        }
        contentItem: RowLayout {
            id: actionRow

            spacing: 8

            Item {
                Layout.fillWidth: true
            }

            FlatButton {
                id: closeButton

                objectName: "closeButton"
                text: qsTr("Schließen")
                onClicked: root.close()
            }
        }
    }
}
