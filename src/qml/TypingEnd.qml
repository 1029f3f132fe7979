import QtQuick
import QtQuick.Controls

/// Ends typing on a press beside the text field: the field loses the focus, whatever lies under the
/// press. Stands above all else in the window and lets every press through.
MouseArea {
    id: root

    anchors.fill: parent
    z: 100
    acceptedButtons: Qt.AllButtons
    onPressed: mouse => {
        const input = root.Window.activeFocusItem;
        if (input instanceof TextInput) {
            // A spin box gives the focus back to the field in it.
            const field = input.parent instanceof SpinBox ? input.parent : input;
            if (!field.contains(field.mapFromItem(root, mouse.x, mouse.y)))
                field.focus = false;
        }
        mouse.accepted = false;
    }
}
