import QtQuick
import QtQuick.Controls.Material
import Meridax

/// A small tool button in a title band or banner.
ToolButton {
    id: root

    property string toolTip

    implicitHeight: 36
    icon.width: 18
    icon.height: 18
    font.pixelSize: 13
    Material.foreground: Theme.text

    Accessible.role: Accessible.Button
    Accessible.name: toolTip

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    FocusFrame {
        anchors.margins: 2
        visible: root.visualFocus
    }

    HelpTip {
        wanted: root.hovered || root.visualFocus
        text: root.toolTip
    }
}
