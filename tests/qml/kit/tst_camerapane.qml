import QtQuick
import QtTest
import Meridax

TestCase {
    id: testCase

    name: "CameraSettingsPane"
    when: windowShown
    width: 420
    height: 1400
    visible: true

    property CameraSettingsPane pane: null
    readonly property var controls: ["exposure", "brightness", "contrast", "saturation"]

    Component {
        id: paneComponent

        CameraSettingsPane {
            width: 400
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        ViewModel.setSectionCollapsed("cameraProps", false);
        ViewModel.setSectionCollapsed("centerView", false);
        pane = createTemporaryObject(paneComponent, testCase);
        verify(waitForRendering(pane));
    }

    function cleanup() {
        ViewModel.stopCamera();
        tryCompare(ViewModel, "running", false);
        testCapabilities.report(ViewModel.controller, {});
    }

    function part(name: string): Item {
        const found = findChild(pane, name);
        verify(found, `no part ${name}`);
        return found;
    }

    function slider(name: string): SettingsSlider {
        return part(`${name}Slider`);
    }

    function start() {
        ViewModel.startCamera();
        tryCompare(ViewModel, "running", true, 20000);
        // What the camera reports must not come in the middle of the next case.
        tryCompare(ViewModel, "exposureSupported", true, 20000);
        // The row of the gain comes with it and lies over another one until it has its place.
        verify(waitForPolish(testCase.Window.window));
    }

    function type(target: SettingsSlider, text: string) {
        mouseDoubleClickSequence(findChild(target, "valueLabel"));
        for (const character of text)
            keyClick(character);
        keyClick(Qt.Key_Return);
    }

    function test_fallbackRanges() {
        const ranges = [[-6, 6], [-128, 128], [0, 255], [0, 255]];
        controls.forEach((name, i) => {
            compare([slider(name).from, slider(name).to], ranges[i], name);
            compare(slider(name).stepSize, 1);
            compare(slider(name).atMinLabel, "");
        });
        verify(!slider("gain").visible);
        compare([slider("focus").from, slider("focus").to], [0, 1000]);
    }

    function test_reportedRanges() {
        const report = {};
        controls.concat("gain").forEach((name, i) => {
            report[name] = { min: 10 + i, max: 500 + i, step: i * 4, canAuto: i % 2 === 0 };
        });
        testCapabilities.report(ViewModel.controller, report);
        for (const [name, range] of Object.entries(report)) {
            compare([slider(name).from, slider(name).to], [range.min, range.max], name);
            compare(slider(name).stepSize, Math.max(1, range.step), name);
            compare(slider(name).atMinLabel, range.canAuto ? "AUTO" : "", name);
            verify(slider(name).visible);
        }
    }

    function test_leftmostIsAutomatic() {
        testCapabilities.report(ViewModel.controller,
                                { contrast: { min: 20, max: 80, step: 1, canAuto: true } });
        ViewModel.contrast = 20;
        verify(findChild(slider("contrast"), "minPill").visible);
        ViewModel.contrast = 21;
        verify(!findChild(slider("contrast"), "minPill").visible);
        ViewModel.focusValue = 0;
        verify(findChild(slider("focus"), "zeroPill").visible);
    }

    // A range that is told late moves no value, and the thumb goes where the value lies in it.
    function test_widerRangeKeepsTheValue() {
        ViewModel.contrast = 200;
        testCapabilities.report(ViewModel.controller,
                                { contrast: { min: 0, max: 1000, step: 1 } });
        compare(ViewModel.contrast, 200);
        compare(findChild(slider("contrast"), "slider").visualPosition, 0.2);
    }

    function test_focusRangeFollowsTheCamera() {
        ViewModel.controller.focusRangeDetected(5, 250);
        compare([slider("focus").from, slider("focus").to], [5, 250]);
        ViewModel.controller.focusRangeDetected(0, 0);
        compare([slider("focus").from, slider("focus").to], [0, 1000]);
    }

    function test_whatTheStreamEnables() {
        for (const running of [false, true]) {
            if (running)
                start();
            for (const name of controls.concat("focus"))
                compare(slider(name).enabled, running, name);
            compare(part("cameraSelector").enabled, !running);
            compare(part("resolutionSelector").enabled, !running);
            verify(slider("zoom").enabled);
        }
    }

    function test_slidersWriteTheirProperty() {
        start();
        for (const name of controls.concat("focusValue")) {
            const target = slider(name.replace("Value", ""));
            ViewModel[name] = Math.round((target.from + target.to) / 2);
            const before = ViewModel[name];
            mouseClick(findChild(target, "plusButton"));
            compare(ViewModel[name], before + target.stepSize, name);
            type(target, "1,6"); // whole numbers only
            compare(ViewModel[name], Math.min(2, target.to), name);
        }
    }

    function test_centre() {
        const x = slider("centerX");
        ViewModel.unlockCalibration();
        compare([x.from, x.to], [0, ViewModel.resolutionX]);
        type(x, "123.45");
        compare(ViewModel.centerX, 123.45);
        compare(findChild(x, "valueLabel").text, "123.45");
        type(slider("centerY"), "77,5");
        compare(ViewModel.centerY, 77.5);

        const size = [ViewModel.resolutionX, ViewModel.resolutionY];
        ViewModel.resolutionX = 0;
        ViewModel.resolutionY = 0;
        compare([x.to, slider("centerY").to], [10000, 10000]);
        [ViewModel.resolutionX, ViewModel.resolutionY] = size;
    }

    function test_lock() {
        const button = part("lockButton");
        ViewModel.unlockCalibration();
        verify(!button.visible);

        start();
        verify(button.visible && button.enabled);
        mouseClick(button);
        verify(ViewModel.locked);
        compare(button.icon.color, "#e53935");
        verify(!slider("centerX").enabled && !slider("centerY").enabled);

        // In the header, it is reached with the section folded.
        const section = part("centerSection");
        section.toggle();
        tryCompare(findChild(section, "contentBox"), "visible", false);
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        verify(!ViewModel.locked);
        verify(slider("centerX").enabled);
        ViewModel.lockCalibration();
        section.toggle();

        ViewModel.stopCamera();
        tryCompare(ViewModel, "running", false);
        verify(button.visible && !button.enabled);
        mouseClick(button);
        verify(ViewModel.locked);
        verify(section.expanded);
        verify(!slider("centerX").enabled);
        ViewModel.unlockCalibration();
        verify(!button.visible);
    }

    function test_offset() {
        ViewModel.offsetEnabled = false;
        const target = slider("offsetX");
        verify(!target.enabled);
        mouseClick(findChild(part("offsetSwitch"), "switch"));
        verify(ViewModel.offsetEnabled && target.enabled);
        type(target, "-2000");
        compare(ViewModel.offsetX, -1000);
        type(slider("offsetY"), "12.5");
        compare(ViewModel.offsetY, 12.5);
        mouseClick(findChild(part("offsetSwitch"), "switch"));
        verify(!ViewModel.offsetEnabled);
    }

    function test_zoom() {
        ViewModel.zoom = 3;
        compare(slider("zoom").value, 50);
        type(slider("zoom"), "100");
        compare(ViewModel.zoom, 5);
        mouseWheel(findChild(slider("zoom"), "slider"), 20, 20, 0, -120);
        fuzzyCompare(ViewModel.zoom, 4.96, 1e-9);
        type(slider("zoom"), "0");
        compare(ViewModel.zoom, 1);
    }

    function test_everythingFits() {
        compare(pane.implicitHeight, part("centerSection").y + part("centerSection").height + 32);
        verify(pane.implicitHeight < testCase.height);
    }
}
