import QtQuick
import QtQuick.Controls.Material
import Meridax

/// A circled question mark that explains the parameter beside it.
///
/// It does not obey ViewModel.showTooltips: who points at a help sign wants the help.
Item {
    id: root

    property string text
    property int iconSize: 14
    /// Milliseconds; short, yet no tool tip on a mere pass over the sign.
    property int hoverDelay: 350

    readonly property bool _marked: hover.hovered || activeFocus

    objectName: "helpSign"
    visible: text.length > 0
    implicitWidth: text.length > 0 ? iconSize : 0
    implicitHeight: implicitWidth
    activeFocusOnTab: true

    Accessible.role: Accessible.ToolTip
    Accessible.name: text
    Accessible.ignored: text.length === 0

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: "transparent"
        border.width: 1
        border.color: root._marked ? Theme.sliderLabel : Theme.textMuted

        Behavior on border.color {
            ColorAnimation { duration: 120 }
        }
    }

    Label {
        anchors.centerIn: parent
        text: "?"
        font.pixelSize: Math.round(root.iconSize * 0.72)
        font.bold: true
        color: root._marked ? Theme.sliderLabel : Theme.textMuted
        Accessible.ignored: true

        Behavior on color {
            ColorAnimation { duration: 120 }
        }
    }

    FocusFrame {
        radius: height / 2
    }

    HoverHandler {
        id: hover
        cursorShape: Qt.WhatsThisCursor
    }

    HelpTip {
        objectName: "helpTip"
        wanted: root.visible && root._marked
        always: true
        delay: root.hoverDelay
        text: root.text
    }
}
