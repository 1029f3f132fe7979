import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The arrow before the title of a foldable group; its keyboard handle as well.
ToolButton {
    id: root

    required property bool expanded
    required property string title
    /// A change of the state turns the arrow visibly.
    required property bool animated

    implicitWidth: 24
    implicitHeight: 24
    padding: 0
    icon.source: "qrc:/resources/icon_chevron.svg"
    icon.width: 18
    icon.height: 18
    icon.color: expanded ? Theme.text : Theme.textMuted
    rotation: expanded ? 0 : -90

    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.description: expanded ? qsTr("ausgeklappt") : qsTr("eingeklappt")
    Accessible.checkable: true
    Accessible.checked: expanded
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    Keys.onReturnPressed: event => event.isAutoRepeat || clicked()
    Keys.onEnterPressed: event => event.isAutoRepeat || clicked()

    Behavior on rotation {
        enabled: root.animated
        NumberAnimation { duration: 140; easing.type: Easing.OutCubic }
    }

    background: Rectangle {
        radius: width / 2
        color: root.hovered || root.down ? root.Material.rippleColor : "transparent"
        border.width: root.visualFocus ? 2 : 0
        border.color: Theme.focusFrame
    }
}
