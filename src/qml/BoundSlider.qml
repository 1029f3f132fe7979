import QtQuick
import QtQuick.Controls.Material

/// A slider that follows `shownValue`, which is set from outside. A user's change goes out by
/// `chosen` alone, also that of assistive technology, which writes the value itself.
Slider {
    id: root

    required property real shownValue

    signal chosen(newValue: real)

    // The thumb would otherwise stay at the edge of the old range when a camera widens it: the
    // binding below acts only on a change of the value.
    function _placeThumb() {
        if (!pressed)
            value = shownValue;
    }

    Accessible.role: Accessible.Slider

    onFromChanged: _placeThumb()
    onToChanged: _placeThumb()
    onMoved: chosen(value)
    // Neither hand nor key: assistive technology, which writes even what is disabled. A value beyond
    // the range is only shown at its end, and a range that is changing may stand the wrong way round
    // for a moment.
    onValueChanged: {
        const bounded = Math.max(from, Math.min(to, shownValue));
        if (pressed || from > to || value === shownValue || value === bounded)
            return;
        if (enabled)
            chosen(value);
        else
            _placeThumb();
    }

    // Not while pressed: the thumb follows the hand.
    Binding on value {
        value: root.shownValue
        when: !root.pressed
        restoreMode: Binding.RestoreNone
    }
}
