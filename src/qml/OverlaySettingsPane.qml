pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Material
import QtQuick.Dialogs
import QtQuick.Layouts
import Meridax
import "overlayGeometry.mjs" as Geometry

/// What is drawn over the picture: three measuring circles and the crosshair.
Pane {
    id: root

    /// Shows a colour; a click lets the user pick another one.
    component ColorButton: Rectangle {
        id: colorButton

        property color pickedColor
        property string name

        signal colorPicked(newColor: color)

        function openDialog() {
            // Assistive technology presses what is disabled, too.
            if (!enabled)
                return;
            dialog.selectedColor = pickedColor;
            dialog.open();
        }

        implicitWidth: 32
        implicitHeight: 32
        radius: 4
        color: pickedColor
        border.color: Theme.dividerStrong
        opacity: enabled ? 1.0 : 0.35
        activeFocusOnTab: true

        Accessible.role: Accessible.Button
        Accessible.name: name
        Accessible.description: pickedColor.toString()
        Accessible.onPressAction: openDialog()

        Keys.onSpacePressed: openDialog()
        Keys.onReturnPressed: event => event.isAutoRepeat || openDialog()
        Keys.onEnterPressed: event => event.isAutoRepeat || openDialog()

        MouseArea {
            anchors.fill: parent
            cursorShape: colorButton.enabled ? Qt.PointingHandCursor : Qt.ArrowCursor
            onClicked: colorButton.openDialog()
        }

        FocusFrame { }

        ColorDialog {
            id: dialog
            objectName: "colorDialog"
            // The dialog looks for its window before there is one.
            parentWindow: colorButton.Window.window
            title: colorButton.name
            onAccepted: colorButton.colorPicked(selectedColor)
        }
    }

    /// One measuring circle.
    component CircleSettingsRow: CollapsibleSection {
        id: circleRow

        required property int circleIndex

        readonly property string _stem: `circle${circleIndex}`
        readonly property bool circleOn: ViewModel[`${_stem}Enabled`]

        function setSwitchedOn(on: bool) { ViewModel[`${_stem}Enabled`] = on; }
        function setColor(newColor: color) { ViewModel[`${_stem}Color`] = newColor; }
        function setRadius(radius: real) { ViewModel[`${_stem}Radius`] = radius; }
        function setLineWidth(width: real) { ViewModel[`${_stem}LineWidth`] = width; }
        function setLineStyle(style: int) { ViewModel[`${_stem}LineStyle`] = style; }

        Layout.fillWidth: true
        title: qsTr("Kreis %1").arg(circleIndex)
        persistKey: _stem
        topPadding: 0
        contentEnabled: circleOn
        headerRight: [
            CompactSwitch {
                objectName: "headerSwitch"
                shownChecked: circleRow.circleOn
                Accessible.name: circleRow.title
                onChosen: checked => circleRow.setSwitchedOn(checked)
            },
            ColorButton {
                objectName: "colorButton"
                enabled: circleRow.circleOn
                pickedColor: ViewModel[`${circleRow._stem}Color`]
                name: qsTr("Farbe: %1").arg(circleRow.title)
                onColorPicked: newColor => circleRow.setColor(newColor)
            }
        ]

        SettingsSlider {
            objectName: "radiusSlider"
            Layout.fillWidth: true
            label: qsTr("Radius")
            from: Geometry.MIN_RADIUS
            to: Geometry.MAX_RADIUS
            editable: true
            value: ViewModel[`${circleRow._stem}Radius`]
            onMoved: newValue => circleRow.setRadius(newValue)
        }

        SettingsSlider {
            objectName: "lineWidthSlider"
            Layout.fillWidth: true
            label: qsTr("Breite")
            from: 1
            to: 10
            stepSize: 0.5
            decimals: 1
            editable: true
            value: ViewModel[`${circleRow._stem}LineWidth`]
            onMoved: newValue => circleRow.setLineWidth(newValue)
        }

        LineStyleRow {
            objectName: "lineStyleRow"
            Layout.fillWidth: true
            selectedIndex: ViewModel[`${circleRow._stem}LineStyle`]
            onChosen: index => circleRow.setLineStyle(index)
        }
    }

    padding: 16
    background: null
    // The column hangs on anchors, so the pane knows no content height of its own.
    contentHeight: column.implicitHeight

    ColumnLayout {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: 8

        SectionLabel {
            text: qsTr("Messkreise")
        }

        CircleSettingsRow {
            objectName: "circle1Section"
            Layout.topMargin: 6
            circleIndex: 1
            separator: false
        }

        CircleSettingsRow {
            objectName: "circle2Section"
            circleIndex: 2
        }

        CircleSettingsRow {
            objectName: "circle3Section"
            circleIndex: 3
        }

        CollapsibleSection {
            id: crossSection
            objectName: "crossSection"
            Layout.fillWidth: true
            title: qsTr("Fadenkreuz")
            persistKey: "crosshair"
            contentEnabled: ViewModel.crossEnabled
            headerRight: [
                CompactSwitch {
                    objectName: "headerSwitch"
                    shownChecked: ViewModel.crossEnabled
                    Accessible.name: crossSection.title
                    onChosen: checked => { ViewModel.crossEnabled = checked; }
                },
                ColorButton {
                    objectName: "colorButton"
                    enabled: ViewModel.crossEnabled
                    pickedColor: ViewModel.crossColor
                    name: qsTr("Farbe: %1").arg(crossSection.title)
                    onColorPicked: newColor => { ViewModel.crossColor = newColor; }
                }
            ]

            SettingsSlider {
                objectName: "angleSlider"
                Layout.fillWidth: true
                label: qsTr("Winkel")
                to: 360
                editable: true
                value: ViewModel.crossAngle
                onMoved: newValue => { ViewModel.crossAngle = newValue; }
            }

            SettingsSlider {
                objectName: "lineWidthSlider"
                Layout.fillWidth: true
                label: qsTr("Breite")
                from: 1
                to: 10
                stepSize: 0.5
                decimals: 1
                editable: true
                value: ViewModel.crossLineWidth
                onMoved: newValue => { ViewModel.crossLineWidth = newValue; }
            }

            ComboRow {
                objectName: "crossTypeRow"
                Layout.fillWidth: true
                label: qsTr("Typ")
                model: [qsTr("Lines (3)"), qsTr("Kreuz (4)")]
                selectedIndex: ViewModel.crossType
                onChosen: index => { ViewModel.crossType = index; }
            }

            LineStyleRow {
                objectName: "lineStyleRow"
                Layout.fillWidth: true
                selectedIndex: ViewModel.crossLineStyle
                onChosen: index => { ViewModel.crossLineStyle = index; }
            }
        }
    }
}
