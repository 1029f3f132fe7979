import QtQuick
import QtTest
import Meridax

// The window while a camera runs.
TestCase {
    id: testCase

    name: "RunningCamera"
    when: windowShown

    property var window: null

    Component {
        id: mainComponent

        Main {}
    }

    function initTestCase() {
        // Creates the view model. A machine without sound server makes the media library warn.
        compare(ViewModel.running, false);
    }

    function init() {
        failOnWarning(/.?/);
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

    function test_startAndStop() {
        compare(item("startStopButton").text, "Stop");
        compare(item("connectionLabel").text, "Kamera verbunden");
        ViewModel.controller.statusChanged("Kamera liefert kein Bild");
        compare(item("connectionLabel").text, "Kamera liefert kein Bild");
        compare(item("connectionLabel").color, Theme.text);
        ViewModel.controller.statusChanged("");
        compare(item("connectionLabel").text, "Kamera verbunden");
        compare(item("calibrationLabel").text, "Nicht kalibriert");
        verify(item("cameraLabel").text.startsWith(ViewModel.selectedCameraName + "  ("));
        verify(item("overlayCanvas").visible);
        verify(item("zoomControl").visible);
        verify(!item("watermark").visible);
        tryCompare(item("videoItem"), "viewSourceRect",
                   Qt.rect(0, 0, ViewModel.resolutionX, ViewModel.resolutionY));

        mouseClick(item("startStopButton"));
        tryCompare(ViewModel, "running", false);
        tryCompare(window, "hasFirstFrame", false);
        tryCompare(item("videoItem"), "viewSourceRect", Qt.rect(0, 0, -1, -1));
        verify(!item("overlayCanvas").visible);
        verify(!item("zoomControl").visible);
        verify(item("watermark").visible);
    }

    // The presets of a camera are there again when it is started again.
    function test_presetsLieBesideThePanel() {
        const presets = item("focusPresetOverlay");
        const panel = item("leftPanel");
        verify(presets.visible);
        ViewModel.addFocusPreset("eins");
        compare(presets.x, panel.width + 12);
        panel.expanded = false;
        tryCompare(presets, "x", panel.handleWidth + 12);
        panel.expanded = true;
        tryCompare(presets, "x", panel.width + 12);

        ViewModel.stopCamera();
        tryCompare(ViewModel, "running", false);
        verify(!presets.visible);
        ViewModel.startCamera();
        tryCompare(ViewModel, "running", true, 20000);
        verify(presets.visible);
        compare(ViewModel.focusPresets.length, 1);
        ViewModel.removeFocusPreset(0);
    }

    function test_zoomControlCanBeSwitchedOff() {
        ViewModel.showZoomOverlay = false;
        verify(!item("zoomControl").visible);
        ViewModel.showZoomOverlay = true;
        verify(item("zoomControl").visible);
    }

    function test_zoomSliderCanBeDraggedOverThePicture() {
        ViewModel.zoom = 1;
        const slider = item("zoomSlider");
        const y = slider.height / 2;
        mousePress(slider, slider.leftPadding + 5, y);
        for (let x = slider.leftPadding + 5; x <= slider.width / 2; x += 8)
            mouseMove(slider, x, y);
        mouseMove(slider, slider.width / 2, y);
        mouseRelease(slider, slider.width / 2, y);
        fuzzyCompare(ViewModel.zoom, 3, 0.05);
        ViewModel.zoom = 1;
    }

    // Marks that run on under panel and bars cannot be taken hold of there.
    function test_marksUnderPanelAndBarsAreOutOfReach_data() {
        return [
            { tag: "left panel", name: "leftPanel" },
            { tag: "right panel", name: "rightPanel" },
            { tag: "top bar", name: "topBar" },
            { tag: "status bar", name: "footerBar" },
            { tag: "zoom control", name: "zoomControl" }
        ];
    }
    function test_marksUnderPanelAndBarsAreOutOfReach(data) {
        const overlay = item("overlayCanvas");
        const cover = item(data.name);
        // Away from the controls, but not in a corner.
        const point = cover.mapToItem(overlay, cover.width - 50, cover.height - 6);
        ViewModel.circle1Enabled = true;
        ViewModel.circle1Radius = Math.hypot(point.x - overlay.ovlScx, point.y - overlay.ovlScy)
                                  / overlay.ovlPxScale;
        const radius = ViewModel.circle1Radius;
        compare(overlay.circleAtEdge(point.x, point.y), 1);
        mouseMove(overlay, point.x - 1, point.y);
        mouseMove(overlay, point.x, point.y);
        compare(overlay.hoverCircle, 0);
        mousePress(overlay, point.x, point.y);
        mouseMove(overlay, point.x - 20, point.y);
        mouseMove(overlay, point.x - 40, point.y);
        compare(overlay.dragCircle, 0);
        mouseRelease(overlay, point.x - 40, point.y);
        compare(ViewModel.circle1Radius, radius);
    }

    // While a calibration runs the picture is shown whole; the zoom comes back afterwards.
    function test_calibrationShowsTheWholePicture() {
        ViewModel.zoom = 3;
        compare(item("videoItem").zoom, 3);
        const sector = item("sectorClip");
        verify(!sector.visible);

        ViewModel.startCalibration();
        tryCompare(sector, "visible", true);
        compare(item("videoItem").zoom, 1);
        compare(ViewModel.zoom, 3);
        verify(!item("zoomControl").visible);
        verify(item("blobPill").visible);
        // The sector lies where the mapping of the picture puts the centre.
        const overlay = item("overlayCanvas");
        fuzzyCompare(sector.x + sector.sectorCx, overlay.ovlScx, 1e-6);
        fuzzyCompare(sector.y + sector.sectorCy, overlay.ovlScy, 1e-6);
        fuzzyCompare(sector.pxScale, overlay.ovlPxScale, 1e-9);
        for (const [alignment, color] of [[0, "red"], [0.5, "yellow"], [1, "lime"]]) {
            ViewModel.controller.blobSectorAlignmentChanged(alignment);
            verify(Math.abs(sector.alignmentColor.hslHue - Qt.color(color).hslHue) < 0.01, color);
        }

        ViewModel.cancelCalibration();
        tryCompare(sector, "visible", false);
        compare(item("videoItem").zoom, 3);
        ViewModel.zoom = 1;
    }
}
