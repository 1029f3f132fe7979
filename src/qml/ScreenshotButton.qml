import QtQuick
import QtQuick.Controls.Material
import Meridax

/// Saves a screenshot: the picture with its marks as they stand on the screen, or the bare frame.
AbstractButton {
    id: root

    /// The item that is grabbed for a screenshot with marks.
    required property Item target
    readonly property bool confirming: confirmation.running
    readonly property string toolTip: {
        if (ViewModel.screenshotPath === "")
            return qsTr("Screenshot — Zielordner erst in den Einstellungen wählen");
        const text = ViewModel.screenshotIncludeOverlays
                   ? qsTr("Screenshot mit Markierungen speichern\n%1")
                   : qsTr("Screenshot ohne Markierungen speichern\n%1");
        return text.arg(ViewModel.screenshotPath);
    }

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
            const saved = result.saveToFile(path);
            if (saved)
                ViewModel.noteScreenshotSaved(path);
            finish(saved);
        });
        if (!started)
            reportFailure();
    }

    implicitWidth: 32
    implicitHeight: 32
    focusPolicy: Qt.StrongFocus
    opacity: confirming ? 1.0 : hovered || visualFocus ? 0.95 : 0.55
    text: qsTr("Screenshot")
    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()
    onClicked: ViewModel.screenshotIncludeOverlays ? grabTarget()
                                                   : finish(ViewModel.captureScreenshot() !== "")

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: toolTip

    background: Rectangle {
        radius: 6
        color: Qt.rgba(0, 0, 0, 0.45)

        FocusFrame {
            visible: root.visualFocus
        }
    }
    contentItem: Item {
        SvgItem {
            objectName: "icon"
            anchors.centerIn: parent
            width: 22
            height: 22
            source: root.confirming ? "qrc:/resources/icon_check.svg"
                                    : "qrc:/resources/icon_camera.svg"
        }
    }

    Behavior on opacity {
        NumberAnimation { duration: 150 }
    }

    HelpTip {
        visible: (root.hovered || root.visualFocus) && ViewModel.showTooltips
        delay: 400
        text: root.toolTip
    }

    Timer {
        id: confirmation

        interval: 1200
    }
}
