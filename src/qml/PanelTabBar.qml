import QtQuick
import QtQuick.Controls.Material

/// The tabs of a side panel.
TabBar {
    id: root

    function _lead(distance: int) {
        const index = currentIndex + distance;
        if (index < 0 || index >= count)
            return;
        itemAt(index).forceActiveFocus(Qt.TabFocusReason);
        currentIndex = index;
    }

    background: null
    Material.accent: "#4A9ECA"

    Keys.onLeftPressed: _lead(-1)
    Keys.onRightPressed: _lead(1)
}
