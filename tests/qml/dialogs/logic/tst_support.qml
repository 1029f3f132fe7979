import QtQuick
import QtTest
import Meridax

// Bug reports, feature requests and feedback, from the first click to the answer of the server.
WindowTestCase {
    id: testCase

    name: "SupportDialogs"

    readonly property string bugPath: "/api/license/report-bug"
    readonly property string featurePath: "/api/license/feature-request"
    readonly property string feedbackPath: "/api/license/feedback"
    readonly property string longEnough: "Beim Drehen der Kamera bleibt das Bild nach einer Minute stehen."

    function initTestCase() {
        verify(!ViewModel.running);
        tryCompare(ViewModel, "legalDocsReady", true);
    }

    function cleanup() {
        testServer.holding = false;
        tryCompare(ViewModel, "bugReportPending", false);
        testServer.clear();
        window = null;
    }

    function openForm(kind: string): var {
        open();
        mouseClick(part(openSettings(), kind + "Button"));
        const dialog = item(kind === "feedback" ? "feedbackDialog" : "bugReportDialog");
        opened(dialog);
        return dialog;
    }

    function choose(dialog: var, category: string) {
        const box = part(dialog, "categoryBox");
        mouseClick(box);
        tryCompare(box.popup, "opened", true);
        mouseClick(box.popup.contentItem, 30, 32 * box.model.indexOf(category) + 16);
        tryCompare(box.popup, "visible", false);
        compare(dialog.selectedCategory, category);
    }

    function description(dialog: var): Item {
        return findChild(part(dialog, "descriptionArea"), "area");
    }

    function fill(dialog: var) {
        const title = part(dialog, "titleField");
        tryVerify(() => {
            mouseClick(title);
            return title.activeFocus;
        });
        type("  Standbild ");
        choose(dialog, "Hardware");
        mouseClick(description(dialog));
        type(longEnough);
    }

    function test_whatMayBeSent_data() {
        const text49 = "x".repeat(49);
        const text50 = "x".repeat(50);
        return [
            { tag: "all", title: "Titel", text: text50, category: "GUI", complete: true },
            { tag: "blank title", title: "   ", text: text50, category: "GUI" },
            { tag: "no category", title: "Titel", text: text50, category: "" },
            { tag: "blanks do not count", title: "Titel", text: "  " + text49 + " \n ",
              category: "GUI", counter: "min. 50 Zeichen (noch 1)", alert: true },
            { tag: "longest", title: "Titel", text: "x".repeat(8000), category: "GUI",
              complete: true, counter: "8000 / 8000" },
            { tag: "too long", title: "Titel", text: "x".repeat(8001), category: "GUI",
              counter: "8001 / 8000", alert: true }
        ];
    }
    function test_whatMayBeSent(data) {
        const dialog = openForm("bug");
        compare(findChild(part(dialog, "titleCaption"), "counter").text, "0 / 200");
        part(dialog, "titleField").text = data.title;
        description(dialog).text = data.text;
        dialog.selectedCategory = data.category;
        compare(part(dialog, "sendButton").enabled, data.complete ?? false);
        const counter = findChild(part(dialog, "descriptionCaption"), "counter");
        if (data.counter)
            compare(counter.text, data.counter);
        compare(Qt.colorEqual(counter.color, "#F44336"), data.alert ?? false);
    }

    function test_titleEndsAtItsLimit() {
        const dialog = openForm("bug");
        part(dialog, "titleField").text = "x".repeat(199);
        type("yz");
        compare(part(dialog, "titleField").text, "x".repeat(199) + "y");
        compare(findChild(part(dialog, "titleCaption"), "counter").text, "200 / 200");
    }

    function test_bugIsSent() {
        testServer.answer(bugPath, 200, { success: true, bugId: "B1", message: "" });
        const dialog = openForm("bug");
        compare(part(dialog, "categoryBox").displayText, "(bitte wählen)");
        verify(part(dialog, "titleField").activeFocus);
        fill(dialog);
        dialog.includeLogs = false;
        testServer.holding = true;
        mouseClick(part(dialog, "sendButton"));
        tryVerify(() => testServer.received(bugPath).length === 1);
        for (const name of ["titleField", "categoryBox", "descriptionArea",
                            "chooseScreenshotButton", "sendButton"])
            verify(!part(dialog, name).enabled, name);
        verify(part(dialog, "busyIndicator").visible);

        testServer.holding = false;
        tryCompare(part(dialog, "successLabel"), "visible", true);
        compare(part(dialog, "successLabel").text, "Vielen Dank! Der Bug-Report wurde erfasst.");
        verify(!part(dialog, "sendButton").visible);
        verify(!part(dialog, "titleField").enabled);
        compare(part(dialog, "cancelButton").text, "Schließen");
        const sent = testServer.received(bugPath)[0];
        compare(sent.title, "Standbild");
        compare(sent.description, longEnough);
        compare(sent.category, "Hardware");
        verify(!("screenshotBase64" in sent) && !("logsExcerpt" in sent));
        closed(dialog);

        mouseClick(part(openSettings(), "bugButton"));
        opened(dialog);
        compare(part(dialog, "titleField").text, "");
        compare(description(dialog).text, "");
        compare(dialog.selectedCategory, "");
        verify(!part(dialog, "successLabel").visible);
        verify(!dialog.includeLogs, "the last choice stays for the run");
        dialog.includeLogs = true;
    }

    function test_failure_data() {
        return [
            { tag: "rate limit", status: 429, body: {},
              text: "Maximal 10 Bug-Reports pro 24h. Bitte später erneut." },
            { tag: "refused", status: 400, body: { errorCode: "INVALID_TITLE" },
              text: "Titel ist ungültig (max. 200 Zeichen)." },
            { tag: "markup in the server's words", status: 500,
              body: { errorCode: "X", message: "<b>Wartung</b>" }, text: "<b>Wartung</b>" },
            { tag: "no answer to read", status: 500, body: {},
              text: "Server nicht erreichbar. Bitte später erneut versuchen." }
        ];
    }
    function test_failure(data) {
        testServer.answer(bugPath, data.status, data.body);
        const dialog = openForm("bug");
        fill(dialog);
        mouseClick(part(dialog, "sendButton"));
        const label = part(dialog, "errorLabel");
        tryCompare(label, "visible", true);
        compare(label.text, data.text);
        compare(label.textFormat, Text.PlainText);
        compare(part(dialog, "titleField").text, "  Standbild ");
        compare(description(dialog).text, longEnough);
        compare(dialog.selectedCategory, "Hardware");
        verify(part(dialog, "sendButton").enabled && part(dialog, "titleField").enabled);
        keyClick(Qt.Key_Escape);
        closed(dialog);
        compare(ViewModel.bugReportError, "");
    }

    function test_closing() {
        const dialog = openForm("bug");
        for (const [text, close] of [["x", () => mouseClick(part(dialog, "cancelButton"))],
                                     ["x", () => keyClick(Qt.Key_Escape)],
                                     ["", () => pressOutside()]]) {
            opened(dialog);
            type(text);
            close();
            closed(dialog);
            mouseClick(part(openSettings(), "bugButton"));
            opened(dialog);
            compare(part(dialog, "titleField").text, "");
        }
    }

    // A click beside the form must not cost what was typed, neither before nor while it is sent.
    function test_strayClick() {
        for (const [kind, area] of [["bug", "descriptionArea"], ["feedback", "commentArea"]]) {
            const path = kind === "bug" ? bugPath : feedbackPath;
            testServer.answer(path, 200, { success: true });
            const dialog = openForm(kind);
            if (kind === "bug")
                fill(dialog);
            else
                mouseClick(part(dialog, "star4"));
            const text = findChild(part(dialog, area), "area");
            text.text = longEnough;
            pressOutside();
            testServer.holding = true;
            mouseClick(part(dialog, "sendButton"));
            tryVerify(() => testServer.received(path).length === 1);
            pressOutside();
            verify(dialog.opened);
            compare(text.text, longEnough);
            testServer.holding = false;
            tryCompare(part(dialog, "successLabel"), "visible", true);
            pressOutside(); // what is sent need not stay
            closed(dialog);
            window = null;
        }
    }

    function test_feature() {
        testServer.answer(featurePath, 200, { success: true, requestId: "F1" });
        const dialog = openForm("feature");
        verify(!part(dialog, "logOption").visible);
        compare(part(dialog, "categoryBox").model, ["Hardware", "Workflow", "GUI", "Other"]);
        fill(dialog);
        dialog.reportKind = "bug";
        compare(dialog.selectedCategory, "");
        compare(part(dialog, "categoryBox").currentIndex, -1);
        dialog.reportKind = "feature";
        choose(dialog, "Other");
        mouseClick(part(dialog, "sendButton"));
        tryCompare(part(dialog, "successLabel"), "visible", true);
        compare(part(dialog, "successLabel").text,
                "Vielen Dank! Dein Feature-Vorschlag wurde erfasst.");
        compare(testServer.received(featurePath)[0].category, "Other");
        mouseClick(part(dialog, "cancelButton"));
        closed(dialog);
        compare(dialog.reportKind, "bug");
    }

    function test_screenshot() {
        testServer.answer(bugPath, 200, { success: true, bugId: "B2" });
        const dialog = openForm("bug");
        const files = findChild(part(dialog, "screenshotPicker"), "screenshotFileDialog");
        const pick = url => {
            files.selectedFile = url;
            // For a moment after the one before, presses still go to it.
            tryVerify(() => {
                if (!files.visible)
                    mouseClick(part(dialog, "chooseScreenshotButton"));
                return files.visible;
            });
            verify(!part(dialog, "screenshotErrorLabel").visible);
            files.accept();
            tryCompare(files, "visible", false);
            window.requestActivate(); // it was a window of its own
            tryCompare(window, "active", true);
        };
        pick(testDesk.image("Bild ä 1%.jpg", "png"));
        compare(part(dialog, "screenshotNameLabel").text, "Bild ä 1%.jpg");
        compare(dialog.screenshotMime, "image/png");
        compare(part(dialog, "chooseScreenshotButton").text, "Anderen Screenshot wählen");

        pick(testDesk.image("x.png", "bmp"));
        compare(part(dialog, "screenshotErrorLabel").text, "Nur PNG / JPEG erlaubt (erkannt: bmp).");
        compare([dialog.screenshotBase64, dialog.screenshotMime, dialog.screenshotFileName],
                ["", "", ""]);

        pick(testDesk.image("x.jpg", "jpg"));
        mouseClick(part(dialog, "removeScreenshotButton"));
        compare(dialog.screenshotBase64, "");
        pick(testDesk.image("x.jpg", "jpg"));
        const image = dialog.screenshotBase64;
        fill(dialog);
        mouseClick(part(dialog, "sendButton"));
        tryCompare(part(dialog, "successLabel"), "visible", true);
        compare(testServer.received(bugPath)[0].screenshotBase64, image);
        compare(testServer.received(bugPath)[0].screenshotMime, "image/jpeg");
    }

    function test_log() {
        testServer.answer(bugPath, 200, { success: true, bugId: "B3" });
        const dialog = openForm("bug");
        const box = part(dialog, "includeLogsCheckBox");
        verify(box.checked);
        mouseClick(box);
        verify(!dialog.includeLogs && !part(dialog, "previewButton").enabled);
        mouseClick(box);
        mouseClick(part(dialog, "previewButton"));
        const preview = findChild(part(dialog, "logOption"), "logPreview");
        opened(preview);
        keyClick(Qt.Key_Escape);
        closed(preview);
        verify(dialog.opened);
        fill(dialog);
        mouseClick(part(dialog, "sendButton"));
        tryCompare(part(dialog, "successLabel"), "visible", true);
        verify(!part(dialog, "previewButton").enabled, "it would outlive the dialog");
    }

    function test_feedback() {
        testServer.answer(feedbackPath, 200, { success: true, feedbackId: "R1" });
        const dialog = openForm("feedback");
        const send = part(dialog, "sendButton");
        const comment = findChild(part(dialog, "commentArea"), "area");
        verify(!send.enabled);
        const reactions = ["Schade — was können wir besser machen?",
                           "Danke fürs ehrliche Feedback.", "OK — wo siehst du Luft nach oben?",
                           "Schön zu hören!", "Wow — danke!"];
        for (let star = 1; star <= 5; ++star) {
            mouseClick(part(dialog, "star" + star));
            compare(dialog.rating, star);
            compare(part(dialog, "reactionLabel").text, reactions[star - 1]);
            verify(send.enabled);
        }
        mouseClick(part(dialog, "star2"));
        for (const [length, enabled] of [[4001, false], [4000, true]]) {
            comment.text = "x".repeat(length);
            compare(findChild(part(dialog, "commentCaption"), "counter").text, `${length} / 4000`);
            compare(send.enabled, enabled);
        }
        comment.clear();
        mouseClick(comment);
        type(" gut ");
        testServer.holding = true;
        mouseClick(send);
        tryVerify(() => testServer.received(feedbackPath).length === 1);
        mouseClick(part(dialog, "star5"));
        compare(dialog.rating, 2);
        testServer.holding = false;
        tryCompare(part(dialog, "successLabel"), "visible", true);
        compare(part(dialog, "successLabel").text, "Vielen Dank für dein Feedback!");
        closed(dialog);
        const sent = testServer.received(feedbackPath)[0];
        compare([sent.rating, sent.comment], [2, "gut"]);
        mouseClick(part(openSettings(), "feedbackButton"));
        opened(dialog);
        compare([dialog.rating, comment.text], [0, ""]);
    }

    // A tip that is no part of the dialog would lie behind it.
    function test_starsTellWhatTheyMean() {
        const dialog = openForm("feedback");
        const names = ["Sehr unzufrieden", "Unzufrieden", "OK", "Gut", "Begeistert"];
        for (let star = 1; star <= 5; ++star) {
            const button = part(dialog, "star" + star);
            const tip = findChild(button, "toolTip");
            mouseMove(button, 20, 20);
            tryCompare(tip, "opened", true);
            compare(tip.item.contentItem.text, names[star - 1]);
            const overlay = dialog.contentItem.parent.parent;
            const layers = overlay.children;
            const at = popup => layers.findIndex(layer => layer === popup.contentItem.parent);
            verify(at(tip.item) >= 0 && at(dialog) >= 0);
            const [over, under] = [layers[at(tip.item)], layers[at(dialog)]];
            verify(over.z > under.z || over.z === under.z && at(tip.item) > at(dialog),
                   `${over.z} over ${under.z}`);
        }
    }

    // The tab key leads through the form and not into its text; among the stars the arrows lead.
    function test_keysLeadThroughTheForm() {
        const dialog = openForm("feedback");
        verify(part(dialog, "star1").activeFocus);
        for (let i = 0; i < 4; ++i)
            keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Left);
        compare(dialog.rating, 3);
        verify(part(dialog, "star3").activeFocus);
        keyClick(Qt.Key_Tab);
        const comment = findChild(part(dialog, "commentArea"), "area");
        verify(comment.activeFocus);
        keyClick(Qt.Key_Tab);
        compare(comment.text, "");
        verify(part(dialog, "cancelButton").activeFocus);
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        verify(comment.activeFocus);
    }
}
