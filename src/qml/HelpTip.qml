pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The help that appears at its parent while that is pointed at or has the keyboard focus: the one
/// kind of tool tip there is.
Loader {
    id: root

    property string text
    /// The pointer or the keyboard focus asks for it.
    property bool wanted: false
    /// Also where the user has switched tool tips off.
    property bool always: false
    /// Milliseconds.
    property int delay: 400
    /// To the right of its parent and not below, where the next of a column would be covered.
    property bool beside: false

    readonly property bool opened: (item as ToolTip)?.opened ?? false

    readonly property bool _shown: wanted && text !== "" && (always || ViewModel.showTooltips)
    readonly property int _gap: 6

    // Few of them are ever asked for.
    active: false
    on_ShownChanged: active = active || _shown

    Item {
        id: nowhere
    }

    sourceComponent: ToolTip {
        id: tip

        parent: root.parent
        // Not before the delay is known.
        visible: root._shown && root.status === Loader.Ready
        delay: root.delay
        text: root.text
        // Above every dialog.
        z: 100
        x: root.beside ? parent.width + root._gap : (parent.width - width) / 2
        contentWidth: Math.min(implicitContentWidth, 300)
        font.pixelSize: 12

        // It is nowhere for the mouse: clicks go to what lies under it.
        Component.onCompleted: contentItem.parent.containmentMask = nowhere
        onAboutToShow: {
            const room = parent.Window.height - bottomMargin
                       - parent.mapToItem(null, 0, parent.height + root._gap).y;
            if (root.beside)
                y = (parent.height - height) / 2;
            else
                y = height <= room ? parent.height + root._gap : -height - root._gap;
        }

        contentItem: Text {
            text: tip.text
            // It may hold a name or a path from outside.
            textFormat: Text.PlainText
            font: tip.font
            wrapMode: Text.Wrap
            color: tip.Material.foreground
        }

        enter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 120 }
        }
        exit: Transition {
            NumberAnimation { property: "opacity"; from: 1; to: 0; duration: 120 }
        }
    }
}
