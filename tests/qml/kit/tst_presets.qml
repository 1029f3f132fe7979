import QtQuick
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Parts

TestCase {
    id: testCase

    name: "FocusPresetOverlay"
    when: windowShown
    width: 600
    height: 400
    visible: true

    property FocusPresetOverlay overlay: null

    Rectangle {
        anchors.fill: parent
        color: "#404040"

        MouseArea {
            id: picture

            anchors.fill: parent
        }
    }

    SignalSpy {
        id: pressed

        signalName: "pressed"
    }

    Parts.TypingEnd { }

    Component {
        id: overlayComponent

        FocusPresetOverlay { }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        ViewModel.focusPresetIncludeMarkers = true;
        ViewModel.focusPresetShowValue = false;
        ViewModel.zoom = 1;
        overlay = createTemporaryObject(overlayComponent, testCase);
        verify(waitForRendering(overlay));
    }

    function cleanup() {
        while (ViewModel.focusPresets.length > 0)
            ViewModel.removeFocusPreset(0);
        ViewModel.cancelCalibration();
        ViewModel.focusTapModeActive = false;
    }

    function part(name: string): Item {
        const found = findChild(overlay, name);
        verify(found, `no part ${name}`);
        return found;
    }

    function chipPart(index: int, name: string): Item {
        const found = findChild(part(`preset${index}`), name);
        verify(found, `no part ${name} in chip ${index}`);
        return found;
    }

    function names(): var {
        return ViewModel.focusPresets.map(preset => preset.name);
    }

    function type(text: string) {
        for (const character of text)
            keyClick(character);
    }

    function pressElsewhere() {
        mouseClick(testCase, 350, 350);
    }

    function add(...presets) {
        for (const name of presets)
            ViewModel.addFocusPreset(name);
        verify(waitForRendering(overlay));
    }

    function rename(index: int): Item {
        mouseDoubleClickSequence(chipPart(index, "chipArea"), 80, 15);
        const field = chipPart(index, "renameField");
        compare(overlay.renamingIndex, index);
        verify(field.activeFocus);
        return field;
    }

    function test_adding_data() {
        return [
            { tag: "named", typed: "Spinne", key: Qt.Key_Return, names: ["Spinne"] },
            { tag: "unnamed", typed: "", key: Qt.Key_Return, names: ["Preset 1"] },
            { tag: "given up", typed: "Spinne", key: Qt.Key_Escape, names: [] }
        ];
    }
    function test_adding(data) {
        const field = part("nameField");
        verify(!field.visible);
        mouseClick(part("addPresetButton"));
        verify(overlay.adding && field.visible && field.activeFocus);
        type(data.typed);
        keyClick(data.key);
        verify(!overlay.adding && !field.visible);
        compare(field.text, "");
        compare(names(), data.names);
    }

    function test_pressElsewhereWhileAdding() {
        const field = part("nameField");
        mouseClick(part("addPresetButton"));
        verify(waitForRendering(overlay));
        type("Fang");
        pressElsewhere();
        verify(!field.activeFocus && field.visible);
        compare(field.text, "Fang");
        mouseClick(field);
        type("spiegel");
        keyClick(Qt.Key_Return);
        compare(names(), ["Fangspiegel"]);

        mouseClick(part("addPresetButton"));
        pressElsewhere();
        verify(!overlay.adding);
        compare(names(), ["Fangspiegel"]);
    }

    function test_clickGoesThere() {
        ViewModel.zoom = 2;
        add("eins");
        ViewModel.zoom = 3;
        add("zwei");
        verify(!chipPart(0, "updateButton").visible);
        mouseClick(chipPart(0, "chipArea"), 80, 15);
        compare(ViewModel.zoom, 2);
        compare(ViewModel.activeFocusPresetIndex, 0);
        part("preset1").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        compare(ViewModel.zoom, 3);
    }

    function test_updating() {
        add("eins", "zwei");
        ViewModel.zoom = 2;
        verify(!chipPart(0, "updateButton").visible);
        const button = chipPart(1, "updateButton");
        verify(button.visible);
        verify(waitForRendering(overlay));
        mouseClick(button);
        verify(!button.visible);
        compare(ViewModel.zoom, 2);
        ViewModel.zoom = 1;
        ViewModel.applyFocusPreset(1);
        compare(ViewModel.zoom, 2);
    }

    function test_renaming_data() {
        const enter = () => keyClick(Qt.Key_Return);
        const escape = () => keyClick(Qt.Key_Escape);
        return [
            { tag: "return", typed: "neu", end: enter, name: "neu", keyboard: true },
            { tag: "escape", typed: "neu", end: escape, name: "alt", keyboard: true },
            { tag: "press elsewhere", typed: " neu ", end: pressElsewhere, name: "neu" },
            { tag: "nothing typed", typed: " ", end: pressElsewhere, name: "alt" },
            { tag: "other chip", typed: "neu", name: "neu",
              end: () => mouseClick(chipPart(1, "chipArea"), 80, 15) }
        ];
    }
    function test_renaming(data) {
        add("alt", "anderer");
        const field = rename(0);
        compare(field.selectedText, "alt");
        verify(!chipPart(0, "nameLabel").visible);
        type(data.typed);
        data.end();
        compare(overlay.renamingIndex, -1);
        verify(!field.visible);
        compare(names(), [data.name, "anderer"]);
        compare(chipPart(0, "nameLabel").text, data.name);
        if (data.keyboard) {
            keyClick(Qt.Key_Return); // the focus is on the chip again
            compare(overlay.renamingIndex, 0);
            keyClick(Qt.Key_Escape);
        }
    }

    // Its help lies beside a chip, and what lies under the help stays in reach.
    function test_helpIsInNobodysWay() {
        ViewModel.zoom = 2;
        add("<b>eins</b>");
        ViewModel.zoom = 3;
        add("zwei");
        const label = chipPart(0, "nameLabel");
        compare([label.text, label.textFormat], ["<b>eins</b>", Text.PlainText]);
        const button = part("focusTapButton");
        const tip = findChild(button, "toolTip");
        button.forceActiveFocus(Qt.TabFocusReason);
        tryCompare(tip, "opened", true);
        const under = tip.item.y + 10 + button.mapToItem(overlay, 0, 0).y;
        verify(under > part("preset0").y && under < part("preset1").y + 30, `covers ${under}`);
        mouseClick(overlay, 80, part("preset0").y + 15);
        compare(ViewModel.zoom, 2);

        const chipTip = findChild(part("preset0"), "chipTip");
        mouseMove(part("preset0"), 80, 16);
        tryCompare(chipTip, "opened", true);
        verify(chipTip.item.x >= part("preset0").width, "beside");
    }

    // A press that just misses the cross would else be one on the picture.
    function test_pressBesideTheCrossIsNoneOnThePicture() {
        add("eins");
        const chip = part("preset0");
        const cross = chipPart(0, "removeButton");
        pressed.target = picture;
        pressed.clear();
        mouseClick(chip, 22, 15);
        mouseClick(chip, cross.x + 9, 1);
        compare([pressed.count, names(), ViewModel.activeFocusPresetIndex], [0, ["eins"], 0]);
        mouseClick(testCase, 300, 300);
        compare(pressed.count, 1);
    }

    function test_removing() {
        add("eins", "zwei", "drei");
        mouseClick(chipPart(1, "removeButton"));
        tryVerify(() => !findChild(overlay, "preset2"));
        verify(waitForRendering(overlay));
        compare(names(), ["eins", "drei"]);
        compare(chipPart(1, "nameLabel").text, "drei");

        // The cross stays usable beside the rename field.
        rename(1);
        mouseClick(chipPart(1, "removeButton"));
        compare(names(), ["eins"]);
        compare(overlay.renamingIndex, -1);
    }

    function test_keyboard() {
        add("eins", "zwei");
        part("preset1").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        verify(chipPart(1, "renameField").activeFocus);
        type("neu");
        keyClick(Qt.Key_Return);
        compare(names(), ["eins", "neu"]);
        verify(part("preset1").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(chipPart(1, "removeButton").activeFocus);
        keyClick(Qt.Key_Space);
        compare(names(), ["eins"]);
        verify(part("preset0").activeFocus);
    }

    function test_focusValue() {
        ViewModel.focusValue = 321;
        add("eins");
        const label = chipPart(0, "valueLabel");
        verify(!label.visible);
        ViewModel.focusPresetShowValue = true;
        verify(label.visible);
        compare(label.text, "f=321");
    }

    function test_tapMode() {
        const button = part("focusTapButton");
        mouseClick(button);
        verify(ViewModel.focusTapModeActive);
        compare(part("lamp").color, "#37d067");
        mouseClick(button);
        verify(!ViewModel.focusTapModeActive);
        compare(part("lamp").color, "#555555");

        ViewModel.startCalibration();
        tryCompare(button, "opacity", 0.3);
        mouseClick(button);
        verify(!ViewModel.focusTapModeActive);
    }
}
