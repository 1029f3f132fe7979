import QtQuick
import QtQuick.Controls.Material
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Parts

TestCase {
    id: testCase

    name: "Controls"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: infoComponent

        InfoTooltip { }
    }

    Component {
        id: spinComponent

        SettingsSpinBox {
            property list<int> changes

            width: 300
            label: "Anzahl"
            from: 3
            to: 15
            onValueModified: newValue => changes.push(newValue)
        }
    }

    Component {
        id: vanishingComponent

        Row {
            property alias first: first
            property alias second: second

            Button { id: first }
            Button { id: second }
            Parts.FocusKeeper { }
        }
    }

    Component {
        id: comboComponent

        Parts.SelectionComboBox {
            selectedIndex: 1
            width: 200
            model: ["a", "b", "c"]
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        mouseMove(testCase, 399, 299);
    }

    function test_helpWithoutTextTakesNoRoom() {
        const info = createTemporaryObject(infoComponent, testCase);
        verify(!info.visible);
        compare(info.implicitWidth, 0);
        info.text = "Hilfe";
        verify(info.visible);
        compare(info.implicitWidth, 14);
    }

    function test_helpShowsAlsoWithToolTipsOff_data() {
        return [{ tag: "pointer", pointer: true }, { tag: "keyboard", pointer: false }];
    }

    function test_helpShowsAlsoWithToolTipsOff(data) {
        ViewModel.showTooltips = false;
        const info = createTemporaryObject(infoComponent, testCase,
                                           { text: "Hilfe", x: 50, y: 50, hoverDelay: 10 });
        const tip = findChild(info, "helpTip");
        verify(!tip.opened);
        if (data.pointer)
            mouseMove(info, 7, 7);
        else
            info.forceActiveFocus(Qt.TabFocusReason);
        tryCompare(tip, "opened", true);
        compare(tip.text, "Hilfe");
        ViewModel.showTooltips = true;
    }

    function test_spinBoxReportsOnlyTheUser() {
        const spin = createTemporaryObject(spinComponent, testCase, { value: 8 });
        const inner = findChild(spin, "spinBox");
        spin.value = 9;
        compare(inner.value, 9);
        compare(spin.changes.length, 0);

        inner.forceActiveFocus();
        keyClick(Qt.Key_Up);
        compare(spin.changes, [10]);
        compare(spin.value, 9);
        // What is being typed is not overwritten.
        spin.value = 12;
        compare(inner.value, 10);
        testCase.forceActiveFocus();
        compare(inner.value, 12);
        // As assistive technology does.
        inner.value = 15;
        compare(spin.changes, [10, 15]);
        // Beyond the range it shows the end of it, which nobody has chosen.
        spin.value = 40;
        spin.to = 12;
        compare(inner.value, 12);
        compare(spin.changes, [10, 15]);
    }

    function test_emptiedSpinBoxKeepsItsNumber() {
        const spin = createTemporaryObject(spinComponent, testCase, { value: 8 });
        const inner = findChild(spin, "spinBox");
        inner.forceActiveFocus();
        inner.contentItem.selectAll();
        keyClick(Qt.Key_Backspace);
        compare(inner.contentItem.text, "");
        keyClick(Qt.Key_Return);
        compare(spin.changes, []);
        compare(inner.contentItem.text, "8");
        inner.contentItem.selectAll();
        keyClick("9");
        keyClick(Qt.Key_Return);
        compare(spin.changes, [9]);
    }

    function test_focusGoesOnFromWhatVanishes() {
        const row = createTemporaryObject(vanishingComponent, testCase);
        row.first.forceActiveFocus(Qt.TabFocusReason);
        row.first.visible = false;
        tryVerify(() => row.second.visualFocus);
    }

    function test_selectionSurvivesANewModel() {
        const combo = createTemporaryObject(comboComponent, testCase);
        compare(combo.displayText, "b");
        combo.model = ["x", "y", "z"];
        compare(combo.displayText, "y");
        // The owner does not take the user's choice.
        combo.forceActiveFocus();
        keyClick(Qt.Key_Down);
        tryCompare(combo, "displayText", "y");
        combo.selectedIndex = 2;
        compare(combo.displayText, "z");
    }

    // The names of devices are not the program's own.
    function test_namesAreShownAsTheyAre() {
        const name = "<b>Kamera</b> & <i>Co</i>";
        const combo = createTemporaryObject(comboComponent, testCase, { model: [name, "b"] });
        combo.popup.open();
        tryCompare(combo.popup, "opened", true);
        const label = combo.popup.contentItem.itemAtIndex(0).contentItem;
        compare([label.text, label.textFormat], [name, Text.PlainText]);
        verify(label.contentWidth > combo.contentItem.contentWidth * 0.9, "with all its signs");
        combo.popup.close();
        tryCompare(combo.popup, "visible", false);
    }
}
