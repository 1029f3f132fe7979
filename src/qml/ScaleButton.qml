import QtQuick
import QtQuick.Controls.Material
import Meridax

/// One choice of the scale switch.
///
/// A plain rectangle on purpose: the style's own button sets its colours in the checked state and
/// leaves no readable label on a light ground, and its click overwrites a binding on `checked`.
Rectangle {
    id: root

    required property string text
    required property bool active

    signal clicked()

    implicitWidth: label.implicitWidth + 10
    implicitHeight: 22
    radius: 3
    color: active ? Theme.separatorLine : "transparent"
    border.width: 1
    border.color: active ? Theme.textMuted : Theme.separatorLine
    // Among the choices the arrow keys lead.
    activeFocusOnTab: active || activeFocus

    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.focusable: active
    Accessible.checkable: true
    Accessible.checked: active
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: event => event.isAutoRepeat || clicked()
    Keys.onEnterPressed: event => event.isAutoRepeat || clicked()

    Label {
        id: label
        anchors.centerIn: parent
        text: root.text
        font.pixelSize: 9
        font.bold: root.active
        color: root.active ? Theme.text : Theme.textMuted
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()
    }

    FocusFrame { }
}
