import QtQuick
import QtTest
import Meridax

// The banner and the release notes of a beta update.
WindowTestCase {
    id: testCase

    name: "BetaUpdate"

    readonly property string notes: "Schnellere Messung\n\n- [Mehr](https://example.org/mehr)\n"

    function initTestCase() {
        testServer.answer("/api/license/update-info", 200, {
            updateAvailable: true,
            latest: { version: "1.2.0-rc1", channel: "beta", releaseNotes: notes,
                      downloadUrl: "https://example.org/beta" },
            latestStable: { version: "1.1.0", downloadUrl: "https://example.org/stable" }
        });
        verify(!ViewModel.running);
        tryCompare(ViewModel, "updateBannerVisible", true);
    }

    function openWithBanner(): Item {
        open();
        testDesk.forgetOpened();
        const banner = item("updateBanner");
        tryVerify(() => banner.height > 40);
        tryCompare(item("topBar"), "y", banner.height);
        return banner;
    }

    function test_banner() {
        const banner = openWithBanner();
        compare(findChild(banner, "updateLabel").text, "Update verfügbar: 1.2.0-rc1");
        compare(findChild(banner, "notesLabel").text, "Schnellere Messung");
        verify(findChild(banner, "betaTag").visible);
        mouseClick(findChild(banner, "downloadButton"));
        mouseClick(findChild(banner, "stableButton"));
        compare(testDesk.opened, ["https://example.org/beta", "https://example.org/stable"]);
        verify(banner.visible);
    }

    function test_releaseNotes() {
        const banner = openWithBanner();
        mouseClick(findChild(banner, "whatsNewLink"));
        const dialog = item("whatsNewDialog");
        opened(dialog);
        compare(part(dialog, "titleLabel").text, "Was ist neu in Version 1.2.0-rc1?");
        verify(part(dialog, "betaTag").visible);
        verify(Qt.colorEqual(dialog.accent, "#FFA726"));
        compare(Qt.size(dialog.width, dialog.height), Qt.size(720, 600));
        const text = findChild(part(dialog, "markdownView"), "area");
        verify(text.getText(0, text.length).includes("Mehr"));
        mouseClick(part(dialog, "downloadButton"));
        closed(dialog);
        compare(testDesk.opened, ["https://example.org/beta"]);
    }

    function test_linksOpenInTheBrowser() {
        const banner = openWithBanner();
        mouseClick(findChild(banner, "whatsNewLink"));
        const dialog = item("whatsNewDialog");
        opened(dialog);
        const text = findChild(part(dialog, "markdownView"), "area");
        const at = text.getText(0, text.length).indexOf("Mehr");
        const place = text.positionToRectangle(at + 2);
        mouseClick(text, place.x, place.y + place.height / 2);
        compare(testDesk.opened, ["https://example.org/mehr"]);
    }

    function test_sizeFollowsTheWindow() {
        openWithBanner();
        const dialog = item("whatsNewDialog");
        mouseClick(findChild(item("updateBanner"), "whatsNewLink"));
        opened(dialog);
        window.width = 800;
        window.height = 600;
        tryCompare(dialog, "width", 640);
        tryCompare(dialog, "height", 480);
        dialog.parent = null;
        compare(Qt.size(dialog.width, dialog.height), Qt.size(720, 600), "no window yet");
    }

    // The last one: a banner that was dismissed does not come back.
    function test_zDismissing() {
        const banner = openWithBanner();
        mouseClick(findChild(banner, "dismissButton"));
        tryCompare(banner, "visible", false);
        compare(item("topBar").y, 0);
        verify(testDesk.hasData("update-state.ini"));
        testDesk.removeData("update-state.ini");
    }
}
