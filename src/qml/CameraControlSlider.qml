import QtQuick
import Meridax

/// Slider of one hardware control: in the range that the camera reports, or else in a fallback.
/// Where the camera can set the value by itself, the lowest position stands for that.
SettingsSlider {
    required property bool supported
    required property bool canAuto
    required property int rangeMin
    required property int rangeMax
    required property int rangeStep
    property int fallbackMin: 0
    property int fallbackMax: 255

    /// `moved`, as a whole number.
    signal chosen(newValue: int)

    editable: true
    from: supported ? rangeMin : fallbackMin
    to: supported ? rangeMax : fallbackMax
    stepSize: supported ? Math.max(1, rangeStep) : 1
    atMinLabel: supported && canAuto ? qsTr("AUTO") : ""
    onMoved: newValue => chosen(Math.round(newValue))
}
