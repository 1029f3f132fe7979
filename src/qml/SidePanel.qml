import QtQuick
import QtQuick.Layouts
import Meridax

/// A panel at the left or right edge of the window that folds to its handle. Children stand one
/// below the other in its column.
Item {
    id: root

    /// Qt.LeftEdge or Qt.RightEdge.
    required property int edge
    // Read once: the setting tells how the window opens, and folding is not stored.
    required property bool expandedAtStart
    /// What the handle folds, for assistive technology.
    required property string handleName
    property bool expanded: true
    property int contentWidth: 400
    property int handleWidth: 28
    default property alias content: column.data

    readonly property bool _atLeft: edge === Qt.LeftEdge
    property bool _animated: false

    width: expanded ? contentWidth + handleWidth : handleWidth
    clip: true

    Component.onCompleted: {
        expanded = expandedAtStart;
        _animated = true;
    }

    Behavior on width {
        enabled: root._animated
        NumberAnimation { duration: 180; easing.type: Easing.InOutCubic }
    }

    // No wheel event passes to the picture underneath, where it would zoom. The pages inside have
    // priority and scroll.
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Vertical
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Horizontal
    }

    PanelHandle {
        objectName: "panelHandle"
        x: (root._atLeft ? root.width - root.handleWidth : 0) + (root.handleWidth - width) / 2
        anchors.verticalCenter: parent.verticalCenter
        expanded: root.expanded
        symbol: root.expanded === root._atLeft ? "‹" : "›"
        name: root.handleName
        onClicked: root.expanded = !root.expanded
    }

    Rectangle {
        readonly property int _innerRadius: 10

        // Slides with the inner edge.
        x: root._atLeft ? root.width - root.handleWidth - width : root.handleWidth
        width: root.contentWidth
        height: parent.height
        // Folded, the controls must not be reached by the keyboard either.
        visible: root.width > root.handleWidth
        topRightRadius: root._atLeft ? _innerRadius : 0
        bottomRightRadius: topRightRadius
        topLeftRadius: root._atLeft ? 0 : _innerRadius
        bottomLeftRadius: topLeftRadius
        color: Theme.panelBg

        InputShield { }

        ColumnLayout {
            id: column
            anchors.fill: parent
            spacing: 0
        }
    }
}
