import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A note that must not be overlooked.
Rectangle {
    id: root

    required property string text

    implicitHeight: row.implicitHeight + 16
    radius: 4
    color: Qt.rgba(1, 0xA7 / 255, 0x26 / 255, 0.1)
    border.color: "#FFA726"
    Layout.fillWidth: true

    RowLayout {
        id: row

        anchors {
            left: parent.left
            right: parent.right
            verticalCenter: parent.verticalCenter
            margins: 10
        }
        spacing: 10

        InfoSign {
            signColor: "#FFA726"
            Layout.alignment: Qt.AlignTop
        }

        Label {
            text: root.text
            font.pixelSize: 11
            color: Theme.text
            wrapMode: Text.WordWrap
            Layout.fillWidth: true
        }
    }
}
