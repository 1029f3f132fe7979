import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The lines of the log that would go with a report, as they stand when it opens.
CenteredDialog {
    id: root

    width: Math.min(640, (parent?.width ?? 0) - 32)
    height: Math.min(480, (parent?.height ?? 0) - 32)
    // Over the dialog it belongs to.
    z: 23
    title: qsTr("Log-Vorschau (so geht es an den Server)")
    standardButtons: Dialog.Close

    onAboutToShow: {
        lines.text = ViewModel.getLogTail(200);
        lines.scrollToEnd();
    }
    // The library takes its own texts from its own catalogue, which need not be there.
    Component.onCompleted: standardButton(Dialog.Close).text = Qt.binding(() => qsTr("Schließen"))

    header: DialogBand {
        DialogTitle {
            title: root.title
            titleColor: Theme.text
        }
    }
    footer: DialogButtonBox {
        // The style's would lie over the border.
        background: null
        delegate: DialogButton { }
    }
    contentItem: ReadOnlyText {
        id: lines

        objectName: "logLines"
        name: root.title
        font {
            family: Theme.monoFamily
            pixelSize: 11
        }
    }
}
