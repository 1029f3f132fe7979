pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtTest
import Meridax

// Draws every panel and dialog in both themes, large and small, and looks for what does not fit. The
// pictures are for the eye.
TestCase {
    id: testCase

    name: "Pictures"
    when: windowShown

    property var window: null

    Component {
        id: mainComponent

        Main {}
    }

    function initTestCase() {
        testServer.answer("/api/license/update-info", 200, {
            updateAvailable: true, isBetaTester: true, featureRequestsEnabled: false,
            latest: { version: "1.2.0-beta.3", channel: "beta",
                      downloadUrl: "https://example.org/beta",
                      releaseNotes: "Schnellere Messung, größere Übersicht und weniger Fehler\n\n"
                          + "## Neu\n\n- **Öffnen:** [Mehr](https://example.org)\n- `f=120`\n\n"
                          + "1. Zuerst\n2. Dann\n\n> Zitat\n\n| Wert | Einheit |\n|---|---|\n"
                          + "| Radius | px |\n" },
            latestStable: { version: "1.1.0", downloadUrl: "https://example.org/stable" }
        });
        testServer.answer("/api/license/report-bug", 429, {});
        testServer.answer("/api/license/feedback", 200, { success: true });
        for (const kind of ["eula", "privacy"])
            testServer.answer("/api/license/legal/" + kind, 200, {
                version: "2.1", contentMarkdown: "# Überschrift\n\n## § 1\n\n"
                    + "Größe, Öffnung, Äquator und ein langer Satz. ".repeat(60)
            });
        verify(!ViewModel.running);
        tryCompare(ViewModel, "updateBannerVisible", true);
    }

    function cleanup() {
        window = null;
    }

    function closeAll() {
        testDesk.removeData("crash.txt");
        ViewModel.crashStateChanged();
        const about = item("aboutDialog");
        const popups = [findChild(about, "legalTextDialog"), about, item("whatsNewDialog"),
                        findChild(part(item("bugReportDialog"), "logOption"), "logPreview"),
                        item("bugReportDialog"), item("feedbackDialog"), item("settingsPanel"),
                        item("crashRecoveryDialog")];
        for (const popup of popups)
            popup.close();
        for (const popup of popups)
            tryCompare(popup, "visible", false);
        ViewModel.clearBugReportState();
    }

    readonly property var surfaces: ({
        banner: () => item("updateBanner"),
        settings: () => shown("settingsPanel"),
        bug: () => shown("bugReportDialog"),
        bugFilled: () => {
            const dialog = shown("bugReportDialog");
            part(dialog, "titleField").text = "Bild friert ein";
            findChild(part(dialog, "descriptionArea"), "area").text = "Größer als üblich. ".repeat(9);
            dialog.selectedCategory = "Crash";
            dialog.screenshotFileName = "Bildschirmfoto vom Fernrohr mit sehr langem Namen 2026.png";
            ViewModel.submitBugReportWithLogs("a", "b", "", "", false, "");
            tryVerify(() => ViewModel.bugReportError !== "");
            const view = dialog.contentItem;
            tryVerify(() => view.height < view.contentHeight || window.height > 900);
            view.contentY = Math.max(0, view.contentHeight - view.height);
            return dialog;
        },
        feature: () => {
            item("bugReportDialog").reportKind = "feature";
            return shown("bugReportDialog");
        },
        log: () => {
            shown("bugReportDialog");
            const dialog = findChild(part(item("bugReportDialog"), "logOption"), "logPreview");
            dialog.open();
            tryCompare(dialog, "opened", true);
            return dialog;
        },
        feedback: () => {
            const dialog = shown("feedbackDialog");
            dialog.rating = 3;
            const star = part(dialog, "star4");
            mouseMove(star, star.width / 2, star.height / 2);
            tryCompare(findChild(star, "toolTip"), "opened", true);
            return dialog;
        },
        feedbackSent: () => {
            const dialog = shown("feedbackDialog");
            dialog.rating = 5;
            ViewModel.submitFeedback(5, "");
            tryCompare(ViewModel, "bugReportSuccess", true);
            return dialog;
        },
        crash: () => crash(false),
        crashDetails: () => crash(true),
        about: () => shown("aboutDialog"),
        legal: () => {
            ViewModel.fetchLegalDocuments();
            tryCompare(ViewModel, "legalDocsReady", true);
            const dialog = findChild(shown("aboutDialog"), "legalTextDialog");
            dialog.kind = "privacy";
            dialog.open();
            tryCompare(dialog, "opened", true);
            return dialog;
        },
        whatsNew: () => shown("whatsNewDialog"),
        history: () => {
            item("whatsNewDialog").showInstalled = true;
            return shown("whatsNewDialog");
        }
    })

    function item(name: string): var {
        const found = findChild(window, name);
        verify(found, `no item ${name}`);
        return found;
    }

    function part(popup: var, name: string): var {
        const found = findChild(popup.contentItem, name);
        verify(found, `no part ${name}`);
        return found;
    }

    function shown(name: string): var {
        const popup = item(name);
        popup.open();
        tryCompare(popup, "opened", true);
        return popup;
    }

    function crash(details: bool): var {
        testDesk.writeData("crash.txt", "=== Meridax Crash Report ===\r\n"
            + "ExceptionCode: 0xC0000005 (ACCESS_VIOLATION)\r\nModule:        meridax+0x1234\r\n\r\n"
            + "--- Last 50 log lines ---\r\n" + "22:34:18 [camera] Äußerst lange Zeile ".repeat(4));
        ViewModel.crashStateChanged();
        const dialog = item("crashRecoveryDialog");
        tryCompare(dialog, "opened", true);
        part(dialog, "crashDetails").expanded = details;
        return dialog;
    }

    function test_fits_data() {
        const rows = [];
        for (const dark of [true, false]) {
            for (const size of [Qt.size(1920, 1080), Qt.size(1600, 950), Qt.size(800, 600)])
                rows.push({ tag: `${dark ? "dark" : "light"}-${size.width}`,
                            dark: dark, size: size });
        }
        return rows;
    }

    function test_fits(data) {
        failOnWarning(/.?/);
        ViewModel.darkMode = data.dark;
        ViewModel.saveWindowGeometry(0, 0, data.size.width, data.size.height, false);
        window = createTemporaryObject(mainComponent, testCase);
        tryCompare(window, "active", true);
        tryVerify(() => item("updateBanner").height > 40);
        // So large a window only makes a difference to what is as wide as it.
        const names = data.size.width > 1600 ? ["settings"] : Object.keys(surfaces);
        for (const name of names) {
            const surface = surfaces[name]();
            testPictures.save(window, `${name}-${data.tag}`);
            for (const area of [surface.contentItem ?? surface, surface.header, surface.footer]) {
                if (area)
                    checkTexts(area);
            }
            verify(surface.y >= 0 && surface.y + surface.height <= window.height, name);
            closeAll();
        }
    }

    /// No text below `area` is cut, except those that may be of any length.
    function checkTexts(area: Item) {
        if (!area.visible)
            return;
        const mayBeCut = ["notesLabel", "screenshotPathLabel", "screenshotNameLabel", "value"];
        if (area instanceof Text && area.text !== "" && !mayBeCut.includes(area.objectName)) {
            verify(!area.truncated, `cut: ${area.text}`);
            verify(area.contentWidth <= area.width + 1, `too wide: ${area.text}`);
            verify(area.contentHeight <= area.height + 1, `too high: ${area.text}`);
        }
        for (const child of area.children)
            checkTexts(child);
    }
}
