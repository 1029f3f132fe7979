import QtQuick
import QtTest
import Meridax

TestCase {
    id: testCase

    name: "OverlaySettingsPane"
    when: windowShown
    width: 600
    height: 1000
    visible: true

    property OverlaySettingsPane pane: null

    Component {
        id: paneComponent

        OverlaySettingsPane {
            width: 340
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        for (const key of ["circle1", "circle2", "circle3", "crosshair"])
            ViewModel.setSectionCollapsed(key, false);
        for (const mark of ["circle1", "circle2", "circle3", "cross"]) {
            ViewModel[`${mark}Enabled`] = true;
            ViewModel[`${mark}Color`] = "#102030";
            ViewModel[`${mark}LineWidth`] = 2;
            ViewModel[`${mark}LineStyle`] = 0;
        }
        pane = createTemporaryObject(paneComponent, testCase);
        verify(waitForRendering(pane));
    }

    function part(section: string, name: string): Item {
        const found = findChild(findChild(pane, `${section}Section`), name);
        verify(found, `no part ${name} in ${section}`);
        return found;
    }

    function type(slider: SettingsSlider, text: string) {
        mouseDoubleClickSequence(findChild(slider, "valueLabel"));
        for (const character of text)
            keyClick(character);
        keyClick(Qt.Key_Return);
    }

    function marks(): var {
        return ["circle1", "circle2", "circle3", "cross"].map(mark => ({ tag: mark }));
    }

    function test_switchInTheHeader_data() { return marks(); }
    function test_switchInTheHeader(data) {
        const section = findChild(pane, `${data.tag}Section`);
        const button = part(data.tag, "colorButton");
        section.toggle();
        tryCompare(findChild(section, "contentBox"), "visible", false);

        mouseClick(part(data.tag, "headerSwitch"));
        verify(!ViewModel[`${data.tag}Enabled`]);
        compare(button.opacity, 0.35);
        verify(!section.expanded);
        // A click on the greyed button neither opens the dialog nor the section.
        mouseClick(button);
        verify(!findChild(button, "colorDialog").visible);
        verify(!section.expanded);

        section.toggle();
        verify(!part(data.tag, "lineWidthSlider").enabled);
        part(data.tag, "headerSwitch").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        verify(ViewModel[`${data.tag}Enabled`]);
        compare(button.opacity, 1);
        verify(part(data.tag, "lineWidthSlider").enabled);
    }

    function test_linesOfEachMark_data() { return marks(); }
    function test_linesOfEachMark(data) {
        const slider = part(data.tag, "lineWidthSlider");
        const width = `${data.tag}LineWidth`;
        mouseClick(findChild(slider, "plusButton"));
        compare(ViewModel[width], 2.5);
        compare(findChild(slider, "valueLabel").text, "2.5");
        mouseWheel(slider, slider.width - 100, slider.height / 2, 0, 120);
        compare(ViewModel[width], 3.5);

        const combo = findChild(part(data.tag, "lineStyleRow"), "combo");
        combo.forceActiveFocus();
        for (const label of ["Gestrichelt", "Gepunktet", "Strich-Punkt"]) {
            keyClick(Qt.Key_Down);
            compare(combo.displayText, label);
        }
        compare(ViewModel[`${data.tag}LineStyle`], 3);
        ViewModel[`${data.tag}LineStyle`] = 0;
        compare(combo.displayText, "Durchgehend");
        for (const other of marks()) {
            if (other.tag !== data.tag)
                compare(ViewModel[`${other.tag}LineWidth`], 2);
        }
    }

    function test_typedRadius_data() {
        return [{ tag: "circle1", typed: "5", taken: 10 },
                { tag: "circle2", typed: "6000", taken: 5000 },
                { tag: "circle3", typed: "321,5", taken: 321.5 }];
    }
    function test_typedRadius(data) {
        type(part(data.tag, "radiusSlider"), data.typed);
        compare(ViewModel[`${data.tag}Radius`], data.taken);
    }

    function test_crosshair() {
        type(part("cross", "angleSlider"), "400");
        compare(ViewModel.crossAngle, 360);
        const combo = findChild(part("cross", "crossTypeRow"), "combo");
        for (const [type, label] of [[0, "Lines (3)"], [1, "Kreuz (4)"]]) {
            ViewModel.crossType = type;
            compare(combo.displayText, label);
        }
        combo.forceActiveFocus();
        keyClick(Qt.Key_Up);
        compare(ViewModel.crossType, 0);
    }

    function test_foldedStateHasAKeyEach() {
        for (const [section, key] of [["circle1", "circle1"], ["circle2", "circle2"],
                                      ["circle3", "circle3"], ["cross", "crosshair"]]) {
            mouseClick(part(section, "chevron"));
            verify(ViewModel.sectionCollapsed(key, false), key);
        }
    }
}
