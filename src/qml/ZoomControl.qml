import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Meridax

/// The zoom slider over the picture. Its scale of 0 to 100 maps linearly to `zoomMin`..`zoomMax`.
Rectangle {
    id: zoomControl

    property real zoomMin: 1.0
    property real zoomMax: 5.0
    readonly property real value: (ViewModel.zoom - zoomMin) / (zoomMax - zoomMin) * 100

    /// Sets the zoom from a value of the 0 to 100 scale.
    function setValue(newValue: real) {
        const bounded = Math.max(0, Math.min(100, newValue));
        ViewModel.zoom = zoomMin + bounded / 100 * (zoomMax - zoomMin);
    }

    implicitWidth: 420
    implicitHeight: 38
    radius: 19
    color: Qt.rgba(0, 0, 0, hover.hovered ? 0.50 : 0.28)

    Behavior on color {
        ColorAnimation {
            duration: 150
        }
    }

    HoverHandler {
        id: hover
    }

    InputShield {}

    RowLayout {
        anchors {
            fill: parent
            leftMargin: 14
            rightMargin: 14
        }
        spacing: 6

        ZoomStepButton {
            objectName: "zoomOutButton"
            text: "−"
            Accessible.name: qsTr("Verkleinern")
            onClicked: zoomControl.setValue(Math.round(zoomControl.value) - 1)
        }

        BoundSlider {
            id: slider

            objectName: "zoomSlider"
            from: 0
            to: 100
            stepSize: 1
            shownValue: zoomControl.value
            Layout.fillWidth: true
            Accessible.name: qsTr("Zoom")
            onChosen: newValue => zoomControl.setValue(newValue)

            FocusFrame {
                visible: slider.visualFocus
            }
        }

        ZoomStepButton {
            objectName: "zoomInButton"
            text: "+"
            Accessible.name: qsTr("Vergrößern")
            onClicked: zoomControl.setValue(Math.round(zoomControl.value) + 1)
        }

        Label {
            objectName: "zoomValueLabel"
            text: Math.round(zoomControl.value)
            font {
                family: Theme.monoFamily
                pixelSize: 12
            }
            color: "#FFFFFF"
            // The ground lets the picture through, which may be bright.
            style: Text.Outline
            styleColor: Qt.rgba(0, 0, 0, 0.5)
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 28
        }
    }
}
