import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The one window of the program.
ApplicationWindow {
    id: root

    readonly property int savedWidth: ViewModel.savedWindowWidth > 0 ? ViewModel.savedWindowWidth
                                                                     : 1600
    readonly property int savedHeight: ViewModel.savedWindowHeight > 0 ? ViewModel.savedWindowHeight
                                                                       : 950
    // Last known geometry while not maximized.
    property int _normalW: 0
    property int _normalH: 0
    property int _normalX: 0
    property int _normalY: 0
    // Where the window was to be at start.
    property point _startPosition
    // It opened maximized and was nowhere else yet.
    property bool _neverPlaced: false
    // On Wayland a window neither knows nor chooses where it is.
    readonly property bool _positionKnown: !Qt.platform.pluginName.startsWith("wayland")

    /// A frame has arrived since the camera started.
    property bool hasFirstFrame: false
    /// Below it the picture would shrink and the ground show on all sides.
    readonly property real zoomMin: 1.0

    /// `px` moved so that about 120 pixels of the window stay on the screen.
    function safeX(px: int): int {
        return Math.round(Math.max(Screen.virtualX - width + 120,
                                   Math.min(Screen.virtualX + Screen.width - 120, px)));
    }

    /// `py` moved so that the title bar stays on the screen.
    function safeY(py: int): int {
        return Math.round(Math.max(Screen.virtualY,
                                   Math.min(Screen.virtualY + Screen.height - 80, py)));
    }

    function noteNormalGeometry(px: int, py: int, w: int, h: int) {
        _normalX = px;
        _normalY = py;
        _normalW = w;
        _normalH = h;
    }

    /// Takes the start position. Only in the windowed state: a maximized window would move when its
    /// position is written, and takes what it needs for restoring down from the noted geometry.
    function placeOnStart() {
        const placed = ViewModel.savedWindowWidth > 0;
        const targetX = placed ? safeX(ViewModel.savedWindowX)
                               : Math.round(Screen.virtualX + (Screen.width - savedWidth) / 2);
        const targetY = placed ? safeY(ViewModel.savedWindowY)
                               : Math.round(Screen.virtualY + (Screen.height - savedHeight) / 2);
        _startPosition = Qt.point(targetX, targetY);
        if (visibility === Window.Windowed) {
            x = targetX;
            y = targetY;
            noteNormalGeometry(x, y, width, height);
        } else {
            noteNormalGeometry(targetX, targetY, savedWidth, savedHeight);
            _neverPlaced = true;
        }
    }

    /// Takes the start position once a window that opened maximized is restored down: the platform
    /// knows none to restore. Not before it has its normal size, which a write would undo.
    function placeOnRestore() {
        if (!_neverPlaced || visibility !== Window.Windowed || width !== savedWidth
                || height !== savedHeight)
            return;
        _neverPlaced = false;
        x = _startPosition.x;
        y = _startPosition.y;
    }

    function saveGeometry() {
        const maximized = visibility === Window.Maximized || visibility === Window.FullScreen;
        let [px, py, w, h] = maximized ? [_normalX, _normalY, _normalW, _normalH]
                                       : [x, y, width, height];
        if (w < 400 || h < 400) {
            w = savedWidth;
            h = savedHeight;
        }
        if (!_positionKnown)
            [px, py] = [_startPosition.x, _startPosition.y];
        ViewModel.saveWindowGeometry(px, py, w, h, maximized);
    }

    function report(kind: string) {
        bugReportDialog.reportKind = kind;
        bugReportDialog.open();
    }

    function showReleaseNotes(installed: bool) {
        whatsNewDialog.showInstalled = installed;
        whatsNewDialog.open();
    }

    // `visible` is deliberately not set: it shares its state with `visibility` and would undo
    // Window.Maximized. The saved values are constant for QML, so these bindings are evaluated once.
    visibility: ViewModel.savedWindowMaximized ? Window.Maximized : Window.Windowed
    width: ViewModel.savedWindowWidth > 0 ? ViewModel.savedWindowWidth : 1600
    height: ViewModel.savedWindowHeight > 0 ? ViewModel.savedWindowHeight : 950
    minimumWidth: 800
    minimumHeight: 600
    objectName: "root"
    title: "Meridax"
    color: ViewModel.darkMode ? "#333333" : "#E8E8E8"
    Material.theme: ViewModel.darkMode ? Material.Dark : Material.Light
    Material.accent: "#4A9ECA"

    onWidthChanged: {
        normalGeometryCommit.restart();
        placeOnRestore();
    }
    onHeightChanged: {
        normalGeometryCommit.restart();
        placeOnRestore();
    }
    onXChanged: normalGeometryCommit.restart()
    onYChanged: normalGeometryCommit.restart()
    onVisibilityChanged: {
        normalGeometryCommit.restart();
        placeOnRestore();
    }
    onClosing: saveGeometry()
    Component.onCompleted: placeOnStart()

    // On maximizing, the platform changes the size first and the state afterwards, so the change
    // handlers still see a window that is not maximized.
    Timer {
        id: normalGeometryCommit

        objectName: "normalGeometryCommit"
        interval: 300
        onTriggered: {
            if (root.visibility === Window.Windowed)
                root.noteNormalGeometry(root.x, root.y, root.width, root.height);
        }
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
        // bring it back.
        suppressed: bugReportDialog.visible
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
            ViewModel.acceptPendingCenter();
            if (centerDialog.updateProfile && ViewModel.selectedCameraName !== "") {
                // Last, so that the profile carries the new centre.
                ViewModel.profileRestoreOnConnect = true;
                ViewModel.profileRestoreCalibration = true;
                ViewModel.saveCameraProfile();
            }
            const reason = centerDialog.standardButton(Dialog.Yes).focusReason;
            leftPanel.switchToCamera();
            leftPanel.focusTab(reason);
        }
    }

    ScreenshotFolderDialog {
        id: screenshotFolderDialog

        objectName: "screenshotFolderDialog"
    }
}
