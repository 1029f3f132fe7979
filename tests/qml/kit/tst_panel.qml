import QtQuick
import QtTest
import Meridax

TestCase {
    id: testCase

    name: "SidePanels"
    when: windowShown
    width: 600
    height: 400
    visible: true

    property int leaked: 0
    property Item panel: null

    // Stands for the picture under the panel.
    MouseArea {
        anchors.fill: parent
        onWheel: ++testCase.leaked
        onPressed: ++testCase.leaked
    }

    Component {
        id: leftComponent

        LeftSettingsPanel {
            height: 400
        }
    }

    Component {
        id: rightComponent

        RightOverlayPanel {
            height: 400
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        ViewModel.cameraPanelExpandedAtStart = true;
        ViewModel.overlayPanelExpandedAtStart = true;
        ViewModel.setSectionCollapsed("blobParams", false);
        open(leftComponent);
        leaked = 0;
    }

    function open(component: Component) {
        if (panel)
            panel.destroy();
        panel = createTemporaryObject(component, testCase);
        verify(waitForRendering(panel));
    }

    function part(name: string): Item {
        const found = findChild(panel, name);
        verify(found, `no part ${name}`);
        return found;
    }

    function sides(): var {
        return [{ tag: "left", component: leftComponent, setting: "cameraPanelExpandedAtStart",
                  width: 428, inner: "cameraPage", symbols: "‹›" },
                { tag: "right", component: rightComponent, setting: "overlayPanelExpandedAtStart",
                  width: 368, inner: "overlayPage", symbols: "›‹" }];
    }

    function test_startState_data() { return sides(); }
    function test_startState(data) {
        open(data.component);
        compare(panel.width, data.width);
        // The setting tells how the window opens; an open panel stays as it is.
        ViewModel[data.setting] = false;
        verify(panel.expanded);
        compare(createTemporaryObject(data.component, testCase).width, 28);
    }

    function test_folding_data() {
        const ways = [
            { tag: "click", act: handle => mouseClick(handle) },
            { tag: "space",
              act: handle => { handle.forceActiveFocus(); keyClick(Qt.Key_Space); } },
            { tag: "return",
              act: handle => { handle.forceActiveFocus(); keyClick(Qt.Key_Return); } }
        ];
        const rows = [];
        for (const side of sides()) {
            for (const way of ways)
                rows.push(Object.assign({}, side, way, { tag: `${side.tag} by ${way.tag}` }));
        }
        return rows;
    }

    function test_folding(data) {
        open(data.component);
        compare(part("panelHandle").symbol, data.symbols[0]);
        data.act(part("panelHandle"));
        verify(!panel.expanded);
        compare(part("panelHandle").symbol, data.symbols[1]);
        tryCompare(panel, "width", 28);
        // Nothing that is out of sight can be reached by the keyboard.
        verify(!part(data.inner).visible);
        verify(ViewModel[data.setting]);
        data.act(part("panelHandle"));
        tryCompare(panel, "width", data.width);
        verify(part(data.inner).visible);
    }

    function test_tabs() {
        compare(panel.currentTab, 0);
        mouseClick(part("tabCalibration"));
        compare(panel.currentTab, 1);
        verify(part("calibrationPage").visible);
        verify(!part("cameraPage").visible);
        compare(part("tabCamera").width, part("tabCalibration").width);

        panel.expanded = false;
        panel.switchToCamera();
        verify(panel.expanded);
        compare(panel.currentTab, 0);
    }

    function test_nothingReachesThePicture_data() {
        return [{ tag: "camera page", x: 60, y: 300 },
                { tag: "calibration page", tab: 1, x: 60, y: 300 },
                { tag: "tab bar", x: 100, y: 20 },
                { tag: "beside the handle", x: 414, y: 20 },
                { tag: "overlay page", right: true, x: 60, y: 300 },
                { tag: "right tab bar", right: true, x: 100, y: 20 },
                { tag: "beside the right handle", right: true, x: 14, y: 20 }];
    }

    function test_nothingReachesThePicture(data) {
        if (data.right)
            open(rightComponent);
        if (data.tab)
            panel.currentTab = data.tab;
        // Sideways first: a handler that has just turned takes any direction.
        for (const [dx, dy] of [[120, 0], [0, 120], [0, -120]])
            mouseWheel(panel, data.x, data.y, dx, dy);
        if (data.x > panel.handleWidth && data.x < panel.contentWidth)
            mouseClick(panel, data.x, data.y);
        compare(leaked, 0);
        mouseWheel(testCase, 500, 200, 0, 120);
        compare(leaked, 1);
    }

    function test_pageScrollsAndStops() {
        panel.currentTab = 1;
        const page = part("calibrationPage");
        verify(waitForRendering(page));
        verify(page.contentHeight > page.height);
        mouseWheel(page, 40, 100, 0, -120);
        tryVerify(() => page.contentY > 0);
        compare(leaked, 0);
    }

    function test_focusComesIntoView() {
        panel.currentTab = 1;
        const page = part("calibrationPage");
        verify(waitForRendering(page));
        const chevron = findChild(part("blobSection"), "chevron");
        page.contentY = page.contentHeight - page.height;
        chevron.forceActiveFocus(Qt.TabFocusReason);
        const top = chevron.mapToItem(page, 0, 0).y;
        verify(top >= 0 && top + chevron.height <= page.height);
    }

    function test_cameraChoice() {
        const cameras = part("cameraSelector");
        const resolutions = part("resolutionSelector");
        compare(cameras.count, ViewModel.cameraNames.length);
        compare(cameras.currentIndex, ViewModel.selectedCameraIndex);
        verify(cameras.enabled && part("refreshCamerasButton").enabled);
        verify(resolutions.visible);
        compare(resolutions.currentIndex, ViewModel.selectedResolutionIndex);

        const chosen = resolutions.currentIndex > 0 ? resolutions.currentIndex - 1 : 1;
        resolutions.forceActiveFocus();
        keyClick(chosen === 1 ? Qt.Key_Down : Qt.Key_Up);
        compare(ViewModel.selectedResolutionIndex, chosen);
        compare(resolutions.displayText, ViewModel.resolutionOptions[chosen]);

        ViewModel.startCamera();
        tryCompare(ViewModel, "running", true, 20000);
        verify(!cameras.enabled && !resolutions.enabled);
        verify(!part("refreshCamerasButton").enabled);
        ViewModel.stopCamera();
        tryCompare(ViewModel, "running", false);
    }
}
