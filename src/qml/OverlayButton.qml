import QtQuick
import QtQuick.Controls.Material
import Meridax

/// A button over the picture: an icon that stays faint until it is pointed at or in use.
AbstractButton {
    id: root

    required property string iconSource
    required property int iconSize
    required property string toolTip
    /// What the button stands for is going on.
    property bool inUse: false
    property bool toolTipEnabled: true
    property color ground: Qt.rgba(0x4A / 255, 0x9E / 255, 0xCA / 255, inUse ? 0.25 : 0)

    implicitWidth: 40
    implicitHeight: 40
    focusPolicy: Qt.StrongFocus
    opacity: !enabled ? 0.3 : inUse || hovered || visualFocus ? 0.95 : 0.55

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: toolTip

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    background: Rectangle {
        radius: 6
        color: root.ground

        Behavior on color {
            ColorAnimation { duration: 120 }
        }

        FocusFrame {
            visible: root.visualFocus
        }
    }
    contentItem: Item {
        SvgItem {
            objectName: "icon"
            anchors.centerIn: parent
            width: root.iconSize
            height: root.iconSize
            source: root.iconSource
        }
    }

    Behavior on opacity {
        NumberAnimation { duration: 150 }
    }

    HelpTip {
        objectName: "toolTip"
        wanted: (root.hovered || root.visualFocus) && root.toolTipEnabled
        text: root.toolTip
    }
}
