import QtQuick
import QtQuick.Controls.Material

/// An editable spin box in the compact size of the panels. It follows `shownValue` except while it
/// has the focus, so that typing is not overwritten.
SpinBox {
    id: root

    property int shownValue: 0
    property bool _ready: false

    /// The user's choice, by hand, key or assistive technology, which writes the value itself.
    signal chosen(newValue: int)

    implicitWidth: 120
    implicitHeight: 36
    topPadding: 0
    bottomPadding: 0
    font.pixelSize: 12
    editable: true

    Accessible.role: Accessible.SpinBox

    // What is beyond the range is only shown at its end.
    onValueChanged: {
        const bounded = Math.max(from, Math.min(to, shownValue));
        if (_ready && value !== shownValue && value !== bounded)
            chosen(value);
    }
    // An emptied field takes nothing; by itself it would take the least.
    valueFromText: (text, locale) => text === "" ? value : Number.fromLocaleString(locale, text)
    Component.onCompleted: _ready = true

    Binding {
        target: root
        property: "value"
        value: root.shownValue
        when: !root.activeFocus
        restoreMode: Binding.RestoreNone
    }
}
