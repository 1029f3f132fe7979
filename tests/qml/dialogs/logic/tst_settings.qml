import QtQuick
import QtQuick.Controls
import QtTest
import Meridax

// The settings panel in the window, without a camera.
WindowTestCase {
    id: testCase

    name: "SettingsPanel"

    function initTestCase() {
        testServer.answer("/api/license/update-info", 200, {
            isBetaTester: true, updateAvailable: false,
            bugReportsEnabled: false, featureRequestsEnabled: true
        });
        verify(!ViewModel.running);
        tryCompare(ViewModel, "isBetaTester", true);
    }

    function cleanupTestCase() {
        ViewModel.language = "de";
        ViewModel.darkMode = true;
    }

    function test_openingAndClosing() {
        open();
        const panel = openSettings();
        compare(panel.width, window.width);
        for (const close of [() => mouseClick(part(panel, "closeButton")),
                             () => keyClick(Qt.Key_Escape), () => pressOutside()]) {
            close();
            closed(panel);
            item("settingsButton").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            opened(panel);
            tryCompare(panel, "position", 1);
        }
    }

    function test_drag() {
        open();
        const panel = item("settingsPanel");
        mouseDrag(item("topBar"), 600, 1, 0, 300);
        compare(panel.position, 0, "not pulled from the window's edge");
        window.minimumHeight = 100;
        window.height = 400;
        const view = part(openSettings(), "settingsView");
        mousePress(view, view.width - 60, 200);
        for (let y = 200; y > 50; y -= 5)
            mouseMove(view, view.width - 60, y);
        mouseRelease(view, view.width - 60, 50);
        tryVerify(() => view.contentY > 0, 5000, "its content scrolls");
        compare(panel.position, 1);
    }

    function test_height_data() {
        return [
            { tag: "smallest window", width: 800, height: 600 },
            { tag: "first start", width: 1600, height: 950 },
            { tag: "full screen", width: 1920, height: 1080 },
            { tag: "lower than the content", width: 1200, height: 400, scrolls: true }
        ];
    }
    function test_height(data) {
        open(1000, 700);
        window.minimumHeight = 100;
        window.width = data.width;
        window.height = data.height;
        const panel = openSettings();
        const view = part(panel, "settingsView");
        const bar = view.ScrollBar.vertical;
        const whole = panel.contentItem.implicitHeight + panel.topPadding + panel.bottomPadding;
        verify(panel.bottomPadding > 0, "the padding counts");
        compare(panel.height, Math.min(window.height * 0.9, whole));
        compare(bar.policy, view.contentHeight > view.height + 1 ? ScrollBar.AlwaysOn
                                                                 : ScrollBar.AlwaysOff);
        if (data.scrolls || window.height * 0.9 > whole)
            compare(bar.visible, data.scrolls ?? false);

        const button = part(panel, "feedbackButton");
        tryVerify(() => {
            mouseWheel(view, 300, 100, 0, -120);
            return bottomOf(button) <= panel.height;
        });
        verify(view.contentItem.children[0].width <= 1400);
    }

    function bottomOf(item: Item): real {
        return item.mapToItem(null, 0, item.height).y;
    }

    // The rounding of a layout is no reason for a scroll bar.
    function test_scrollBarTolerance() {
        open(1200, 800);
        window.minimumHeight = 100;
        const panel = openSettings();
        const view = part(panel, "settingsView");
        const whole = panel.height;
        for (const [missing, policy] of [[0.5, ScrollBar.AlwaysOff], [3, ScrollBar.AlwaysOn]]) {
            window.height = Math.floor((whole - missing) / 0.9);
            tryCompare(panel, "height", window.height * 0.9);
            const lack = view.contentHeight - view.height;
            compare(view.ScrollBar.vertical.policy,
                    lack > 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff);
            if (lack <= 1 || missing > 1)
                compare(view.ScrollBar.vertical.policy, policy);
        }
    }

    function test_checkBoxes() {
        open();
        const panel = openSettings();
        for (const name of ["darkMode", "cameraPanelExpandedAtStart", "rememberCollapsedSections",
                            "overlayPanelExpandedAtStart", "showTooltips", "showZoomOverlay",
                            "screenshotIncludeOverlays", "focusPresetIncludeMarkers",
                            "focusPresetShowValue"]) {
            const box = part(panel, name);
            const before = ViewModel[name];
            compare(box.checked, before, name);
            mouseClick(box);
            compare(ViewModel[name], !before, name);
            ViewModel[name] = before;
            compare(box.checked, before, name + " follows");
        }
    }

    function test_toolTips() {
        open();
        const panel = openSettings();
        const box = part(panel, "showZoomOverlay");
        for (const shown of [true, false]) {
            ViewModel.showTooltips = shown;
            mouseMove(box, box.width / 2, box.height / 2);
            tryCompare(findChild(box, "toolTip"), "opened", shown);
            mouseMove(panel.contentItem, 5, panel.height - 20);
            tryCompare(findChild(box, "toolTip"), "opened", false);
        }
        ViewModel.showTooltips = true;
    }

    function test_language() {
        open();
        const panel = openSettings();
        const box = part(panel, "language");
        compare(box.displayText, "Deutsch");
        box.forceActiveFocus();
        keyClick(Qt.Key_Down);
        compare(ViewModel.language, "en");
        ViewModel.language = "it";
        compare(box.displayText, "Italiano");
        ViewModel.language = "xx";
        compare(box.displayText, "Italiano", "a code that is not in the list");
        ViewModel.language = "de";
        mouseClick(box);
        tryCompare(box.popup, "opened", true);
        mouseClick(box.popup.contentItem, 20, 2 * 32 + 16);
        compare(ViewModel.language, "fr");
        ViewModel.language = "de";
    }

    function test_withoutACamera() {
        open();
        const panel = openSettings();
        compare(part(panel, "profileCameraLabel").text, "Keine Kamera ausgewählt");
        verify(part(panel, "clearProfileButton").visible, "of the camera that is away");
        for (const name of ["profileRestoreOnConnect", "profileRestoreCalibration",
                            "saveProfileButton", "clearProfileButton"])
            verify(!part(panel, name).enabled, name);
    }

    function test_screenshotFolder() {
        open();
        ViewModel.screenshotPath = "";
        const panel = openSettings();
        compare(part(panel, "screenshotPathLabel").text, "Nicht festgelegt");
        const choose = () => {
            mouseClick(part(panel, "screenshotFolderButton"));
            let dialog = null;
            tryVerify(() => {
                dialog = item("screenshotFolderDialog"); // a new one each time
                return dialog.visible;
            });
            return dialog;
        };
        const first = choose();
        first.selectedFolder = "file:///tmp";
        first.accept();
        tryCompare(first, "visible", false);
        compare(part(panel, "screenshotPathLabel").text, "/tmp");
        verify(panel.opened);
        // Whatever was looked at last time, it opens where the screenshots go now.
        for (const folder of ["/usr", "/etc"]) {
            ViewModel.screenshotPath = folder;
            const dialog = choose();
            compare(dialog.currentFolder, "file://" + folder);
            dialog.reject();
            tryCompare(dialog, "visible", false);
        }
        ViewModel.screenshotPath = "";
    }

    function test_pausedButton() {
        open();
        const panel = openSettings();
        compare(part(panel, "supportLabel").text,
                "Du bist als Beta-Tester freigeschaltet — danke fürs Testen!");
        verify(part(panel, "betaTesterTag").visible);
        const button = part(panel, "bugButton");
        compare(button.opacity, 0.5);
        mouseClick(button);
        verify(!item("bugReportDialog").visible);
        mouseMove(button, 20, 10);
        const tip = findChild(button, "pausedTip");
        tryCompare(tip, "opened", true);
        compare(tip.text, "Bug-Reports sind serverseitig vorübergehend deaktiviert.");
    }

    function test_supportButtons_data() {
        return [
            { tag: "featureButton", dialog: "bugReportDialog", title: "Feature vorschlagen" },
            { tag: "feedbackButton", dialog: "feedbackDialog", title: "Feedback senden" },
        ];
    }
    function test_supportButtons(data) {
        open();
        const panel = openSettings();
        mouseClick(part(panel, data.tag));
        const dialog = item(data.dialog);
        opened(dialog);
        closed(panel);
        compare(part(dialog, "titleLabel").text, data.title);
        verify(dialog.activeFocus, "the keys go to the dialog, not to what was there before");
        keyClick(Qt.Key_Escape);
        closed(dialog);
    }

    function test_manual() {
        open();
        testDesk.forgetOpened();
        mouseClick(part(openSettings(), "manualButton"));
        compare(testDesk.opened, [ViewModel.docsUrl]);
    }
}
