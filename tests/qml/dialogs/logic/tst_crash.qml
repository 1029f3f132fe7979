import QtQuick
import QtTest
import Meridax

// The offer after a crash.
WindowTestCase {
    id: testCase

    name: "CrashRecovery"

    readonly property string bugPath: "/api/license/report-bug"
    readonly property string feedbackPath: "/api/license/feedback"
    readonly property string report: "=== Meridax Crash Report ===\r\n"
        + "Timestamp:     2026-08-20T22:34:18.123Z\r\n"
        + "ExceptionCode: 0xC0000005 (ACCESS_VIOLATION)\r\n"
        + "Module:        meridax+0x1234\r\n\r\n--- Last 50 log lines ---\r\nÄußerst kaputt\r\n"

    function initTestCase() {
        verify(!ViewModel.running);
        tryCompare(ViewModel, "legalDocsReady", true);
    }

    function init() {
        failOnWarning(/.?/);
        testDesk.writeData("crash.txt", report);
        ViewModel.crashStateChanged();
    }

    function cleanup() {
        testServer.holding = false;
        tryCompare(ViewModel, "bugReportUnderWay", false);
        tryCompare(ViewModel, "bugReportPending", false);
        ViewModel.clearBugReportState();
        ViewModel.dismissCrashReport();
        testServer.clear();
        window = null;
    }

    function openOffer(): var {
        open();
        const dialog = item("crashRecoveryDialog");
        opened(dialog);
        return dialog;
    }

    function test_onlyADecisionCloses() {
        const dialog = openOffer();
        keyClick(Qt.Key_Escape);
        pressOutside();
        verify(dialog.opened);
        const text = part(dialog, "crashReport");
        verify(!text.visible);
        mouseClick(part(dialog, "detailsLabel"));
        verify(text.visible);
        compare(text.text, ViewModel.lastCrashReport);
        verify(text.text.includes("Äußerst kaputt"));
        mouseClick(part(dialog, "detailsToggle"));
        verify(!text.visible);
        mouseClick(part(dialog, "discardCrashButton"));
        closed(dialog);
        verify(!testDesk.hasData("crash.txt"));
        compare(testServer.received(bugPath), []);
    }

    function test_sending_data() {
        return [
            { tag: "success", body: { success: true, bugId: "C1" } },
            { tag: "failure", body: { success: false } }
        ];
    }
    function test_sending(data) {
        testServer.answer(bugPath, 200, data.body);
        const dialog = openOffer();
        testServer.holding = true;
        mouseClick(part(dialog, "sendCrashButton"));
        closed(dialog);
        tryVerify(() => testServer.received(bugPath).length === 1);
        testServer.holding = false;
        tryCompare(ViewModel, "bugReportPending", false);
        compare(testDesk.hasData("crash.txt"), !data.body.success);
        if (!data.body.success)
            opened(dialog);
        else
            verify(!dialog.visible);
        const sent = testServer.received(bugPath)[0];
        compare(sent.title, "[Crash] ACCESS_VIOLATION in meridax+0x1234");
        verify(sent.description.startsWith("=== Crash-Report ===\n=== Meridax Crash Report ==="));
    }

    function test_withDescription() {
        testServer.answer(bugPath, 200, { success: true, bugId: "C2" });
        const dialog = openOffer();
        const form = item("bugReportDialog");
        for (const last of [false, true]) {
            mouseClick(part(dialog, "describeCrashButton"));
            opened(form);
            verify(!dialog.visible);
            compare(part(form, "titleField").text, "[Crash] ACCESS_VIOLATION in meridax+0x1234");
            compare(form.selectedCategory, "Crash");
            compare(part(form, "categoryBox").displayText, "Crash");
            if (last)
                break;
            mouseClick(part(form, "cancelButton"));
            closed(form);
            opened(dialog);
        }
        mouseClick(part(form, "sendButton"));
        tryCompare(part(form, "successLabel"), "visible", true);
        closed(form);
        verify(!testDesk.hasData("crash.txt"));
        wait(0);
        verify(!dialog.visible);
    }

    // A form opens while the report is on its way: neither takes the other's reply for its own.
    function test_formWhileTheReportIsUnderWay_data() {
        return [
            { tag: "sent, first", crash: true, crashFirst: true },
            { tag: "sent, last", crash: true, crashFirst: false },
            { tag: "failed, first", crash: false, crashFirst: true },
            { tag: "failed, last", crash: false, crashFirst: false }
        ];
    }
    function test_formWhileTheReportIsUnderWay(data) {
        const dialog = openOffer();
        testServer.holding = true;
        mouseClick(part(dialog, "sendCrashButton"));
        closed(dialog);
        tryVerify(() => testServer.received(bugPath).length === 1);
        const answerCrash = () => {
            testServer.release(bugPath, 0, { success: data.crash });
            tryCompare(ViewModel, "bugReportUnderWay", false);
            compare(testDesk.hasData("crash.txt"), !data.crash);
        };

        mouseClick(part(openSettings(), "feedbackButton"));
        const form = item("feedbackDialog");
        opened(form);
        verify(!dialog.visible);
        const comment = findChild(part(form, "commentArea"), "area");
        comment.text = "Gut";
        mouseClick(part(form, "star4"));
        if (data.crashFirst) {
            answerCrash();
            verify(!dialog.visible && part(form, "sendButton").enabled);
        }
        mouseClick(part(form, "sendButton"));
        tryVerify(() => testServer.received(feedbackPath).length === 1);
        if (!data.crashFirst) {
            answerCrash();
            verify(part(form, "busyIndicator").visible);
        }
        verify(form.opened && !part(form, "successLabel").visible);
        verify(!part(form, "errorLabel").visible && !dialog.visible);
        compare(comment.text, "Gut");
        testServer.release(feedbackPath, 0, { success: true });
        tryCompare(part(form, "successLabel"), "visible", true);
        closed(form);
        if (data.crash)
            verify(!dialog.visible);
        else
            opened(dialog);
        compare(testServer.received(bugPath).length, 1);
    }

    // The form of the report was closed before the answer: the same must not be offered again.
    function test_closedWhileSending() {
        const dialog = openOffer();
        mouseClick(part(dialog, "describeCrashButton"));
        const form = item("bugReportDialog");
        opened(form);
        testServer.holding = true;
        mouseClick(part(form, "sendButton"));
        tryVerify(() => testServer.received(bugPath).length === 1);
        keyClick(Qt.Key_Escape);
        closed(form);
        verify(!dialog.visible && testDesk.hasData("crash.txt"));
        testServer.release(bugPath, 0, { success: true, bugId: "C3" });
        tryCompare(ViewModel, "bugReportUnderWay", false);
        verify(!dialog.visible && !testDesk.hasData("crash.txt"));
    }

    function test_emptyReport() {
        testDesk.writeData("crash.txt", "");
        const dialog = openOffer();
        verify(part(dialog, "crashUnreadableNote").visible);
        verify(!part(dialog, "sendCrashButton").enabled);
        mouseClick(part(dialog, "describeCrashButton"));
        const form = item("bugReportDialog");
        opened(form);
        compare(part(form, "titleField").text, "[Crash]");
        mouseClick(part(form, "cancelButton"));
        closed(form);
        mouseClick(part(dialog, "discardCrashButton"));
        closed(dialog);
    }

    // Not cut here: the user decides what goes.
    function test_tooLongForTheForm() {
        testDesk.writeData("crash.txt", report + "x".repeat(9000));
        const dialog = openOffer();
        mouseClick(part(dialog, "describeCrashButton"));
        const form = item("bugReportDialog");
        opened(form);
        verify(!part(form, "sendButton").enabled);
        const area = findChild(part(form, "descriptionArea"), "area");
        verify(area.length > 9000);
        area.remove(8000, area.length);
        verify(part(form, "sendButton").enabled);
    }

    function test_prefillWithoutACrash() {
        ViewModel.dismissCrashReport();
        open();
        const form = item("bugReportDialog");
        form.open();
        form.prefillFromCrash();
        compare(part(form, "titleField").text, "");
        compare(form.selectedCategory, "");
        verify(!item("crashRecoveryDialog").visible);
    }
}
