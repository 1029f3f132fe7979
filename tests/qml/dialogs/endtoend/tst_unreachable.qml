import QtQuick
import QtTest
import Meridax
import "../logic"

// A server that is not there: nothing is said of it until the user sends something.
WindowTestCase {
    id: testCase

    name: "Unreachable"

    function initTestCase() {
        testDesk.removeData("legal-docs.json");
        testSupport.configure("http://127.0.0.1:1");
        verify(!ViewModel.running);
        tryVerify(() => ViewModel.legalDocsError !== "");
    }

    function test_feedback() {
        open();
        verify(!item("updateBanner").visible);
        mouseClick(part(openSettings(), "feedbackButton"));
        const dialog = item("feedbackDialog");
        opened(dialog);
        mouseClick(part(dialog, "star3"));
        mouseClick(part(dialog, "sendButton"));
        const error = part(dialog, "errorLabel");
        tryCompare(error, "visible", true, 15000);
        compare(error.text, "Server nicht erreichbar. Bitte später erneut versuchen.");
        compare(dialog.rating, 3);
    }
}
