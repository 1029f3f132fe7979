import QtQuick

/// Keeps the keyboard usable when the control that has the focus vanishes, such as a button that
/// does away with itself: the focus goes on to the next control in the order of the tab key.
Item {
    id: root

    readonly property Item _focused: Window.activeFocusItem
    readonly property bool _vanished: _focused !== null && !_focused.visible

    function _moveOn() {
        if (_vanished)
            _focused.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason);
    }

    // Later: a popup that closes gives the focus back by itself.
    on_VanishedChanged: Qt.callLater(_moveOn)
}
