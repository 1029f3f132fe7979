import QtQuick
import QtQuick.Controls
import QtTest
import Meridax

TestCase {
    id: testCase

    name: "Main"
    when: windowShown

    property var window: null
    /// By how much the window system may move a window for the sake of its frame.
    readonly property int frameMargin: 4

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
    }

    function cleanup() {
        window = null;
    }

    function open() {
        window = createTemporaryObject(mainComponent, testCase);
        verify(window);
        tryCompare(window, "active", true);
    }

    function item(name: string): var {
        const found = findChild(window, name);
        verify(found, `no item ${name}`);
        return found;
    }

    function finishCalibration(points: int, sigma: real) {
        ViewModel.controller.calibrationFitDetails(points, 212.345, 0.1234);
        ViewModel.controller.calibrationQualityDetails(sigma, 45, 2, 0.2);
        ViewModel.controller.calibrationCompleted(Qt.point(1650.254, 1190.756));
    }

    // Runs before any geometry has been saved.
    function test_0_firstStart() {
        compare(ViewModel.savedWindowWidth, 0);
        open();
        compare(window.title, "Meridax");
        compare(window.visibility, Window.Windowed);
        compare(window.width, Math.max(800, Math.min(1600, Screen.width - 16)));
        compare(window.height, Math.min(950, Screen.height - 48));
        compare(window.minimumWidth, 800);
        compare(window.minimumHeight, 600);
        fuzzyCompare(window.x, (Screen.width - window.width) / 2, frameMargin);
        fuzzyCompare(window.y, Math.max(40, (Screen.height - window.height) / 2), frameMargin);
        tryCompare(item("placement"), "normal",
                   Qt.rect(window.x, window.y, window.width, window.height));
    }

    function test_settingsLeaveTheWindowAsItIs() {
        ViewModel.saveWindowGeometry(20, 30, 850, 650, false);
        open();
        window.setWidth(1000); // as the window manager does it
        ViewModel.darkMode = !ViewModel.darkMode;
        compare(window.width, 1000);
        window.showMaximized();
        ViewModel.darkMode = !ViewModel.darkMode;
        compare(window.visibility, Window.Maximized);
    }

    function test_tooSmallIsNeverSaved() {
        ViewModel.saveWindowGeometry(20, 30, 850, 650, false);
        open();
        window.height = 390;
        window.close();
        compare(ViewModel.savedWindowWidth, 850);
        compare(ViewModel.savedWindowHeight, 650);
    }

    function test_theme() {
        open();
        for (const dark of [true, false]) {
            ViewModel.darkMode = dark;
            compare(Theme.dark, dark);
            compare(window.color, dark ? "#333333" : "#e8e8e8");
        }
    }

    function test_connectionLabel() {
        open();
        const label = item("connectionLabel");
        compare(label.text, "Kamera nicht verbunden");
        ViewModel.controller.errorOccurred("Etwas ist schiefgegangen");
        compare(label.text, "Etwas ist schiefgegangen");
        ViewModel.controller.statusChanged("");
        compare(label.text, "Kamera nicht verbunden");
        compare(item("startStopButton").text, "Start");
    }

    // What the camera reports stands in its own catalogue.
    function test_statusIsTranslated() {
        open();
        const reported = "Kamerafehler – bitte Gerät und Verbindung prüfen.";
        const shown = reported.replace("Kamera", "<i>Kamera</i>");
        ViewModel.controller.errorOccurred(reported);
        compare(item("connectionLabel").text, reported);
        ViewModel.language = "en";
        compare(item("connectionLabel").text,
                "Camera error – please check the device and its connection.");
        ViewModel.language = "de";
        ViewModel.controller.errorOccurred(shown);
        compare(item("connectionLabel").contentWidth > 0
                && item("connectionLabel").textFormat, Text.PlainText);
        ViewModel.controller.statusChanged("");
    }

    function test_blobPill() {
        open();
        const pill = item("blobPill");
        verify(!pill.visible);
        ViewModel.startCalibration();
        verify(pill.visible);
        for (const [count, text, color] of [[1, "1 Blob ✓", "#388e3c"], [0, "0 Blobs", "#b71c1c"],
                                            [2, "2 Blobs", "#b71c1c"]]) {
            ViewModel.controller.blobsDetected(count);
            compare(item("blobLabel").text, text);
            compare(pill.color, color);
        }
        ViewModel.cancelCalibration();
        verify(!pill.visible);
    }

    function test_frameWithoutCameraIsDropped() {
        open();
        ViewModel.controller.frameReady(testFrames.ring(80, 60, 40, 30, 10, 2));
        wait(0);
        compare(window.hasFirstFrame, false);
        compare(item("videoItem").viewSourceRect, Qt.rect(0, 0, -1, -1));
    }

    function test_wheelZooms() {
        ViewModel.saveWindowGeometry(0, 0, 1200, 800, false);
        open();
        ViewModel.zoom = 1;
        const area = item("captureArea");
        const x = area.width / 2;
        mouseWheel(area, x, 300, 0, 120);
        fuzzyCompare(ViewModel.zoom, 1.05, 1e-9);
        mouseWheel(area, x, 300, 0, 720); // the size of the step does not count
        fuzzyCompare(ViewModel.zoom, 1.1, 1e-9);
        for (let i = 0; i < 4; ++i)
            mouseWheel(area, x, 300, 0, -120);
        compare(ViewModel.zoom, 1);
        ViewModel.zoom = 4.98;
        mouseWheel(area, x, 300, 0, 120);
        compare(ViewModel.zoom, 5);
        mouseWheel(area, x, 300, 120, 0); // sideways, while the wheel is still in use
        compare(ViewModel.zoom, 5);
    }

    function test_wheelOverThePanelsDoesNotZoom() {
        open();
        ViewModel.zoom = 2;
        for (const name of ["leftPanel", "rightPanel"]) {
            const panel = item(name);
            for (const y of [20, panel.height / 2, panel.height - 10])
                mouseWheel(panel, panel.width / 2, y, 0, -120);
        }
        compare(ViewModel.zoom, 2);
    }

    // A press on what takes no keyboard focus itself ends typing as well.
    function test_pressBesideTheFieldCommits() {
        open();
        window.requestActivate();
        tryVerify(() => window.activeFocusItem);
        const slider = findChild(item("circle1Section"), "radiusSlider");
        ViewModel.circle1Enabled = true;
        mouseDoubleClickSequence(findChild(slider, "valueLabel"));
        verify(findChild(slider, "valueEditor").activeFocus);
        for (const digit of "123")
            keyClick(digit);
        mouseClick(item("rightPanel"), 60, 75);
        compare(ViewModel.circle1Radius, 123);
        verify(!findChild(slider, "valueEditor").visible);
    }

    function test_pickingAColor_data() {
        return [{ tag: "accepted", accepts: true }, { tag: "cancelled", accepts: false }];
    }
    function test_pickingAColor(data) {
        open();
        const button = findChild(item("circle2Section"), "colorButton");
        const dialog = findChild(button, "colorDialog");
        ViewModel.circle2Enabled = true;
        ViewModel.circle2Color = "#102030";
        mouseClick(button);
        tryCompare(dialog, "visible", true);
        compare(dialog.parentWindow, window);
        compare(dialog.selectedColor, "#102030");
        dialog.selectedColor = "#ff8800";
        data.accepts ? dialog.accept() : dialog.reject();
        tryCompare(dialog, "visible", false);
        compare(button.color, data.accepts ? "#ff8800" : "#102030");
        compare(ViewModel.circle2Color, button.color);
    }

    function test_verdict_data() {
        return [
            { tag: "excellent", points: 12, sigma: 0.05, text: "Zentrum exzellent bestimmt" },
            { tag: "bad", points: 12, sigma: 30, text: "Zentrum ungenau — bitte neu messen" },
            { tag: "three points", points: 3, sigma: 0, text: "Güte nicht bewertbar" }
        ];
    }
    function test_verdict(data) {
        open();
        finishCalibration(data.points, data.sigma);
        const dialog = item("centerDialog");
        tryCompare(dialog, "opened", true);
        compare(findChild(dialog.contentItem, "verdictLabel").text, data.text);
        compare(findChild(dialog.contentItem, "fewPointsNote").visible, data.points <= 4);
        ViewModel.discardPendingCenter();
        tryCompare(dialog, "visible", false);
    }

    // A whole calibration is too much to lose by a stray click.
    function test_onlyNoDiscards() {
        open();
        const dialog = item("centerDialog");
        const before = ViewModel.centerX;
        const overlay = dialog.parent;
        for (let i = 0; i < 2; ++i) {
            finishCalibration(8, 0.1);
            tryCompare(dialog, "opened", true);
            keyClick(Qt.Key_Escape);
            mouseClick(overlay, 5, overlay.height - 5);
            verify(dialog.opened && ViewModel.hasPendingCenter);
            mouseClick(dialog.standardButton(Dialog.No));
            tryCompare(dialog, "visible", false);
            compare(ViewModel.hasPendingCenter, false);
            compare(ViewModel.centerX, before);
        }
    }

    function test_lostCenterIsTold() {
        open();
        const dialog = item("centerDialog");
        finishCalibration(8, 0.1);
        tryCompare(dialog, "opened", true);
        verify(!findChild(dialog.contentItem, "elsewhereNote").visible);
        const width = ViewModel.resolutionX;
        ViewModel.resolutionX = width + 1;
        tryCompare(dialog, "visible", false);
        const toast = item("screenshotToast");
        tryCompare(toast, "visible", true);
        compare(toast.text, "Messung verworfen: andere Kamera oder Auflösung gewählt");
        verify(toast.implicitWidth <= toast.width, "not elided");
        ViewModel.resolutionX = width;
    }

    function test_yesAcceptsAndShowsTheCameraTab() {
        open();
        const dialog = item("centerDialog");
        const panel = item("leftPanel");
        panel.currentTab = 1;
        panel.expanded = false;
        finishCalibration(8, 0.1);
        tryCompare(dialog, "opened", true);
        mouseClick(dialog.standardButton(Dialog.Yes));
        tryCompare(dialog, "visible", false);
        compare(ViewModel.hasPendingCenter, false);
        fuzzyCompare(ViewModel.centerX, 1650.254, 1e-9);
        verify(ViewModel.calibrated);
        compare(panel.currentTab, 0);
        compare(panel.expanded, true);
    }

    function test_dialogFitsTheSmallestWindow() {
        ViewModel.saveWindowGeometry(0, 0, 800, 600, false);
        open();
        for (let i = 0; i < 3; ++i)
            ViewModel.controller.blobMeasurementCaptured(Qt.point(100 * i, 50 * i * i), i);
        finishCalibration(3, 0);
        const dialog = item("centerDialog");
        tryCompare(dialog, "opened", true);
        verify(dialog.y >= 0 && dialog.y + dialog.height <= 600);
        const content = dialog.contentItem;
        verify(content.contentHeight > content.height, "has to be scrolled");
        const yes = dialog.standardButton(Dialog.Yes);
        const bottom = yes.mapToItem(null, 0, yes.height).y;
        verify(bottom <= dialog.y + dialog.height);
        content.forceActiveFocus();
        keyClick(Qt.Key_Down);
        tryVerify(() => content.contentY > 0);
        ViewModel.discardPendingCenter();
    }
}
