pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Meridax

/// Over the upper left of the picture: add a focus preset, switch focusing by a tap, and a chip for
/// each preset.
Item {
    id: root

    readonly property int chipHeight: 30
    readonly property int iconSize: 22
    /// Index of the chip that is being renamed, or -1.
    property int renamingIndex: -1
    /// The name field for a new preset is open.
    property bool adding: false

    readonly property var _presets: ViewModel.focusPresets

    function beginAdding() {
        adding = true;
        nameField.clear();
        nameField.forceActiveFocus();
    }

    function endAdding() {
        adding = false;
        nameField.clear();
        addButton.forceActiveFocus();
    }

    /// A chip that was removed by a key hands the focus to the next one.
    function remove(index: int, byKey: bool) {
        renamingIndex = -1;
        ViewModel.removeFocusPreset(index);
        if (byKey) {
            const next = chips.itemAt(Math.min(index, chips.count - 1)) ?? addButton;
            next.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    width: 150
    implicitHeight: column.implicitHeight

    Connections {
        target: ViewModel

        // A change of the camera takes the presets and leaves no field open.
        function onFocusPresetsChanged() {
            if (root.renamingIndex >= ViewModel.focusPresets.length)
                root.renamingIndex = -1;
        }
    }

    ColumnLayout {
        id: column
        width: parent.width
        spacing: 4

        RowLayout {
            spacing: 6

            OverlayButton {
                id: addButton
                objectName: "addPresetButton"
                text: toolTip
                iconSource: "qrc:/resources/icon_target_plus.svg"
                iconSize: 30
                inUse: root.adding
                toolTip: qsTr("Fokus-Preset anlegen")
                toolTipEnabled: !root.adding
                onClicked: root.beginAdding()
            }

            FocusTapButton {
                objectName: "focusTapButton"
            }
        }

        OverlayTextField {
            id: nameField
            objectName: "nameField"
            Layout.fillWidth: true
            Layout.preferredHeight: root.chipHeight
            visible: root.adding
            placeholderText: qsTr("Name (Enter)")
            onAccepted: {
                ViewModel.addFocusPreset(text);
                root.endAdding();
            }
            onCancelled: root.endAdding()
            onActiveFocusChanged: {
                if (!activeFocus && text === "")
                    root.adding = false;
            }
        }

        Item {
            Layout.preferredHeight: 6
            visible: root._presets.length > 0
        }

        // By number, so that the chips outlive a change of what they show: a press that ends a
        // renaming would otherwise lose the button it is on.
        Repeater {
            id: chips

            model: root._presets.length

            FocusPresetChip {
                id: chip

                required property int index
                readonly property var preset: root._presets[index]

                objectName: `preset${index}`
                Layout.fillWidth: true
                Layout.preferredHeight: root.chipHeight
                name: preset?.name ?? ""
                focusValue: preset?.focusValue ?? 0
                hasMarkers: preset?.hasMarkers ?? false
                outdated: index === ViewModel.activeFocusPresetIndex
                          && ViewModel.activeFocusPresetDirty
                renaming: index === root.renamingIndex
                iconSize: root.iconSize
                onApplied: ViewModel.applyFocusPreset(index)
                onRenameRequested: root.renamingIndex = index
                onRenameEnded: newName => {
                    root.renamingIndex = -1;
                    ViewModel.renameFocusPreset(index, newName);
                }
                onRemoved: root.remove(index, removeFocused)
                onUpdated: ViewModel.updateFocusPreset(index)
            }
        }
    }
}
