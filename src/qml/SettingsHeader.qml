import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The band over the settings: title, manual, build information, close.
Rectangle {
    id: root

    required property real contentMargin
    required property real contentWidth
    readonly property alias title: titleLabel.text

    signal aboutRequested()
    signal closeRequested()

    implicitHeight: 44
    color: Theme.settingsHeaderBg

    RowLayout {
        anchors {
            top: parent.top
            bottom: parent.bottom
            horizontalCenter: parent.horizontalCenter
        }
        width: root.contentWidth - 2 * root.contentMargin
        spacing: 4

        Label {
            id: titleLabel

            text: qsTr("Einstellungen")
            font {
                pixelSize: 16
                bold: true
            }
            color: "#4A9ECA"
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Layout.fillWidth: true
        }

        HeaderButton {
            objectName: "manualButton"
            text: qsTr("Handbuch")
            icon.source: "qrc:/resources/icon_book.svg"
            icon.color: "#4A9ECA"
            Material.foreground: "#4A9ECA"
            toolTip: qsTr("Online-Dokumentation im Browser öffnen")
            Accessible.name: text
            Accessible.description: toolTip
            onClicked: Qt.openUrlExternally(ViewModel.docsUrl)
        }

        HeaderButton {
            objectName: "aboutButton"
            text: "ⓘ"
            display: AbstractButton.IconOnly
            toolTip: qsTr("Über Meridax — Build-Info anzeigen")
            onClicked: root.aboutRequested()

            InfoSign {
                anchors.centerIn: parent
                signColor: Theme.text
            }
        }

        HeaderButton {
            objectName: "closeButton"
            text: "✕"
            Accessible.name: qsTr("Schließen")
            onClicked: root.closeRequested()
        }
    }
}
