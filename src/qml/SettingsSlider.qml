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

    function _moveBy(delta: real) {
        moved(Math.max(from, Math.min(to, value + delta)));
    }

    /// A button that reaches the end of the range cannot keep the focus.
    function _stepBy(delta: real, button: StepButton) {
        const reason = button.activeFocus ? button.focusReason : -1;
        _moveBy(delta);
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
                root._moveBy(event.angleDelta.y > 0 ? step : -step);
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
                onClicked: root._stepBy(-root.stepSize, minusButton)
            }

            Slider {
                id: slider
                objectName: "slider"

                // The thumb would otherwise stay at the edge of the old range when a camera widens
                // it: the binding below acts only on a change of the value.
                function _placeThumb() {
                    if (!pressed)
                        value = root.value;
                }

                Layout.fillWidth: true
                implicitHeight: 40
                from: root.from
                to: root.to
                stepSize: root.stepSize
                snapMode: Slider.SnapAlways
                Material.accent: root.accentColor

                Accessible.role: Accessible.Slider
                Accessible.name: root.label
                Accessible.description: [display.pillText, root.tooltipText]
                                        .filter(text => text !== "").join(". ")

                onFromChanged: _placeThumb()
                onToChanged: _placeThumb()
                onMoved: root.moved(value)
                // Neither hand nor key: assistive technology writes the value itself, even of what is
                // disabled. A range that is changing may stand the wrong way round for a moment.
                onValueChanged: {
                    const bounded = Math.max(from, Math.min(to, root.value));
                    if (pressed || from > to || value === root.value || value === bounded)
                        return;
                    if (enabled)
                        root.moved(value);
                    else
                        _placeThumb();
                }
                Keys.onReturnPressed: display.beginEditing()
                Keys.onEnterPressed: display.beginEditing()

                FocusFrame {
                    anchors {
                        topMargin: 6
                        bottomMargin: 6
                    }
                    visible: slider.visualFocus
                }

                // Not while pressed: the thumb follows the hand.
                Binding on value {
                    value: root.value
                    when: !slider.pressed
                    restoreMode: Binding.RestoreNone
                }
            }

            StepButton {
                id: plusButton
                objectName: "plusButton"
                text: "+"
                enabled: root.value < root.to
                Accessible.name: "%1 %2".arg(root.label).arg(text)
                onClicked: root._stepBy(root.stepSize, plusButton)
            }
        }
    }
}
