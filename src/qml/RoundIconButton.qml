import QtQuick
import QtQuick.Controls.Material

/// Flat round button with an icon of 18 pixels; its tool tip tells what it does.
RoundButton {
    id: root

    required property string toolTip

    implicitWidth: 32
    implicitHeight: 32
    topInset: 0
    bottomInset: 0
    leftInset: 0
    rightInset: 0
    padding: 0
    flat: true
    icon.width: 18
    icon.height: 18

    Accessible.role: Accessible.Button
    Accessible.name: toolTip

    FocusFrame {
        radius: height / 2
        anchors.margins: 0
        visible: root.visualFocus
    }

    HelpTip {
        objectName: "toolTip"
        wanted: root.hovered || root.visualFocus
        text: root.toolTip
    }

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()
}
