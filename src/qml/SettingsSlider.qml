import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The standard numeric control: label and help, value, −, slider, +.
///
/// The control never writes `value`. Whatever the user does goes out by `moved`; the owner writes
/// the view model, and the value comes back by the owner's binding.
RowLayout {
    id: root

    property string label
    property string tooltipText
    property real from: 0
    property real to: 100
    property real value: 0
    property real stepSize: 1
    property color accentColor: "#4A9ECA"
    property int decimals: 0
    property bool editable: false
    property string zeroLabel
    property string atMinLabel

    readonly property int _effectiveDecimals: decimals > 0 ? decimals : stepSize < 1 ? 2 : 0

    signal moved(newValue: real)

    /// A button that reaches the end of the range cannot keep the focus. From beyond the range it
    /// steps back, too, and does not jump to its end.
    function _stepTo(newValue: real, button: StepButton) {
        const reason = button.activeFocus ? button.focusReason : -1;
        moved(newValue);
        if (reason >= 0 && !button.enabled)
            slider.forceActiveFocus(reason);
    }

    spacing: 8

    Row {
        Layout.preferredWidth: 100
        Layout.maximumWidth: 100
        spacing: 5

        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 100 - (help.visible ? help.width + parent.spacing : 0))
            text: root.label
            font.pixelSize: 12
            // Wide fallback fonts would else elide the longest labels.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            elide: Text.ElideRight
            color: root.enabled ? Theme.sliderLabel : Theme.textDisabled
            Accessible.ignored: true
        }

        InfoTooltip {
            id: help
            anchors.verticalCenter: parent.verticalCenter
            text: root.tooltipText
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 0

        // Fractional steps move by whole units on the wheel: half units are for the buttons.
        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: event => {
                if (event.angleDelta.y === 0)
                    return;
                const step = Math.max(1, Math.round(root.stepSize))
                           * (event.modifiers & Qt.ControlModifier ? 10 : 1);
                const newValue = root.value + (event.angleDelta.y > 0 ? step : -step);
                root.moved(Math.max(root.from, Math.min(root.to, newValue)));
            }
        }

        SliderValueDisplay {
            id: display
            objectName: "valueDisplay"
            Layout.fillWidth: true
            // The hint below the field lies over the slider.
            z: 1
            value: root.value
            from: root.from
            to: root.to
            decimals: root._effectiveDecimals
            editable: root.editable
            zeroLabel: root.zeroLabel
            atMinLabel: root.atMinLabel
            accentColor: root.accentColor
            name: root.label
            onCommitted: newValue => root.moved(newValue)
            onEndedByKey: slider.forceActiveFocus()
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 0

            StepButton {
                id: minusButton
                objectName: "minusButton"
                text: "\u2212"
                enabled: root.value > root.from
                Accessible.name: "%1 %2".arg(root.label).arg(text)
                onClicked: root._stepTo(Math.max(root.from, root.value - root.stepSize),
                                           minusButton)
            }

            BoundSlider {
                id: slider
                objectName: "slider"
                Layout.fillWidth: true
                implicitHeight: 40
                from: root.from
                to: root.to
                stepSize: root.stepSize
                snapMode: Slider.SnapAlways
                shownValue: root.value
                Material.accent: root.accentColor

                Accessible.name: root.label
                Accessible.description: [display.pillText, root.tooltipText]
                                        .filter(text => text !== "").join(". ")

                onChosen: newValue => root.moved(newValue)
                Keys.onReturnPressed: display.beginEditing()
                Keys.onEnterPressed: display.beginEditing()

                FocusFrame {
                    anchors {
                        topMargin: 6
                        bottomMargin: 6
                    }
                    visible: slider.visualFocus
                }
            }

            StepButton {
                id: plusButton
                objectName: "plusButton"
                text: "+"
                enabled: root.value < root.to
                Accessible.name: "%1 %2".arg(root.label).arg(text)
                onClicked: root._stepTo(Math.min(root.to, root.value + root.stepSize), plusButton)
            }
        }
    }
}
