import QtQuick
import QtQuick.Layouts
import Meridax

/// The panel at the right edge of the window: what is drawn over the picture.
SidePanel {
    edge: Qt.RightEdge
    expandedAtStart: ViewModel.overlayPanelExpandedAtStart
    handleName: overlayTab.text
    contentWidth: 340

    PanelTabBar {
        Layout.fillWidth: true

        PanelTabButton {
            id: overlayTab
            text: qsTr("Einblendungen")
        }
    }

    PanelFlickable {
        objectName: "overlayPage"
        Layout.fillWidth: true
        Layout.fillHeight: true
        contentHeight: overlayPane.implicitHeight

        OverlaySettingsPane {
            id: overlayPane
            width: parent.width
        }
    }
}
