import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import QtTest
import Meridax

TestCase {
    id: testCase

    name: "CollapsibleSection"
    when: windowShown
    width: 400
    height: 400
    visible: true

    Component {
        id: sectionComponent

        CollapsibleSection {
            width: 300
            title: "Gruppe"
            headerRight: [
                Switch {
                    objectName: "headerSwitch"
                }
            ]

            Rectangle {
                objectName: "content"
                implicitWidth: 50
                implicitHeight: 120
            }
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
    }

    function create(properties): CollapsibleSection {
        const section = createTemporaryObject(sectionComponent, testCase, properties);
        verify(section);
        return section;
    }

    function test_initialState_data() {
        return [
            { tag: "open", key: "", byDefault: false, expanded: true },
            { tag: "folded", key: "", byDefault: true, expanded: false },
            { tag: "nothing remembered", key: "never used", byDefault: true, expanded: false },
            { tag: "remembered open", key: "test", remembered: false, byDefault: true,
              expanded: true },
            { tag: "remembered folded", key: "test", remembered: true, byDefault: false,
              expanded: false }
        ];
    }

    function test_initialState(data) {
        if (data.remembered !== undefined)
            ViewModel.setSectionCollapsed(data.key, data.remembered);
        const section = create({ persistKey: data.key, defaultCollapsed: data.byDefault });
        compare(section.expanded, data.expanded);
        // At once: only the user's folding is animated.
        compare(findChild(section, "contentBox").implicitHeight, data.expanded ? 120 : 0);
        compare(findChild(section, "chevron").rotation, data.expanded ? 0 : -90);
    }

    function test_foldedContentLeavesTheLayout() {
        const section = create({});
        const box = findChild(section, "contentBox");
        const content = findChild(section, "content");
        const openHeight = section.implicitHeight;
        section.toggle();
        compare(content.height, 120);
        tryCompare(box, "visible", false);
        verify(!content.visible);
        tryCompare(section, "implicitHeight", openHeight - 120);
        section.toggle();
        tryCompare(section, "implicitHeight", openHeight);
        verify(content.visible);
    }

    function test_whatFolds_data() {
        return [
            { tag: "title", click: header => mouseClick(header, 100, header.height / 2),
              folds: true },
            { tag: "chevron", click: header => mouseClick(findChild(header, "chevron")),
              folds: true },
            { tag: "header control",
              click: header => mouseClick(findChild(header, "headerSwitch")), folds: false }
        ];
    }

    function test_whatFolds(data) {
        const section = create({});
        data.click(findChild(section, "sectionHeader"));
        compare(section.expanded, !data.folds);
        compare(findChild(section, "headerSwitch").checked, !data.folds);
    }

    function test_keyboardFolds_data() {
        return [{ tag: "space", key: Qt.Key_Space }, { tag: "return", key: Qt.Key_Return },
                { tag: "enter", key: Qt.Key_Enter }];
    }

    function test_keyboardFolds(data) {
        const section = create({});
        findChild(section, "chevron").forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        verify(!section.expanded);
        keyClick(data.key);
        verify(section.expanded);
    }

    function test_disabledContentStillFolds() {
        const section = create({ contentEnabled: false });
        verify(!findChild(section, "content").enabled);
        verify(findChild(section, "headerSwitch").enabled);
        mouseClick(findChild(section, "chevron"));
        verify(!section.expanded);
    }

    function test_memory() {
        ViewModel.setSectionCollapsed("test", false);
        const section = create({ persistKey: "test" });
        section.toggle();
        verify(ViewModel.sectionCollapsed("test", false));
        verify(!create({ persistKey: "test" }).expanded);
        section.toggle();
        verify(!ViewModel.sectionCollapsed("test", true));
    }

    function test_withoutKeyNothingIsRemembered() {
        create({}).toggle();
        verify(!ViewModel.sectionCollapsed("", false));
        verify(ViewModel.sectionCollapsed("", true));
    }
}
