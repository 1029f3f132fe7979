import QtQuick
import Meridax
import "windowGeometry.mjs" as WindowGeometry

/// Puts the window in its place at the start, follows its normal geometry and saves it at the end.
/// Stands in the window.
Item {
    id: root

    required property Window window

    /// Last known geometry while neither maximized nor minimized.
    property rect normal
    // A minimized window goes back to it, and closes with it.
    property bool _maximized: ViewModel.savedWindowMaximized
    // Where the window was to be at start.
    property rect _start
    // It opened maximized and was nowhere else yet.
    property bool _neverPlaced: false
    readonly property bool _placed: ViewModel.savedWindowWidth > 0
    // On Wayland a window neither knows nor chooses where it is.
    readonly property bool _positionKnown: !Qt.platform.pluginName.startsWith("wayland")

    function _rect(values: var): rect {
        return Qt.rect(values.x, values.y, values.width, values.height);
    }

    /// Takes the start position. Only in the windowed state: a maximized window would move when its
    /// position is written, and takes what it needs for restoring down from the noted geometry.
    function takeStart() {
        const screen = {
            x: Screen.virtualX, y: Screen.virtualY, width: Screen.width, height: Screen.height,
            availableWidth: Screen.desktopAvailableWidth,
            availableHeight: Screen.desktopAvailableHeight
        };
        _start = _rect(_placed ? WindowGeometry.reachable({
            x: ViewModel.savedWindowX, y: ViewModel.savedWindowY,
            width: ViewModel.savedWindowWidth, height: ViewModel.savedWindowHeight
        }, screen) : WindowGeometry.first(screen));
        normal = _start;
        _neverPlaced = window.visibility !== Window.Windowed;
        if (_neverPlaced)
            return;
        if (!_placed) {
            window.width = _start.width;
            window.height = _start.height;
        }
        window.x = _start.x;
        window.y = _start.y;
    }

    /// Takes the start position once a window that opened maximized is restored down: the platform
    /// knows none to restore. Not before it has its normal size, which a write would undo.
    function _takeRestored() {
        if (!_neverPlaced || window.visibility !== Window.Windowed
                || window.width !== _start.width || window.height !== _start.height)
            return;
        _neverPlaced = false;
        window.x = _start.x;
        window.y = _start.y;
    }

    function save() {
        const least = 400;
        const windowed = window.visibility === Window.Windowed;
        let place = windowed ? _rect(window) : normal;
        if (place.width < least || place.height < least)
            place = Qt.rect(place.x, place.y, _start.width, _start.height);
        if (!_positionKnown)
            place = Qt.rect(_start.x, _start.y, place.width, place.height);
        ViewModel.saveWindowGeometry(place.x, place.y, place.width, place.height, _maximized);
    }

    Connections {
        target: root.window

        function onWidthChanged() {
            commit.restart();
            root._takeRestored();
        }
        function onHeightChanged() {
            commit.restart();
            root._takeRestored();
        }
        function onXChanged() { commit.restart(); }
        function onYChanged() { commit.restart(); }
        function onVisibilityChanged() {
            const visibility = root.window.visibility;
            if (visibility !== Window.Minimized && visibility !== Window.Hidden)
                root._maximized = [Window.Maximized, Window.FullScreen].includes(visibility);
            commit.restart();
            root._takeRestored();
        }
    }

    // On maximizing, the platform changes the size first and the state afterwards, so the change
    // handlers still see a window that is not maximized.
    Timer {
        id: commit

        objectName: "normalGeometryCommit"
        interval: 300
        onTriggered: {
            if (root.window.visibility !== Window.Windowed)
                return;
            root.normal = root._rect(root.window);
            // Restored to some other size: the window has its place now.
            root._neverPlaced = false;
        }
    }
}
