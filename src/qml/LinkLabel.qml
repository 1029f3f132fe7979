import QtQuick
import QtQuick.Controls.Material

/// A link in a line of text.
AbstractButton {
    id: root

    required property color color

    font.pixelSize: 11
    focusPolicy: Qt.TabFocus

    Accessible.role: Accessible.Link
    Accessible.name: text

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    contentItem: Label {
        text: root.text
        font {
            pixelSize: root.font.pixelSize
            underline: root.hovered
        }
        color: root.color
        Accessible.ignored: true
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    FocusFrame {
        visible: root.visualFocus
    }
}
