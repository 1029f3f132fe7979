import QtQuick

/// Ends typing on a press beside the text field: the field loses the focus, whatever lies under the
/// press. Stands above all else in the window and lets every press through.
MouseArea {
    id: root

    anchors.fill: parent
    z: 100
    acceptedButtons: Qt.AllButtons
    onPressed: mouse => {
        const field = root.Window.activeFocusItem;
        if (field instanceof TextInput
                && !field.contains(field.mapFromItem(root, mouse.x, mouse.y)))
            field.focus = false;
        mouse.accepted = false;
    }
}
