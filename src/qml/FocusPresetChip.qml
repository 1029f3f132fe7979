import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// One focus preset: a click goes there, a double click renames it.
Item {
    id: root

    required property string name
    required property int focusValue
    required property bool hasMarkers
    /// The preset in force, with values that have changed since.
    required property bool outdated
    required property bool renaming
    required property int iconSize

    /// The keyboard focus is on the button that removes the chip.
    readonly property alias removeFocused: removeButton.visualFocus

    signal applied()
    signal renameRequested()
    /// The rename field closes: with `newName`, or without a change when it is empty.
    signal renameEnded(newName: string)
    signal removed()
    signal updated()

    function beginRenaming() {
        renameRequested();
        renameField.text = name;
        renameField.forceActiveFocus();
        renameField.selectAll();
    }

    function endRenaming(newName: string) {
        renameEnded(newName);
        forceActiveFocus();
    }

    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.description: qsTr("Leertaste: anfahren, Eingabetaste: umbenennen")
    Accessible.onPressAction: applied()

    Keys.onSpacePressed: applied()
    Keys.onReturnPressed: event => event.isAutoRepeat || beginRenaming()
    Keys.onEnterPressed: event => event.isAutoRepeat || beginRenaming()

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: Qt.rgba(1, 1, 1, hover.hovered ? 0.08 : 0)

        Behavior on color {
            ColorAnimation { duration: 100 }
        }
    }

    FocusFrame { }

    // A press that misses the small cross is none on the picture.
    InputShield { }

    HoverHandler {
        id: hover
    }

    MouseArea {
        id: chipArea
        objectName: "chipArea"
        anchors.fill: parent
        // Free for the remove button.
        anchors.leftMargin: 24
        enabled: !root.renaming
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: root.applied()
        onDoubleClicked: root.beginRenaming()
    }

    HelpTip {
        objectName: "chipTip"
        wanted: chipArea.containsMouse && chipArea.enabled
        beside: true
        text: root.hasMarkers
              ? qsTr("Klick: Fokus + Markierungen anfahren\nDoppelklick: umbenennen")
              : qsTr("Klick: nur Fokus anfahren\nDoppelklick: umbenennen")
    }

    RowLayout {
        anchors {
            fill: parent
            leftMargin: 2
            rightMargin: 6
        }
        spacing: 4

        GlyphButton {
            id: removeButton

            objectName: "removeButton"
            Layout.preferredWidth: 18
            Layout.preferredHeight: 18
            text: "×"
            font.pixelSize: 15
            glyphColor: "#E57373"
            hoverColor: "#E53935"
            toolTip: qsTr("Preset entfernen")
            onClicked: root.removed()
        }

        GlyphButton {
            objectName: "updateButton"
            Layout.preferredWidth: root.iconSize
            Layout.preferredHeight: root.iconSize
            visible: root.outdated && !root.renaming
            text: "↻"
            font.pixelSize: 16
            glyphColor: "#4A9ECA"
            hoverColor: Qt.rgba(0x4A / 255, 0x9E / 255, 0xCA / 255, 0.9)
            toolTip: qsTr("Preset mit aktuellem Stand aktualisieren")
            onClicked: root.updated()
        }

        SvgItem {
            Layout.preferredWidth: root.iconSize
            Layout.preferredHeight: root.iconSize
            opacity: 0.85
            source: "qrc:/resources/icon_focus_frame.svg"
        }

        Label {
            objectName: "nameLabel"
            Layout.fillWidth: true
            visible: !root.renaming
            text: root.name
            textFormat: Text.PlainText
            Accessible.ignored: true
            font.pixelSize: 12
            font.bold: true
            color: "white"
            // Without a ground of its own the text has to stand out from any picture.
            style: Text.Outline
            styleColor: Qt.rgba(0, 0, 0, 0.5)
            elide: Text.ElideRight
        }

        Label {
            objectName: "valueLabel"
            visible: ViewModel.focusPresetShowValue && !root.renaming
            text: "f=%1".arg(root.focusValue)
            font.family: Theme.monoFamily
            font.pixelSize: 11
            color: "#B0B0B0"
            style: Text.Outline
            styleColor: Qt.rgba(0, 0, 0, 0.5)
        }
    }

    OverlayTextField {
        id: renameField
        objectName: "renameField"
        anchors {
            fill: parent
            leftMargin: 24 + root.iconSize + 4
            rightMargin: 4
            topMargin: 2
            bottomMargin: 2
        }
        visible: root.renaming
        groundOpacity: 0.85
        Accessible.name: qsTr("Name des Presets")
        onAccepted: root.endRenaming(text)
        onCancelled: root.endRenaming("")
        onActiveFocusChanged: {
            if (!activeFocus && root.renaming)
                root.renameEnded(text);
        }
    }
}
