import QtQuick
import QtQuick.Controls.Material

/// A scrolling page of a side panel. What receives the keyboard focus comes into view.
Flickable {
    id: root

    property int scrollBarPolicy: ScrollBar.AsNeeded

    readonly property Item _focusItem: Window.window?.activeFocusItem ?? null

    function _showFocusItem() {
        // Under the pointer nothing may move: the press would miss what it was meant for.
        if (!_isInside(_focusItem) || (_focusItem as Control)?.focusReason === Qt.MouseFocusReason)
            return;
        const item = _scrolledWhole(_focusItem);
        const top = item.mapToItem(contentItem, 0, 0).y;
        const bottom = top + item.height;
        const margin = 8;
        if (top - margin < contentY)
            contentY = Math.max(0, top - margin);
        else if (bottom + margin > contentY + height - bottomMargin)
            contentY = Math.min(Math.max(0, contentHeight + bottomMargin - height),
                                bottom + margin + bottomMargin - height);
    }

    /// A view inside this one moves its content by itself, so the view has to be seen.
    function _scrolledWhole(item: Item): Item {
        let whole = item;
        for (let ancestor = item.parent; ancestor !== contentItem; ancestor = ancestor.parent) {
            if (ancestor instanceof Flickable)
                whole = ancestor;
        }
        return whole;
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
        policy: root.scrollBarPolicy
        minimumSize: 0.1
        // The focus scrolls, so the bar offers nothing of its own.
        Accessible.ignored: true
    }
}
