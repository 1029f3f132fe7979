import QtQuick
import QtTest
import Meridax

TestCase {
    id: testCase

    name: "LeftSettingsPanel"
    when: windowShown
    width: 600
    height: 400
    visible: true

    property int leaked: 0
    property LeftSettingsPanel panel: null

    // Stands for the picture under the panel.
    MouseArea {
        anchors.fill: parent
        onWheel: ++testCase.leaked
        onPressed: ++testCase.leaked
    }

    Component {
        id: panelComponent

        LeftSettingsPanel {
            height: 400
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        ViewModel.cameraPanelExpandedAtStart = true;
        ViewModel.setSectionCollapsed("blobParams", false);
        panel = createTemporaryObject(panelComponent, testCase);
        verify(waitForRendering(panel));
        leaked = 0;
    }

    function part(name: string): Item {
        const found = findChild(panel, name);
        verify(found, `no part ${name}`);
        return found;
    }

    function test_startState() {
        compare(panel.width, 428);
        // The setting tells how the window opens; an open panel stays as it is.
        ViewModel.cameraPanelExpandedAtStart = false;
        verify(panel.expanded);
        compare(createTemporaryObject(panelComponent, testCase).width, 28);
    }

    function test_folding_data() {
        return [{ tag: "click", act: handle => mouseClick(handle) },
                { tag: "space",
                  act: handle => { handle.forceActiveFocus(); keyClick(Qt.Key_Space); } },
                { tag: "return",
                  act: handle => { handle.forceActiveFocus(); keyClick(Qt.Key_Return); } }];
    }

    function test_folding(data) {
        data.act(part("panelHandle"));
        verify(!panel.expanded);
        tryCompare(panel, "width", 28);
        // Nothing that is out of sight can be reached by the keyboard.
        verify(!part("cameraSelector").visible);
        verify(ViewModel.cameraPanelExpandedAtStart);
        data.act(part("panelHandle"));
        tryCompare(panel, "width", 428);
        verify(part("cameraSelector").visible);
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
        return [{ tag: "camera page", tab: 0, x: 200, y: 300 },
                { tag: "calibration page", tab: 1, x: 200, y: 300 },
                { tag: "tab bar", tab: 0, x: 100, y: 20 },
                { tag: "beside the handle", tab: 0, x: 414, y: 20 }];
    }

    function test_nothingReachesThePicture(data) {
        panel.currentTab = data.tab;
        // Sideways first: a handler that has just turned takes any direction.
        for (const [dx, dy] of [[120, 0], [0, 120], [0, -120]])
            mouseWheel(panel, data.x, data.y, dx, dy);
        if (data.x < panel.contentWidth)
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
