import QtQuick
import QtQuick.Controls.Material
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Parts

TestCase {
    id: testCase

    name: "SettingsSlider"
    when: windowShown
    width: 500
    height: 300
    visible: true

    property SettingsSlider control: null

    /// The owner of the value, which the control must never write itself.
    QtObject {
        id: owner

        property real value: 0
        property bool takes: true
        property var moves: []

        function take(newValue: real) {
            moves.push(newValue);
            if (takes)
                value = newValue;
        }
    }

    Component {
        id: sliderComponent

        SettingsSlider {
            width: 360
            label: "Kontrast"
            editable: true
            value: owner.value
            onMoved: newValue => owner.take(newValue)
        }
    }

    Component {
        id: pageComponent

        Parts.PanelFlickable {
            readonly property SettingsSlider slider: pageSlider

            width: 400
            height: 200
            contentHeight: 1000

            SettingsSlider {
                id: pageSlider
                width: 360
                y: 20
                value: owner.value
                onMoved: newValue => owner.take(newValue)
            }
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        owner.takes = true;
        owner.value = 50;
        owner.moves = [];
    }

    function create(properties): SettingsSlider {
        control = createTemporaryObject(sliderComponent, testCase, properties);
        verify(waitForRendering(control));
        return control;
    }

    function part(name: string): Item {
        const found = findChild(control, name);
        verify(found, `no part ${name}`);
        return found;
    }

    function openEditor(): Item {
        mouseDoubleClickSequence(part("valueLabel").visible ? part("valueLabel") : part("zeroPill"));
        return part("valueEditor");
    }

    function type(text: string) {
        for (const character of text)
            keyClick(character);
    }

    function test_shownNumber_data() {
        return [
            { tag: "whole", properties: {}, value: 12.4, shown: "12" },
            { tag: "half steps", properties: { stepSize: 0.5 }, value: 2.5, shown: "2.50" },
            { tag: "half steps, one decimal", properties: { stepSize: 0.5, decimals: 1 },
              value: 2.5, shown: "2.5" },
            { tag: "decimals", properties: { decimals: 2 }, value: 12.345, shown: "12.35" },
            { tag: "negative", properties: { from: -6 }, value: -3, shown: "-3" }
        ];
    }

    function test_shownNumber(data) {
        owner.value = data.value;
        create(data.properties);
        verify(part("valueLabel").visible);
        compare(part("valueLabel").text, data.shown);
    }

    function test_pills_data() {
        return [
            { tag: "number", value: 1, zero: "AF", min: "AUTO", from: 0, pill: "" },
            { tag: "zero before minimum", value: 0, zero: "AF", min: "AUTO", from: 0,
              pill: "zeroPill" },
            { tag: "minimum", value: -6, zero: "AF", min: "AUTO", from: -6, pill: "minPill" },
            { tag: "zero inside the range", value: 0, zero: "", min: "AUTO", from: -6, pill: "" },
            { tag: "no labels", value: 0, zero: "", min: "", from: 0, pill: "" }
        ];
    }

    function test_pills(data) {
        owner.value = data.value;
        create({ from: data.from, zeroLabel: data.zero, atMinLabel: data.min });
        for (const name of ["zeroPill", "minPill"])
            compare(part(name).visible, name === data.pill);
        compare(part("valueLabel").visible, data.pill === "");
    }

    function test_dragFollowsTheHandButNotTheValue() {
        owner.takes = false;
        create({});
        const slider = part("slider");
        const y = slider.height / 2;
        mousePress(slider, slider.width / 2, y);
        mouseMove(slider, slider.width * 0.75, y);
        mouseMove(slider, slider.width - 2, y);
        compare(slider.value, 100);
        compare(owner.moves[owner.moves.length - 1], 100);
        compare(control.value, 50);
        mouseRelease(slider, slider.width - 2, y);
        compare(slider.value, 50);
    }

    function test_buttons_data() {
        return [
            { tag: "plus", button: "plusButton", value: 50, stepSize: 1, moves: [51] },
            { tag: "minus by half", button: "minusButton", value: 50, stepSize: 0.5,
              moves: [49.5] },
            { tag: "plus up to the end", button: "plusButton", value: 99.7, stepSize: 1,
              moves: [100] },
            { tag: "minus down to the end", button: "minusButton", value: 0.3, stepSize: 1,
              moves: [0] },
            { tag: "minus from beyond the end", button: "minusButton", value: 1500, stepSize: 1,
              moves: [1499] },
            { tag: "plus from below the start", button: "plusButton", value: -5, stepSize: 1,
              moves: [-4] },
            { tag: "plus at the end", button: "plusButton", value: 100, stepSize: 1, moves: [] },
            { tag: "minus at the end", button: "minusButton", value: 0, stepSize: 1, moves: [] }
        ];
    }

    function test_buttons(data) {
        owner.value = data.value;
        create({ stepSize: data.stepSize });
        mouseClick(part(data.button));
        compare(owner.moves, data.moves);
    }

    function test_heldButtonRepeats() {
        create({});
        const button = part("plusButton");
        mousePress(button);
        tryVerify(() => owner.value >= 53);
        mouseRelease(button);
        for (let i = 1; i < owner.moves.length; ++i)
            compare(owner.moves[i], owner.moves[i - 1] + 1);
    }

    function test_wheel_data() {
        return [
            { tag: "up", delta: 120, moves: [51] },
            { tag: "down", delta: -120, moves: [49] },
            { tag: "small delta", delta: 8, moves: [51] },
            { tag: "with Control", delta: 120, modifiers: Qt.ControlModifier, moves: [60] },
            { tag: "half steps", delta: -120, properties: { stepSize: 0.5 }, moves: [49] },
            { tag: "steps of 2.6", delta: 120, properties: { stepSize: 2.6 }, moves: [53] },
            { tag: "clamped", delta: 120, modifiers: Qt.ControlModifier,
              properties: { to: 55 }, moves: [55] },
            { tag: "disabled", delta: 120, properties: { enabled: false }, moves: [] }
        ];
    }

    function test_wheel(data) {
        create(data.properties ?? {});
        mouseWheel(part("slider"), 20, 20, 0, data.delta, Qt.NoButton,
                   data.modifiers ?? Qt.NoModifier);
        compare(owner.moves, data.moves);
    }

    function test_wheelOverSliderDoesNotScrollThePage() {
        const page = createTemporaryObject(pageComponent, testCase);
        verify(waitForRendering(page));
        mouseWheel(page, 250, 50, 0, -120);
        compare(owner.value, 49);
        compare(page.contentY, 0);

        page.slider.enabled = false;
        mouseWheel(page, 250, 50, 0, -120);
        compare(owner.value, 49);
        tryVerify(() => page.contentY > 0);
    }

    function test_typing_data() {
        return [
            { tag: "point", keys: "12.5", moves: [12.5] },
            { tag: "comma", keys: "12,5", field: "12.5", hint: true, moves: [12.5] },
            { tag: "negative", keys: "-4", properties: { from: -6 }, moves: [-4] },
            { tag: "above the range", keys: "99999", moves: [100] },
            { tag: "below the range", keys: "-1", moves: [0] },
            { tag: "letters are not taken", keys: "1a2", field: "12", moves: [12] },
            { tag: "sign alone", keys: "-", moves: [] },
            { tag: "separator alone", keys: ",", field: ".", hint: true, moves: [] }
        ];
    }

    function test_typing(data) {
        create(data.properties ?? {});
        const editor = openEditor();
        verify(editor.activeFocus);
        compare(editor.text, "50");
        compare(editor.selectedText, "50");
        type(data.keys);
        compare(editor.text, data.field ?? data.keys);
        compare(part("commaHint").visible, data.hint ?? false);
        keyClick(Qt.Key_Return);
        verify(!editor.visible);
        compare(owner.moves, data.moves);
        verify(part("slider").activeFocus);
    }

    function test_commaKeepsTheCursor() {
        create({});
        const editor = openEditor();
        type("125");
        editor.cursorPosition = 2;
        type(",");
        compare(editor.text, "12.5");
        compare(editor.cursorPosition, 3);
        tryCompare(part("commaHint"), "visible", false);
    }

    function test_escapeCancels() {
        create({});
        const editor = openEditor();
        type("7");
        keyClick(Qt.Key_Escape);
        verify(!editor.visible);
        compare(owner.moves, []);
    }

    function test_lossOfFocusCommitsOnce() {
        create({});
        const editor = openEditor();
        type("7");
        part("slider").forceActiveFocus();
        verify(!editor.visible);
        compare(owner.moves, [7]);
    }

    function test_whatOpensTheEditor_data() {
        return [
            { tag: "number", value: 50, opens: true },
            { tag: "zero pill", value: 0, properties: { zeroLabel: "AF" }, target: "zeroPill",
              opens: true },
            { tag: "minimum pill", value: 0, properties: { atMinLabel: "AUTO" }, target: "minPill",
              opens: false },
            { tag: "not editable", value: 50, properties: { editable: false }, opens: false },
            { tag: "disabled number", value: 50, properties: { enabled: false }, opens: false },
            { tag: "disabled zero pill", value: 0, target: "zeroPill",
              properties: { zeroLabel: "AF", enabled: false }, opens: false }
        ];
    }

    function test_whatOpensTheEditor(data) {
        owner.value = data.value;
        create(data.properties ?? {});
        const target = part(data.target ?? "valueLabel");
        verify(target.visible);
        mouseDoubleClickSequence(target);
        compare(part("valueEditor").visible, data.opens);
        compare(target.visible, !data.opens);
    }

    function test_doubleClickBesideTheNumberOpensNothing() {
        create({});
        mouseDoubleClickSequence(part("valueDisplay"), 5, 10);
        verify(!part("valueEditor").visible);
    }

    function test_keyboard() {
        create({});
        part("slider").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Left);
        compare(owner.moves, [51, 50]);
        keyClick(Qt.Key_Return);
        verify(part("valueEditor").activeFocus);
    }

    function test_assistiveTechnologyWritesTheValue() {
        create({});
        part("slider").value = 70;
        compare(owner.moves, [70]);
    }

    function test_wideningTheRangeMovesTheThumb() {
        owner.value = 1500;
        create({ from: 0, to: 100 });
        compare(part("slider").value, 100);
        control.to = 2000;
        compare(part("slider").value, 1500);
        compare(part("slider").position, 0.75);
        compare(owner.moves, []);
    }
}
