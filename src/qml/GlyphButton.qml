import QtQuick
import QtQuick.Controls.Material

/// A small button of one character on a chip; it fills when it is pointed at.
AbstractButton {
    id: root

    required property color glyphColor
    required property color hoverColor
    required property string toolTip

    focusPolicy: Qt.TabFocus
    font.bold: true

    Accessible.role: Accessible.Button
    Accessible.name: toolTip

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    background: Rectangle {
        radius: width / 2
        color: root.hovered ? root.hoverColor : "transparent"

        FocusFrame {
            radius: height / 2
            visible: root.visualFocus
        }
    }
    contentItem: Label {
        text: root.text
        font: root.font
        color: root.hovered ? "white" : root.glyphColor
        style: root.hovered ? Text.Normal : Text.Outline
        styleColor: Qt.rgba(0, 0, 0, 0.5)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    HelpTip {
        wanted: root.hovered || root.visualFocus
        text: root.toolTip
    }
}
