import QtQuick
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml/folderUrl.mjs" as FolderUrl

// The screenshot button and the marks of the spot focus, in the window with a running camera.
TestCase {
    id: testCase

    name: "ScreenshotAndSpotFocus"
    when: windowShown

    property var window: null

    Component {
        id: mainComponent

        Main {}
    }

    SignalSpy {
        id: taps

        target: ViewModel
        signalName: "focusTapRequested"
    }

    function initTestCase() {
        compare(ViewModel.running, false);
    }

    function init() {
        // Whether the simulated camera's focus range is known by then is none of this test's.
        failOnWarning(/^(?!\[FocusTap\])/);
        testFolder.clear();
        taps.clear();
        ViewModel.zoom = 1;
        ViewModel.saveWindowGeometry(0, 0, 1200, 800, false);
        window = createTemporaryObject(mainComponent, testCase);
        tryCompare(window, "active", true);
        ViewModel.selectedResolutionIndex = ViewModel.resolutionOptions.length - 1; // the smallest
        mouseClick(item("startStopButton"));
        tryCompare(window, "hasFirstFrame", true, 20000);
        tryVerify(() => item("overlayCanvas").ovlPxScale > 0);
    }

    function cleanup() {
        ViewModel.stopCamera();
        tryCompare(ViewModel, "running", false);
        window = null;
    }

    function item(name: string): var {
        const found = findChild(window, name);
        verify(found, `no item ${name}`);
        return found;
    }

    function test_screenshot_data() {
        return [
            { tag: "as on the screen", overlay: true },
            { tag: "bare frame", overlay: false }
        ];
    }
    function test_screenshot(data) {
        ViewModel.screenshotPath = testFolder.path;
        ViewModel.screenshotIncludeOverlays = data.overlay;
        const button = item("screenshotButton");
        tryVerify(() => ViewModel.frameInfo !== "");
        mouseClick(button);
        tryCompare(button, "confirming", true);
        compare(testFolder.files().length, 1);
        const size = testFolder.imageSize(testFolder.files()[0]);
        const expected = data.overlay ? Qt.size(item("captureArea").width, item("captureArea").height)
                                      : Qt.size(ViewModel.resolutionX, ViewModel.resolutionY);
        compare(size, expected);
        tryCompare(button, "confirming", false);
    }

    function test_screenshotWithoutAFolder_data() {
        return [{ tag: "with marks", overlay: true }, { tag: "without", overlay: false }];
    }
    function test_screenshotWithoutAFolder(data) {
        ViewModel.screenshotPath = "";
        ViewModel.screenshotIncludeOverlays = data.overlay;
        mouseClick(item("screenshotButton"));
        const toast = item("screenshotToast");
        tryCompare(toast, "visible", true);
        compare(toast.text, "Screenshot: zuerst in den Einstellungen einen Ordner wählen");
        verify(!item("screenshotButton").confirming);
    }

    function test_screenshotFailure() {
        ViewModel.screenshotPath = "/proc/meridax";
        ViewModel.screenshotIncludeOverlays = true;
        ignoreWarning(/Zielordner konnte nicht erzeugt werden/);
        mouseClick(item("screenshotButton"));
        tryCompare(item("screenshotToast"), "text", "Screenshot fehlgeschlagen — siehe Log");
    }

    function test_folderAddresses_data() {
        return [
            { tag: "path", path: "/home/jürgen/Bilder & Co #1",
              url: "file:///home/j%C3%BCrgen/Bilder%20%26%20Co%20%231" },
            { tag: "drive", path: "C:/Bilder", url: "file:///C:/Bilder" }
        ];
    }
    function test_folderAddresses(data) {
        compare(FolderUrl.fromPath(data.path), data.url);
        compare(FolderUrl.toPath(data.url), data.path);
    }

    function test_aTapMeetsTheFramePixelUnderIt() {
        const overlay = item("overlayCanvas");
        mouseClick(overlay, 600, 300);
        compare(taps.count, 0, "only in tap mode");

        ViewModel.focusTapModeActive = true;
        ViewModel.zoom = 2;
        tryVerify(() => overlay.ovlSrc.width < ViewModel.resolutionX);
        mouseClick(overlay, 600, 300);
        compare(taps.count, 1);
        fuzzyCompare(taps.signalArguments[0][0],
                     overlay.ovlSrc.x + (600 - overlay.ovlDst.x) / overlay.ovlPxScale, 0.01);
        fuzzyCompare(taps.signalArguments[0][1],
                     overlay.ovlSrc.y + (300 - overlay.ovlDst.y) / overlay.ovlPxScale, 0.01);
        verify(item("tapMarker").visible);
        compare(item("tapMarker").parent.x, 600);
    }

    function test_inTapModeTheMarksAreOutOfReach() {
        const overlay = item("overlayCanvas");
        ViewModel.circle1Enabled = true;
        const onEdge = Qt.point(overlay.ovlScx + ViewModel.circle1Radius * overlay.ovlPxScale,
                                overlay.ovlScy);
        mouseMove(overlay, onEdge.x, onEdge.y);
        tryCompare(overlay, "hoverCircle", 1);
        ViewModel.focusTapModeActive = true;
        compare(overlay.hoverCircle, 0);
        const radius = ViewModel.circle1Radius;
        mouseDrag(overlay, onEdge.x, onEdge.y, 60, 0);
        compare(ViewModel.circle1Radius, radius);
        compare(overlay.hoverCircle, 0);
    }

    function test_aTapBesideThePictureIsIgnored() {
        const overlay = item("overlayCanvas");
        verify(overlay.ovlDst.x > 4, "4:3 in a wide window");
        ViewModel.focusTapModeActive = true;
        mouseClick(overlay, 2, 400);
        compare(taps.count, 0);
        verify(!item("tapMarker").visible);
    }

    function test_outcomes_data() {
        return [
            { tag: "no structure", outcome: 1, text: "Keine fokussierbare Struktur gefunden." },
            { tag: "no motor", outcome: 2, text: "Fokus dieser Kamera ist nicht steuerbar." },
            { tag: "not yet", outcome: 4,
              text: "Fokusbereich wird noch ermittelt — bitte kurz warten." }
        ];
    }
    function test_outcomes(data) {
        const area = item("focusTapArea");
        area.tapPoint = Qt.point(area.width / 2, area.height - 4); // under the status bar
        ViewModel.focusSweepFeedback(3);
        verify(!item("focusToast").visible);
        ViewModel.focusSweepFeedback(data.outcome);
        tryCompare(item("focusToast"), "visible", true);
        compare(item("focusToast").text, data.text);
        const toast = item("focusToast");
        verify(toast.y + toast.height < item("footerBar").y, "over the status bar");
        ViewModel.focusSweepFeedback(0);
        tryCompare(item("successRing"), "visible", true);
    }
}
