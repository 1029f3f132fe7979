import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The drawer of all settings that are not values of the camera or the overlay. It slides in from
/// the top edge; the live picture stays visible behind it. It holds no state of its own.
Drawer {
    id: root

    readonly property int sectionMargin: 20
    /// On very wide screens a full width serves nothing.
    readonly property int maxContentWidth: 1400

    signal openBugReportDialog()
    signal openFeatureRequestDialog()
    signal openFeedbackDialog()
    signal openAboutDialog()
    signal openScreenshotPathDialog()

    edge: Qt.TopEdge
    width: parent?.width ?? 0
    // The padding is part of the drawer's height: without it the view would always be a little
    // smaller than its content.
    height: Math.min((parent?.height ?? 0) * 0.9,
                     content.implicitHeight + topPadding + bottomPadding)
    focus: true
    // Not to be pulled from the edge of the window, where the top bar is.
    dragMargin: 0
    Material.background: Theme.settingsPanelBg
    Overlay.modal: ModalDim {
        color: Qt.rgba(0, 0, 0, 0.25)
    }

    // The drawer has no title, and only the item that Qt makes for it can carry a name.
    Binding {
        target: content.parent
        property: "Accessible.name"
        value: header.title
    }

    contentItem: Item {
        id: content

        implicitHeight: header.implicitHeight + column.implicitHeight

        SettingsHeader {
            id: header

            objectName: "settingsHeader"
            anchors {
                top: parent.top
                left: parent.left
                right: parent.right
            }
            contentWidth: column.width
            contentMargin: root.sectionMargin
            onAboutRequested: root.openAboutDialog()
            onCloseRequested: root.close()
        }

        PanelFlickable {
            id: view

            objectName: "settingsView"
            anchors {
                top: header.bottom
                left: parent.left
                right: parent.right
                bottom: parent.bottom
            }
            contentHeight: column.implicitHeight
            bottomMargin: 0
            // One pixel of tolerance for the rounding of the layout.
            scrollBarPolicy: contentHeight > height + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff

            // Its height comes from its children. Bound to the view it would form a loop: the
            // drawer's height follows from this one's.
            ColumnLayout {
                id: column

                x: (view.width - width) / 2
                width: Math.min(view.width, root.maxContentWidth)
                spacing: 0

                RowLayout {
                    spacing: root.sectionMargin
                    Layout.margins: root.sectionMargin
                    Layout.topMargin: 10
                    Layout.bottomMargin: 10
                    Layout.fillWidth: true

                    ProfileSettings {}

                    SettingsDivider {}

                    AppearanceSettings {}

                    SettingsDivider {}

                    ScreenshotSettings {
                        onFolderRequested: root.openScreenshotPathDialog()
                    }
                }

                Rectangle {
                    implicitHeight: 1
                    color: Theme.divider
                    Layout.fillWidth: true
                    Layout.leftMargin: root.sectionMargin
                    Layout.rightMargin: root.sectionMargin
                }

                SupportSettings {
                    Layout.margins: root.sectionMargin
                    Layout.topMargin: 12
                    Layout.bottomMargin: 12
                    Layout.fillWidth: true
                    onBugRequested: {
                        root.close();
                        root.openBugReportDialog();
                    }
                    onFeatureRequested: {
                        root.close();
                        root.openFeatureRequestDialog();
                    }
                    onFeedbackRequested: {
                        root.close();
                        root.openFeedbackDialog();
                    }
                }
            }
        }
    }
}
