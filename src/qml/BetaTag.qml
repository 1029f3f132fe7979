import QtQuick
import QtQuick.Controls.Material

/// A small orange label that marks what is of the beta channel.
Rectangle {
    id: root

    property alias text: label.text

    implicitWidth: label.implicitWidth + 12
    implicitHeight: label.implicitHeight + 6
    radius: 4
    color: "#FFA726"

    Label {
        id: label

        anchors.centerIn: parent
        text: qsTr("BETA")
        font {
            pixelSize: 9
            bold: true
        }
        color: "white"
    }
}
