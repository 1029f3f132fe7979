import QtQuick
import QtQuick.Controls.Material
import QtQuick.Templates as T

/// A compact text field over the picture. The template and not the style's field: that one moves its
/// placeholder out of so low a field.
T.TextField {
    id: root

    /// Opacity of the black ground.
    property real groundOpacity: 0.7

    /// Escape was pressed.
    signal cancelled()

    leftPadding: 8
    rightPadding: 8
    verticalAlignment: TextInput.AlignVCenter
    font.pixelSize: 12
    color: "white"
    placeholderTextColor: "#C8C8C8"
    selectByMouse: true
    selectionColor: "#4A9ECA"
    selectedTextColor: "white"

    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText

    // Taken here, lest the key go on to what the field lies in.
    Keys.onReturnPressed: event => event.isAutoRepeat || accepted()
    Keys.onEnterPressed: event => event.isAutoRepeat || accepted()
    Keys.onEscapePressed: cancelled()

    background: Rectangle {
        radius: 4
        color: Qt.rgba(0, 0, 0, root.groundOpacity)
        border.color: Qt.rgba(0x4A / 255, 0x9E / 255, 0xCA / 255, 0.6)
    }

    Label {
        anchors.fill: parent
        leftPadding: root.leftPadding
        verticalAlignment: Text.AlignVCenter
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        Accessible.ignored: true
        elide: Text.ElideRight
    }
}
