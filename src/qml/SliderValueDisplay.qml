import QtQuick
import QtQuick.Controls.Material
import Meridax

/// What stands above a slider: its number, the pill of an automatic mode in its place, or the field
/// to type the number. All three share one place, so that the layout does not jump.
Item {
    id: root

    required property real value
    required property real from
    required property real to
    required property int decimals
    required property bool editable
    required property string zeroLabel
    required property string atMinLabel
    required property color accentColor
    /// Of the value, for assistive technology.
    required property string name
    readonly property alias editing: editor.editing

    readonly property bool zeroPillShown: zeroLabel !== "" && Math.abs(value) < 1e-9
    readonly property bool minPillShown: atMinLabel !== "" && !zeroPillShown
                                         && Math.abs(value - from) < 1e-9

    /// What stands in the place of the number, or nothing.
    readonly property string pillText: zeroPillShown ? zeroLabel : minPillShown ? atMinLabel : ""

    readonly property bool _canEdit: editable && enabled

    /// The number as typed, within the range.
    signal committed(newValue: real)
    /// Editing ended by Enter or Escape.
    signal endedByKey()

    function beginEditing() {
        if (_canEdit)
            editor.begin(value.toFixed(decimals));
    }

    implicitHeight: 22

    Label {
        id: number
        objectName: "valueLabel"
        anchors.centerIn: parent
        visible: !root.zeroPillShown && !root.minPillShown && !editor.editing
        text: root.value.toFixed(root.decimals)
        font.pixelSize: 12
        color: root.enabled ? Theme.sliderValue : Theme.sliderValueDis
        Accessible.ignored: true
    }

    Rectangle {
        anchors.centerIn: parent
        width: number.implicitWidth + 12
        height: number.implicitHeight + 4
        radius: 4
        visible: numberArea.pointed
        color: "transparent"
        border.width: 1
        border.color: "#4A9ECA"
        opacity: 0.4
    }

    // The size of the number and not of the row, so that a double click beside it edits nothing.
    MouseArea {
        id: numberArea

        readonly property bool pointed: enabled && containsMouse

        anchors.centerIn: parent
        width: number.implicitWidth + 16
        height: number.implicitHeight + 8
        enabled: root._canEdit && number.visible
        hoverEnabled: true
        cursorShape: Qt.IBeamCursor
        onDoubleClicked: root.beginEditing()

        HelpTip {
            wanted: numberArea.pointed
            text: qsTr("Doppelklick zum Bearbeiten")
        }
    }

    ValuePill {
        objectName: "zeroPill"
        anchors.centerIn: parent
        visible: root.zeroPillShown && !editor.editing
        text: root.zeroLabel
        toolTip: root._canEdit ? qsTr("Doppelklick: manuellen Wert eingeben") : ""
        onDoubleClicked: root.beginEditing()
    }

    ValuePill {
        objectName: "minPill"
        anchors.centerIn: parent
        visible: root.minPillShown && !editor.editing
        text: root.atMinLabel
        toolTip: qsTr("Auto-Modus aktiv — Slider bewegen für manuellen Wert")
    }

    SliderValueEditor {
        id: editor
        objectName: "valueEditor"
        anchors.centerIn: parent
        from: root.from
        to: root.to
        accentColor: root.accentColor
        name: root.name
        onCommitted: newValue => root.committed(newValue)
        onEndedByKey: root.endedByKey()
    }
}
