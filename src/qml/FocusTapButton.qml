import QtQuick
import Meridax

/// Switches focusing by a tap into the picture; a lamp tells whether it is on.
OverlayButton {
    id: root

    readonly property color _lampColor: inUse ? "#37D067" : "#555555"

    text: qsTr("Fokus-Antippen")
    iconSource: "qrc:/resources/icon_focus_frame.svg"
    iconSize: 28
    enabled: !ViewModel.calibrationActive
    inUse: ViewModel.focusTapModeActive
    toolTip: inUse
             ? qsTr("Fokus-Antippen aktiv – ins Bild auf eine Struktur klicken stellt dort scharf.\nKlick hier zum Deaktivieren.")
             : qsTr("Fokus-Antippen aktivieren – danach ins Bild auf eine Struktur klicken, um dort scharfzustellen.")
    onClicked: ViewModel.focusTapModeActive = !ViewModel.focusTapModeActive

    Accessible.checkable: true
    Accessible.checked: inUse

    Rectangle {
        anchors.centerIn: lamp
        width: lamp.width + 6
        height: width
        radius: width / 2
        visible: root.inUse
        color: "transparent"
        border.width: 2
        border.color: Qt.alpha(root._lampColor, 0.35)
    }

    Rectangle {
        id: lamp
        objectName: "lamp"
        anchors {
            top: parent.top
            right: parent.right
            margins: 3
        }
        width: 9
        height: 9
        radius: width / 2
        color: root._lampColor
        border.width: 1
        border.color: Qt.rgba(0, 0, 0, 0.5)
    }
}
