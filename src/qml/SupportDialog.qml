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
    /// Something was typed or chosen that a stray click must not throw away.
    required property bool touched
    /// The form may be changed.
    readonly property bool editable: !_pending && !_succeeded

    // The state of the sending is one for all: only that of what was sent from here counts here.
    property bool _sent: false
    readonly property bool _pending: _sent && ViewModel.bugReportPending
    readonly property bool _succeeded: _sent && ViewModel.bugReportSuccess
    default property alias form: column.data

    /// The form is to be sent.
    signal submitted()

    height: Math.min(implicitHeight, (parent?.height ?? 0) - 32)
    closePolicy: touched && !_succeeded ? Popup.CloseOnEscape
                                        : Popup.CloseOnEscape | Popup.CloseOnPressOutside

    on_SucceededChanged: {
        if (_succeeded)
            closing.start();
    }
    onAboutToShow: {
        closing.stop();
        _sent = false;
        view.contentY = 0;
        ViewModel.clearBugReportState();
    }
    onClosed: {
        closing.stop();
        ViewModel.clearBugReportState();
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
            succeeded: root._succeeded
            successText: root.successText
            error: root._sent ? ViewModel.bugReportError : ""
            Layout.leftMargin: 20
            Layout.rightMargin: 20
            Layout.topMargin: 8
            Layout.bottomMargin: 4
        }

        SubmissionFooter {
            accent: root.accent
            pending: root._pending
            succeeded: root._succeeded
            sendEnabled: root.complete && !ViewModel.bugReportPending
            Layout.fillWidth: true
            onCancelled: root.close()
            onSent: {
                root._sent = true;
                root.submitted();
            }
        }
    }
}
