import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The panel at the left edge of the window: camera and calibration.
Item {
    id: root

    // Set once and not bound: the setting tells how the window opens, and folding is not stored.
    property bool expanded: true
    property alias currentTab: tabBar.currentIndex
    property int contentWidth: 400
    property int handleWidth: 28

    property bool _animated: false

    function switchToCamera() {
        expanded = true;
        currentTab = 0;
    }

    width: expanded ? contentWidth + handleWidth : handleWidth
    clip: true

    Component.onCompleted: {
        expanded = ViewModel.cameraPanelExpandedAtStart;
        _animated = true;
    }

    Behavior on width {
        enabled: root._animated
        NumberAnimation { duration: 180; easing.type: Easing.InOutCubic }
    }

    // No wheel event passes to the picture underneath, where it would zoom. The pages inside have
    // priority and scroll.
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Vertical
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Horizontal
    }

    PanelHandle {
        id: handle
        objectName: "panelHandle"
        anchors.right: parent.right
        anchors.rightMargin: (root.handleWidth - width) / 2
        anchors.verticalCenter: parent.verticalCenter
        expanded: root.expanded
        symbol: root.expanded ? "‹" : "›"
        name: root.currentTab === 0 ? cameraTab.text : calibrationTab.text
        onClicked: root.expanded = !root.expanded
    }

    Rectangle {
        anchors.right: parent.right
        anchors.rightMargin: root.handleWidth
        width: root.contentWidth
        height: parent.height
        // Folded, the controls must not be reached by the keyboard either.
        visible: root.width > root.handleWidth
        topRightRadius: 10
        bottomRightRadius: 10
        color: Theme.panelBg

        InputShield { }

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            TabBar {
                id: tabBar
                Layout.fillWidth: true
                background: null
                Material.accent: "#4A9ECA"

                // The buttons share the width; a width of their own would be a binding loop.
                TabButton {
                    id: cameraTab
                    objectName: "tabCamera"
                    text: qsTr("Kamera")
                    Accessible.role: Accessible.PageTab
                    Accessible.name: text
                }

                TabButton {
                    id: calibrationTab
                    objectName: "tabCalibration"
                    text: qsTr("Kalibrierung")
                    Accessible.role: Accessible.PageTab
                    Accessible.name: text
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
    }
}
