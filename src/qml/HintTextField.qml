import QtQuick
import QtQuick.Controls.Material

/// A line of text with a hint while it is empty. The style's own placeholder would move onto the
/// border of so low a field.
TextField {
    id: root

    required property string hint

    implicitHeight: 40
    topPadding: 0
    bottomPadding: 0
    leftPadding: 12
    rightPadding: 12
    font.pixelSize: 13
    selectByMouse: true

    Accessible.role: Accessible.EditableText
    Accessible.description: hint

    Label {
        anchors {
            fill: parent
            leftMargin: root.leftPadding
            rightMargin: root.rightPadding
        }
        visible: root.length === 0 && root.preeditText === ""
        text: root.hint
        font: root.font
        color: root.Material.hintTextColor
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
