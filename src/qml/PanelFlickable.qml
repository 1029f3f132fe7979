import QtQuick
import QtQuick.Controls.Material

/// A scrolling page of a side panel. What receives the keyboard focus comes into view.
Flickable {
    id: root

    readonly property Item _focusItem: Window.window?.activeFocusItem ?? null

    function _showFocusItem() {
        if (!_isInside(_focusItem))
            return;
        const top = _focusItem.mapToItem(contentItem, 0, 0).y;
        const bottom = top + _focusItem.height;
        const margin = 8;
        if (top - margin < contentY)
            contentY = Math.max(0, top - margin);
        else if (bottom + margin > contentY + height - bottomMargin)
            contentY = Math.min(Math.max(0, contentHeight + bottomMargin - height),
                                bottom + margin + bottomMargin - height);
    }

    function _isInside(item: Item): bool {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === contentItem)
                return true;
        }
        return false;
    }

    contentWidth: width
    boundsBehavior: Flickable.StopAtBounds
    // In a narrow window the zoom control lies over the lower edge: the last row has to come free.
    bottomMargin: 24
    clip: true

    on_FocusItemChanged: _showFocusItem()

    ScrollBar.vertical: ScrollBar {
        policy: ScrollBar.AsNeeded
        minimumSize: 0.1
    }
}
