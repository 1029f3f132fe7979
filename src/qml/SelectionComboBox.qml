import QtQuick
import Meridax

/// A combo box that always shows `selectedIndex`, which is set from outside. A combo box by itself
/// falls back to its first entry when its model changes.
SettingsComboBox {
    id: root

    required property int selectedIndex

    function _showSelection() {
        currentIndex = selectedIndex;
    }

    onSelectedIndexChanged: _showSelection()
    onModelChanged: _showSelection()
    onActivated: Qt.callLater(_showSelection)
    Component.onCompleted: _showSelection()
}
