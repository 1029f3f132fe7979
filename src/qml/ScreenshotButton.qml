import QtQuick
import Meridax

/// Saves a screenshot: the picture with its marks as they stand on the screen, or the bare frame.
OverlayButton {
    id: root

    /// The item that is grabbed for a screenshot with marks.
    required property Item target
    readonly property bool confirming: confirmation.running

    signal failed(reason: string)

    function reportFailure() {
        failed(ViewModel.screenshotPath === ""
               ? qsTr("Screenshot: zuerst in den Einstellungen einen Ordner wählen")
               : qsTr("Screenshot fehlgeschlagen — siehe Log"));
    }

    function finish(saved: bool) {
        if (saved) {
            confirmation.restart();
            Accessible.announce(qsTr("Screenshot gespeichert"));
        } else {
            reportFailure();
        }
    }

    function grabTarget() {
        // The path is fixed before the grab: a second click may come before the first is saved.
        const path = ViewModel.nextScreenshotFilePath();
        if (path === "") {
            reportFailure();
            return;
        }
        const started = target.grabToImage(result => {
            const saved = ViewModel.saveScreenshot(result.image, path);
            if (saved)
                ViewModel.noteScreenshotSaved(path);
            finish(saved);
        });
        if (!started)
            reportFailure();
    }

    implicitWidth: 32
    implicitHeight: 32
    opacity: confirming ? 1.0 : hovered || visualFocus ? 0.95 : 0.55
    ground: Qt.rgba(0, 0, 0, 0.45)
    text: qsTr("Screenshot")
    iconSource: confirming ? "qrc:/resources/icon_check.svg" : "qrc:/resources/icon_camera.svg"
    iconSize: 22
    toolTip: {
        if (ViewModel.screenshotPath === "")
            return qsTr("Screenshot — Zielordner erst in den Einstellungen wählen");
        const text = ViewModel.screenshotIncludeOverlays
                   ? qsTr("Screenshot mit Markierungen speichern\n%1")
                   : qsTr("Screenshot ohne Markierungen speichern\n%1");
        return text.arg(ViewModel.screenshotPath);
    }
    onClicked: ViewModel.screenshotIncludeOverlays ? grabTarget()
                                                   : finish(ViewModel.captureScreenshot() !== "")

    Timer {
        id: confirmation

        interval: 1200
    }
}
