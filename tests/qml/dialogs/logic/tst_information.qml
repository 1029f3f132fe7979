import QtQuick
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Parts
import "qrc:/qt/qml/Meridax/src/qml/markdownText.mjs" as MarkdownText

// What is installed, the legal texts, and the banner of a stable update without release notes.
WindowTestCase {
    id: testCase

    name: "InformationDialogs"

    Component {
        id: warningComponent

        Parts.FewPositionsWarning {}
    }

    function initTestCase() {
        testDesk.removeData("legal-docs.json");
        for (const kind of ["eula", "privacy"])
            testServer.answer("/api/license/legal/" + kind, 404, {});
        testServer.answer("/api/license/update-info", 200, {
            updateAvailable: true,
            latest: { version: "1.1.0", channel: "stable", downloadUrl: "https://example.org/new" }
        });
        verify(!ViewModel.running);
        tryCompare(ViewModel, "updateBannerVisible", true);
        tryVerify(() => ViewModel.legalDocsError !== "");
    }

    function openAbout(): var {
        open();
        mouseClick(part(openSettings(), "aboutButton"));
        const dialog = item("aboutDialog");
        opened(dialog);
        return dialog;
    }

    function test_stableBanner() {
        open();
        const banner = item("updateBanner");
        tryVerify(() => banner.height > 40);
        for (const name of ["betaTag", "notesLabel", "whatsNewLink", "stableButton"])
            verify(!findChild(banner, name).visible, name);
        testDesk.forgetOpened();
        mouseClick(findChild(banner, "downloadButton"));
        compare(testDesk.opened, ["https://example.org/new"]);
        const cross = findChild(banner, "dismissButton");
        verify(cross.mapToItem(banner, cross.width, 0).x > banner.width - 20);
    }

    function values(block: Item): var {
        const found = [];
        for (const row of block.children) {
            const value = findChild(row, "value");
            if (value)
                found.push(value.text);
        }
        return found;
    }

    function test_about() {
        const dialog = openAbout();
        compare(dialog.width, 640);
        compare(values(part(dialog, "clientBlock")),
                [ViewModel.appVersion, ViewModel.appCommitSha, ViewModel.appBuildTime]);
        compare(values(part(dialog, "serverBlock")), [ViewModel.serverHost, "—", "—", "—"]);
        for (const name of ["whatsNewButton", "eulaButton", "privacyButton", "closeButton"]) {
            const button = part(dialog, name);
            const right = button.mapToItem(null, button.width, 0).x;
            verify(right <= dialog.x + dialog.width - 16, name);
        }
        mouseClick(part(dialog, "whatsNewButton"));
        closed(dialog);
        const notes = item("whatsNewDialog");
        opened(notes);
        compare(notes.notes, ViewModel.installedReleaseNotes);
        verify(notes.notes.startsWith("# Meridax"));
        compare(part(notes, "titleLabel").text, `Was ist neu in Version ${ViewModel.appVersion}?`);
        verify(!part(notes, "downloadButton").visible);
        keyClick(Qt.Key_Escape);
        closed(notes);
    }

    function test_aboutCloses() {
        const dialog = openAbout();
        for (const close of [() => mouseClick(part(dialog, "closeButton")),
                             () => keyClick(Qt.Key_Escape), () => pressOutside()]) {
            close();
            closed(dialog);
            mouseClick(part(item("settingsPanel"), "aboutButton"));
            opened(dialog);
        }
    }

    // Before any text has come.
    function test_1_legalTextsMissing() {
        const dialog = openAbout();
        const legal = findChild(dialog, "legalTextDialog");
        for (const [button, title] of [["eulaButton", "Nutzungsbedingungen"],
                                       ["privacyButton", "Datenschutzerklärung"]]) {
            mouseClick(part(dialog, button));
            opened(legal);
            compare(part(legal, "titleLabel").text, title);
            verify(part(legal, "fallbackLabel").visible);
            mouseClick(part(legal, "crossButton"));
            closed(legal);
        }
    }

    function test_2_legalTexts() {
        for (const [kind, text] of [["eula", "# Regeln\nErlaubt."], ["privacy", "Nichts."]])
            testServer.answer("/api/license/legal/" + kind, 200,
                              { kind: kind, version: "2.1", contentMarkdown: text });
        ViewModel.fetchLegalDocuments();
        tryCompare(ViewModel, "legalDocsReady", true);
        testServer.clear();
        const dialog = openAbout();
        const legal = findChild(dialog, "legalTextDialog");
        const text = findChild(part(legal, "markdownView"), "area");
        mouseClick(part(dialog, "eulaButton"));
        opened(legal);
        compare(part(legal, "titleLabel").text, "Nutzungsbedingungen (v2.1)");
        verify(text.getText(0, text.length).startsWith("Regeln"));
        mouseClick(part(legal, "closeButton"));
        closed(legal);
        mouseClick(part(dialog, "privacyButton"));
        opened(legal);
        compare(text.getText(0, text.length), "Nichts.");
        compare(testServer.received("/api/license/legal/eula"), [], "opening asks no server");
    }

    // A long text scrolls by the keys, too.
    function test_scrollingByKeys() {
        open();
        const dialog = item("whatsNewDialog");
        dialog.showInstalled = true;
        dialog.open();
        opened(dialog);
        window.height = 600;
        const reader = part(dialog, "markdownView");
        verify(reader.view.contentHeight > reader.view.height);
        keyClick(Qt.Key_Down);
        tryVerify(() => reader.view.contentY > 0);
        keyClick(Qt.Key_Home);
        tryCompare(reader.view, "contentY", 0);
        keyClick(Qt.Key_End);
        tryVerify(() => reader.view.contentY > 100);
    }

    function test_nothingIsLoaded_data() {
        const address = "http://127.0.0.1/bild.png";
        return [
            { tag: "image", text: `![Bild](${address})` },
            { tag: "image with exclamations", text: `Neu!!![Bild](${address})` },
            { tag: "linked image", text: `[![Bild](${address})](https://example.org)` },
            { tag: "by reference", text: `![Bild][1]\n\n[1]: ${address}` },
            { tag: "by its own name", text: `![1]\n\n[1]: ${address}` },
            { tag: "file", text: "![Bild](file:///etc/hostname)" },
            { tag: "backslashes", text: `\\![a](${address}) \\\\![b](${address})` },
            { tag: "tag", text: `<img src="${address}">` },
            { tag: "tag in a line", text: `Text <IMG\nsrc='${address}'> Text` },
            { tag: "tag in a table", text: `| a |\n|---|\n| <img src="${address}"> |` },
            { tag: "tag after an address", text: `<https://a.example><img src="${address}">` },
            { tag: "tag in an address", text: `<https://a.example/<img src="${address}">>` },
            { tag: "style sheet", text: `<link rel="stylesheet" href="${address}">` },
            { tag: "ground", text: `<body background="${address}"><p>Text</p></body>` }
        ];
    }
    function test_nothingIsLoaded(data) {
        compare(testDesk.resources(MarkdownText.withoutResources(data.text)), []);
    }

    function test_restOfTheMarkdownStays() {
        for (const text of ["# Titel!\n\n- **neu**: [Link](https://a.example)\n", "a < b, 1 <2",
                            "<https://a.example/x>", "> Zitat!\n\n| a | b |\n|---|---|\n| 1 | 2 |"])
            compare(MarkdownText.withoutResources(text), text);
        compare(MarkdownText.withoutResources("![Bild](x)"), "[Bild](x)");
    }

    // Each of these would keep the window busy for seconds to minutes.
    function test_excessiveMarkdown_data() {
        return [
            { tag: "release notes", text: ViewModel.installedReleaseNotes, moderate: true },
            { tag: "long list", text: "- **Punkt:** `f`\n".repeat(1500), moderate: true },
            { tag: "long prose", text: "Ein *langer* Satz.\n\n".repeat(900), moderate: true },
            { tag: "numbered list", text: "1. **Punkt:** `f`\n".repeat(200), moderate: true },
            { tag: "counted list", moderate: true,
              text: Array.from({ length: 200 }, (_, i) => `${i + 1}. **Punkt:** \`f\`\n`).join("") },
            { tag: "of Windows", text: "1.1 **Punkt** mit Text.\r\n\r\n".repeat(200),
              moderate: true },
            { tag: "numbers that begin no list", text: "Text\n" + "2. `a` `b`\n".repeat(100) },
            { tag: "lines of old systems", text: "- Punkt\r".repeat(25000) },
            { tag: "blank to the eye alone", text: "`a` `b`\n\u00a0\n".repeat(100) },
            { tag: "endless list", text: "- Punkt\n".repeat(25000) },
            { tag: "endless table", text: "|a|b|\n|---|---|\n" + "|a|b|\n".repeat(1900) },
            { tag: "endless spans", text: "`a".repeat(1000) },
            { tag: "spans over lines", text: "> `a` `b`\n2. `c` `d`\n".repeat(100) }
        ];
    }
    function test_excessiveMarkdown(data) {
        compare(MarkdownText.isModerate(data.text), data.moderate ?? false);
    }

    function test_fewPositionsWarning() {
        open();
        testDesk.forgetOpened();
        const button = createTemporaryObject(warningComponent, window.contentItem,
                                             { x: 500, y: 300, z: 50 });
        tryVerify(() => {
            window.requestActivate();
            button.forceActiveFocus(Qt.TabFocusReason);
            return button.visualFocus;
        });
        const tip = findChild(button, "toolTip");
        tryCompare(tip, "opened", true);
        verify(tip.item.contentItem.text.startsWith("Weniger als 6 Messpunkte"));
        mouseClick(button);
        compare(testDesk.opened, [ViewModel.docsUrl]);
    }

    function test_firstLine() {
        compare(MarkdownText.firstLine("eins\r\nzwei"), "eins");
        compare(MarkdownText.firstLine("eins"), "eins");
        compare(MarkdownText.firstLine("\nzwei"), "");
        compare(MarkdownText.firstLine("x".repeat(10000000)).length, 500);
    }
}
