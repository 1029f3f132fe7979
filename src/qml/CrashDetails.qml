import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The stored report of a crash, folded at first.
Rectangle {
    id: root

    property bool expanded: false

    /// Gives the keyboard focus to what unfolds the report.
    function takeFocus() {
        toggle.forceActiveFocus();
    }

    implicitHeight: column.implicitHeight + 8
    radius: 4
    color: "transparent"
    border.color: Theme.dividerStrong

    ColumnLayout {
        id: column

        anchors {
            left: parent.left
            right: parent.right
            verticalCenter: parent.verticalCenter
            margins: 4
        }
        spacing: 4

        RowLayout {
            spacing: 4
            Layout.fillWidth: true

            HeaderButton {
                id: toggle

                objectName: "detailsToggle"
                text: root.expanded ? "▼" : "▶"
                implicitWidth: 32
                implicitHeight: 32
                Accessible.name: detailsLabel.text
                Accessible.description: root.expanded ? qsTr("ausgeklappt") : qsTr("eingeklappt")
                Accessible.checkable: true
                Accessible.checked: root.expanded
                onClicked: root.expanded = !root.expanded
            }

            Label {
                id: detailsLabel

                objectName: "detailsLabel"
                text: qsTr("Crash-Details anzeigen")
                font.pixelSize: 12
                color: Theme.text
                Accessible.ignored: true
                Layout.fillWidth: true

                TapHandler {
                    onTapped: root.expanded = !root.expanded
                }
            }
        }

        ReadOnlyText {
            objectName: "crashReport"
            visible: root.expanded
            name: detailsLabel.text
            // Read from the file only when it is looked at.
            text: root.expanded ? ViewModel.lastCrashReport : ""
            wrapMode: TextEdit.NoWrap
            textPadding: 8
            font {
                family: Theme.monoFamily
                pixelSize: 10
            }
            Layout.fillWidth: true
            Layout.preferredHeight: 180
        }
    }
}
