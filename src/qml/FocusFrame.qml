import QtQuick
import Meridax

/// Frame around a control that has the keyboard focus. It fills its parent.
Rectangle {
    anchors.fill: parent
    anchors.margins: -2
    radius: 5
    visible: parent?.activeFocus ?? false
    color: "transparent"
    border.width: 2
    border.color: Theme.focusFrame
}
