import QtQuick
import QtQuick.Layouts
import Meridax

/// A group of controls with a header that folds it.
///
/// Disable a group by `contentEnabled`, not by `enabled`: that is inherited downwards, and a
/// header that is disabled with its group can no longer fold it.
///
/// Assign `headerRight` a list, even for one element.
ColumnLayout {
    id: root

    property string title
    /// Key under which the folded state is remembered; empty: for this session only.
    property string persistKey
    property bool defaultCollapsed: false
    property int topPadding: 8
    property bool separator: true
    property bool contentEnabled: true
    // Not bound to the remembered state: the first toggle would break the binding.
    property bool expanded: true
    default property alias content: column.data
    property alias headerRight: headerControls.data

    property bool _animated: false
    property real _openness: expanded ? 1 : 0

    function toggle() {
        expanded = !expanded;
        if (persistKey !== "")
            ViewModel.setSectionCollapsed(persistKey, !expanded);
    }

    spacing: 0

    Component.onCompleted: {
        expanded = persistKey !== "" ? !ViewModel.sectionCollapsed(persistKey, defaultCollapsed)
                                     : !defaultCollapsed;
        _animated = true;
    }

    Behavior on _openness {
        enabled: root._animated
        NumberAnimation { duration: 160; easing.type: Easing.OutCubic }
    }

    Rectangle {
        Layout.fillWidth: true
        Layout.topMargin: 8
        implicitHeight: 1
        visible: root.separator
        color: Theme.dividerMid
    }

    Item {
        objectName: "sectionHeader"
        Layout.fillWidth: true
        Layout.topMargin: root.topPadding
        // Room for tall controls between the line above and the value below.
        implicitHeight: headerRow.implicitHeight + 8

        // Under the row, so that the chevron keeps its clicks, and not under the header's own
        // controls: a click on one that is disabled folds nothing.
        MouseArea {
            anchors {
                fill: parent
                rightMargin: headerControls.width
            }
            onClicked: root.toggle()
        }

        RowLayout {
            id: headerRow
            anchors.fill: parent
            spacing: 6

            SectionChevron {
                id: chevron
                objectName: "chevron"
                expanded: root.expanded
                title: root.title
                animated: root._animated
                onClicked: root.toggle()
            }

            SectionLabel {
                Layout.fillWidth: true
                text: root.title
                elide: Text.ElideRight
            }

            // No preferred height: bound to its own implicit height the row would settle at 0.
            RowLayout {
                id: headerControls
                spacing: 6
            }
        }
    }

    Item {
        objectName: "contentBox"
        Layout.fillWidth: true
        implicitWidth: column.implicitWidth
        implicitHeight: column.implicitHeight * root._openness
        clip: true
        // Clipping alone leaves pieces behind: values and pills draw outside the layout's bounds.
        visible: implicitHeight > 0.5

        // Keeps its full height, so that nothing wraps anew while the box opens.
        ColumnLayout {
            id: column
            width: parent.width
            height: implicitHeight
            spacing: 8
            enabled: root.contentEnabled
        }
    }
}
