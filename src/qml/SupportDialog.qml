import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A form that goes to the support service. It shows how the sending stands, keeps what was typed
/// when it fails, and closes by itself when it succeeded.
CenteredDialog {
    id: root

    required property string subtitle
    required property color accent
    required property string successText
    /// Everything that has to be filled in is.
    required property bool complete
    /// Milliseconds from success until the dialog closes by itself.
    required property int closeDelay
    /// The form may be changed.
    readonly property bool editable: !ViewModel.bugReportPending && !ViewModel.bugReportSuccess
    default property alias form: column.data

    /// The form is to be sent.
    signal submitted()

    height: Math.min(implicitHeight, (parent?.height ?? 0) - 32)
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    onAboutToShow: {
        closing.stop();
        view.contentY = 0;
        ViewModel.clearBugReportState();
    }
    onClosed: {
        closing.stop();
        ViewModel.clearBugReportState();
    }

    Connections {
        target: ViewModel

        function onBugReportStateChanged() {
            if (root.visible && ViewModel.bugReportSuccess)
                closing.start();
        }
    }

    Timer {
        id: closing

        interval: root.closeDelay
        onTriggered: root.close()
    }

    header: DialogBand {
        DialogTitle {
            title: root.title
            titleColor: root.accent
            subtitle: root.subtitle
        }
    }
    contentItem: PanelFlickable {
        id: view

        objectName: "formView"
        implicitHeight: contentHeight
        contentHeight: column.implicitHeight + 40
        bottomMargin: 0
        scrollBarPolicy: contentHeight > height + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff

        ColumnLayout {
            id: column

            x: 20
            y: 20
            width: view.width - 40
            spacing: 12
        }
    }
    // What came of the sending stands below the form and not in it: there it could be scrolled away.
    footer: ColumnLayout {
        spacing: 0

        SubmissionStatus {
            successText: root.successText
            Layout.leftMargin: 20
            Layout.rightMargin: 20
            Layout.topMargin: 8
            Layout.bottomMargin: 4
        }

        SubmissionFooter {
            accent: root.accent
            pending: ViewModel.bugReportPending
            succeeded: ViewModel.bugReportSuccess
            sendEnabled: root.complete && !ViewModel.bugReportPending
            Layout.fillWidth: true
            onCancelled: root.close()
            onSent: root.submitted()
        }
    }
}
