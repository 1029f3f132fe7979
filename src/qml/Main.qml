import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The one window of the program.
ApplicationWindow {
    id: root

    // Constant, as the saved values are for QML. So the bindings of the size are evaluated once.
    readonly property int savedWidth: ViewModel.savedWindowWidth > 0 ? ViewModel.savedWindowWidth
                                                                     : 1600
    readonly property int savedHeight: ViewModel.savedWindowHeight > 0 ? ViewModel.savedWindowHeight
                                                                       : 950

    /// A frame has arrived since the camera started.
    property bool hasFirstFrame: false
    /// Below it the picture would shrink and the ground show on all sides.
    readonly property real zoomMin: 1.0

    function report(kind: string) {
        bugReportDialog.reportKind = kind;
        bugReportDialog.open();
    }

    function showReleaseNotes(installed: bool) {
        whatsNewDialog.showInstalled = installed;
        whatsNewDialog.open();
    }

    // `visible` is deliberately not set: it shares its state with `visibility` and would undo
    // Window.Maximized.
    visibility: ViewModel.savedWindowMaximized ? Window.Maximized : Window.Windowed
    width: savedWidth
    height: savedHeight
    minimumWidth: 800
    minimumHeight: 600
    objectName: "root"
    title: "Meridax"
    color: ViewModel.darkMode ? "#333333" : "#E8E8E8"
    Material.theme: ViewModel.darkMode ? Material.Dark : Material.Light
    Material.accent: "#4A9ECA"

    onClosing: placement.save()
    Component.onCompleted: placement.takeStart()

    WindowPlacement {
        id: placement

        objectName: "placement"
        window: root
    }

    Binding {
        target: Theme
        property: "dark"
        value: ViewModel.darkMode
    }

    Connections {
        target: ViewModel.controller

        // A frame still in flight when the camera stops would put the last picture back.
        function onFrameReady(image) {
            if (!ViewModel.running)
                return;
            captureArea.videoItem.setFrame(image);
            root.hasFirstFrame = true;
        }
    }

    Connections {
        target: ViewModel

        function onRunningChanged() {
            if (ViewModel.running)
                return;
            captureArea.videoItem.clearFrame();
            root.hasFirstFrame = false;
        }

        function onPendingCenterLost() {
            screenshotToast.show(qsTr("Messung verworfen: andere Kamera oder Auflösung gewählt"));
        }
    }

    WindowBackground {
        anchors.fill: parent
    }

    LiveView {
        id: captureArea

        objectName: "captureArea"
        anchors.fill: parent
        hasFirstFrame: root.hasFirstFrame
        zoomMin: root.zoomMin
    }

    Watermark {
        objectName: "watermark"
        anchors.centerIn: parent
        width: Math.min(root.width, root.height) * 0.28
        height: width
        visible: !ViewModel.running
    }

    UpdateBanner {
        id: updateBanner

        objectName: "updateBanner"
        z: 5
        anchors {
            top: parent.top
            left: parent.left
            right: parent.right
        }
        onOpenWhatsNew: root.showReleaseNotes(false)
    }

    WhatsNewDialog {
        id: whatsNewDialog

        objectName: "whatsNewDialog"
        z: 30
    }

    TopBar {
        id: topBar

        objectName: "topBar"
        anchors {
            top: updateBanner.bottom
            left: parent.left
            right: parent.right
        }
        onSettingsRequested: settingsPanel.open()
    }

    SettingsPanel {
        id: settingsPanel

        objectName: "settingsPanel"
        onOpenBugReportDialog: root.report("bug")
        onOpenFeatureRequestDialog: root.report("feature")
        onOpenFeedbackDialog: feedbackDialog.open()
        onOpenAboutDialog: aboutDialog.open()
        onOpenScreenshotPathDialog: screenshotFolderDialog.open()
    }

    BugReportDialog {
        id: bugReportDialog

        objectName: "bugReportDialog"
        z: 22
    }

    FeedbackDialog {
        id: feedbackDialog

        objectName: "feedbackDialog"
        z: 22
    }

    AboutDialog {
        id: aboutDialog

        objectName: "aboutDialog"
        z: 23
        onOpenWhatsNew: root.showReleaseNotes(true)
    }

    CrashRecoveryDialog {
        objectName: "crashRecoveryDialog"
        z: 30
        // Otherwise it would lie over the dialog it hands over to, and a cancel there would not
        // bring it back; or over a form when sending the report has failed.
        suppressed: bugReportDialog.visible || feedbackDialog.visible
        onOpenBugReportWithCrashDetails: {
            root.report("bug");
            bugReportDialog.prefillFromCrash();
        }
    }

    StatusBar {
        id: footerBar

        objectName: "footerBar"
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
    }

    FocusPresetOverlay {
        objectName: "focusPresetOverlay"
        z: 6
        visible: ViewModel.running
        anchors {
            top: topBar.bottom
            topMargin: 12
            left: leftPanel.right
            leftMargin: 12
        }
    }

    ZoomControl {
        id: zoomControl

        objectName: "zoomControl"
        z: 6
        visible: ViewModel.running && !ViewModel.calibrationActive && ViewModel.showZoomOverlay
        anchors {
            horizontalCenter: parent.horizontalCenter
            bottom: footerBar.top
            bottomMargin: 12
        }
        zoomMin: root.zoomMin
    }

    ScreenshotButton {
        objectName: "screenshotButton"
        z: 6
        visible: ViewModel.running
        anchors {
            top: topBar.bottom
            topMargin: 12
            right: rightPanel.left
            rightMargin: 12
        }
        target: captureArea
        onFailed: reason => screenshotToast.show(reason)
    }

    FadingToast {
        id: screenshotToast

        objectName: "screenshotToast"
        z: 7
        anchors {
            top: topBar.bottom
            topMargin: 16
            horizontalCenter: parent.horizontalCenter
        }
        width: Math.min(420, implicitWidth)
        height: 36
        horizontalPadding: 16
        color: "#E53935"
        textColor: "#FFFFFF"
        hold: 2400
        fadeOut: 300
    }

    TypingEnd { }

    FocusKeeper { }

    LeftSettingsPanel {
        id: leftPanel

        objectName: "leftPanel"
        anchors {
            left: parent.left
            top: topBar.bottom
            topMargin: 16
            bottom: footerBar.top
            bottomMargin: 16
        }
    }

    RightOverlayPanel {
        id: rightPanel

        objectName: "rightPanel"
        anchors {
            right: parent.right
            top: topBar.bottom
            topMargin: 16
            bottom: footerBar.top
            bottomMargin: 16
        }
    }

    CenterDialog {
        id: centerDialog

        objectName: "centerDialog"
        onAccepted: {
            ViewModel.acceptPendingCenter(centerDialog.updateProfile);
            const reason = centerDialog.standardButton(Dialog.Yes).focusReason;
            leftPanel.switchToCamera();
            leftPanel.focusTab(reason);
        }
    }

    ScreenshotFolderDialog {
        id: screenshotFolderDialog
    }
}
