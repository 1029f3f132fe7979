import QtQuick
import QtTest
import Meridax
import "../logic"

// From the dialogs over the network to what the support server wrote down.
WindowTestCase {
    id: testCase

    name: "Delivery"

    readonly property string story: "Größe „XL“: beim Drehen der Kamera bleibt das Bild stehen – 5 µm."

    function initTestCase() {
        testSupport.installLog();
        verify(!ViewModel.running);
        tryCompare(ViewModel, "legalDocsReady", true);
    }

    function openForm(kind: string): var {
        open();
        mouseClick(part(openSettings(), kind + "Button"));
        const dialog = item(kind === "feedback" ? "feedbackDialog" : "bugReportDialog");
        opened(dialog);
        return dialog;
    }

    function fill(dialog: var, title: string, category: string) {
        part(dialog, "titleField").forceActiveFocus();
        type(title);
        const box = part(dialog, "categoryBox");
        box.forceActiveFocus();
        for (let i = 0; i <= box.model.indexOf(category); ++i)
            keyClick(Qt.Key_Down);
        findChild(part(dialog, "descriptionArea"), "area").text = story;
    }

    function attach(dialog: var, file: url) {
        part(dialog, "screenshotPicker").load(file.toString());
    }

    function sent(dialog: var) {
        mouseClick(part(dialog, "sendButton"));
        tryCompare(part(dialog, "successLabel"), "visible", true, 15000);
        closed(dialog);
    }

    function test_bug() {
        const dialog = openForm("bug");
        console.info("[test] Nachricht von sternfreund@example.org");
        fill(dialog, "Standbild", "Hardware");
        const image = testDesk.image("Foto.jpg", "png", 5 * 1024 * 1024);
        attach(dialog, image);
        mouseClick(part(dialog, "previewButton"));
        const preview = findChild(part(dialog, "logOption"), "logPreview");
        opened(preview);
        const shown = findChild(preview.contentItem, "area").text;
        verify(shown.includes("[test] Nachricht von"));
        verify(!shown.includes("sternfreund"));
        keyClick(Qt.Key_Escape);
        closed(preview);
        sent(dialog);

        const received = testSupport.newest("report-bug");
        compare([received.title, received.description, received.category],
                ["Standbild", story, "Hardware"]);
        compare(received.screenshotMime, "image/png");
        verify(received.screenshotBase64 === testDesk.base64(image));
        compare(received.logsExcerpt, shown);
    }

    function test_screenshotTooLarge() {
        const dialog = openForm("bug");
        attach(dialog, testDesk.image("Foto.png", "png", 5 * 1024 * 1024 + 1));
        compare(part(dialog, "screenshotErrorLabel").text, "Datei zu groß (max. 5 MB).");
        compare(dialog.screenshotBase64, "");
    }

    function test_feature() {
        const dialog = openForm("feature");
        fill(dialog, "Mehr Kreise", "GUI");
        sent(dialog);
        const received = testSupport.newest("feature-request");
        compare([received.title, received.description, received.category],
                ["Mehr Kreise", story, "GUI"]);
        verify(!("logsExcerpt" in received) && !("screenshotMime" in received));
    }

    // The second one within a day is refused; what was typed stays.
    function test_feedback() {
        const dialog = openForm("feedback");
        mouseClick(part(dialog, "star4"));
        sent(dialog);
        compare(testSupport.newest("feedback").rating, 4);

        mouseClick(part(openSettings(), "feedbackButton"));
        opened(dialog);
        mouseClick(part(dialog, "star5"));
        findChild(part(dialog, "commentArea"), "area").text = "Noch besser";
        mouseClick(part(dialog, "sendButton"));
        const error = part(dialog, "errorLabel");
        tryCompare(error, "visible", true, 15000);
        compare(error.text, "Du hast in den letzten 24h schon Feedback gesendet — danke! "
                            + "Bitte etwas warten.");
        compare(dialog.rating, 5);
        compare(findChild(part(dialog, "commentArea"), "area").text, "Noch besser");
        verify(part(dialog, "sendButton").enabled);
    }
}
