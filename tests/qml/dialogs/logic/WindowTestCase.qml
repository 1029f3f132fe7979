import QtQuick
import QtQuick.Controls
import QtTest
import Meridax

/// A test case on the real window, with what finds its parts and waits for its dialogs.
TestCase {
    id: testCase

    property var window: null

    when: windowShown

    Component {
        id: mainComponent

        Main {}
    }

    function init() {
        // The offscreen platform knows no smallest size of a window.
        failOnWarning(/^(?!This plugin does not support propagateSizeHints)/);
    }

    function cleanup() {
        window = null;
    }

    function open(width: int, height: int) {
        ViewModel.saveWindowGeometry(0, 0, width || 1200, height || 800, false);
        window = createTemporaryObject(mainComponent, testCase);
        verify(window);
        window.requestActivate();
        tryCompare(window, "active", true);
    }

    function item(name: string): var {
        const found = findChild(window, name);
        verify(found, `no item ${name}`);
        return found;
    }

    /// The part `name` of the popup `popup`, in header, content or footer.
    function part(popup: var, name: string): var {
        let found = null;
        for (const area of [popup.contentItem, popup.header, popup.footer])
            found = found ?? _below(area, name);
        verify(found, `no part ${name}`);
        return found;
    }

    // Items only, unlike findChild: a dialog may own another one with parts of the same names.
    function _below(area: Item, name: string): Item {
        if (!area || area.objectName === name)
            return area ?? null;
        for (const child of area.children) {
            const found = _below(child, name);
            if (found)
                return found;
        }
        return null;
    }

    function opened(popup: var) {
        tryCompare(popup, "opened", true);
    }

    function closed(popup: var) {
        tryCompare(popup, "visible", false);
    }

    function type(text: string) {
        for (const character of text)
            keyClick(character);
    }

    function openSettings(): var {
        mouseClick(item("settingsButton"));
        const panel = item("settingsPanel");
        opened(panel);
        tryCompare(panel, "position", 1);
        return panel;
    }

    /// A press outside of all popups, near the lower edge of the window.
    function pressOutside() {
        mouseClick(window.contentItem, 4, window.height - 4);
    }
}
