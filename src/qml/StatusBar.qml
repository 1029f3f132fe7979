import QtQuick
import QtQuick.Controls
import Meridax

/// The bar at the bottom of the window.
Rectangle {
    implicitHeight: 28
    color: Theme.topBarBg

    InputShield {}

    Label {
        anchors {
            left: parent.left
            leftMargin: 12
            verticalCenter: parent.verticalCenter
        }
        text: "v" + ViewModel.appVersion
        font.pixelSize: 11
        color: Theme.textMuted
    }
}
