import QtQuick
import QtQuick.Layouts
import Meridax

/// The panel at the left edge of the window: camera and calibration.
SidePanel {
    id: root

    property alias currentTab: tabBar.currentIndex

    function switchToCamera() {
        expanded = true;
        currentTab = 0;
    }

    /// Gives the keyboard focus to the tab that is shown: what had it may lie on the other page.
    function focusTab(reason: int) {
        tabBar.currentItem.forceActiveFocus(reason);
    }

    edge: Qt.LeftEdge
    expandedAtStart: ViewModel.cameraPanelExpandedAtStart
    handleName: currentTab === 0 ? cameraTab.text : calibrationTab.text

    PanelTabBar {
        id: tabBar
        Layout.fillWidth: true

        PanelTabButton {
            id: cameraTab
            objectName: "tabCamera"
            text: qsTr("Kamera")
        }

        PanelTabButton {
            id: calibrationTab
            objectName: "tabCalibration"
            text: qsTr("Kalibrierung")
        }
    }

    PanelFlickable {
        objectName: "cameraPage"
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.currentTab === 0
        contentHeight: cameraPane.implicitHeight

        CameraSettingsPane {
            id: cameraPane
            width: parent.width
        }
    }

    PanelFlickable {
        objectName: "calibrationPage"
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.currentTab === 1
        contentHeight: calibrationPane.implicitHeight

        CalibrationPane {
            id: calibrationPane
            width: parent.width
        }
    }
}
