import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts

/// A check box of the settings panel. `shownChecked` is set from outside; a user's change goes out
/// by `chosen` alone.
CheckBox {
    id: root

    property bool shownChecked: false
    property string toolTip

    signal chosen(checked: bool)

    Layout.fillWidth: true
    // In line with the labels: the style keeps room beside the box for its ripple.
    Layout.leftMargin: -8
    verticalPadding: 3
    font.pixelSize: 13

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.description: toolTip
    Accessible.checked: checked
    // By themselves they would change the mark and tell nobody.
    Accessible.onPressAction: click()
    Accessible.onToggleAction: click()

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()
    onToggled: chosen(checked)

    contentItem: Label {
        leftPadding: root.indicator.width + root.spacing
        text: root.text
        font: root.font
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    FocusFrame {
        anchors {
            margins: 0
            leftMargin: 4
        }
        visible: root.visualFocus
    }

    Binding {
        target: root
        property: "checked"
        value: root.shownChecked
        restoreMode: Binding.RestoreNone
    }

    HelpTip {
        objectName: "toolTip"
        wanted: root.hovered || root.visualFocus
        text: root.toolTip
    }
}
