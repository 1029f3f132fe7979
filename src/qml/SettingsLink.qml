import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The word in the top bar that opens the settings.
AbstractButton {
    id: root

    text: qsTr("Einstellungen")
    padding: 6
    font.pixelSize: 11
    focusPolicy: Qt.TabFocus

    Accessible.role: Accessible.Button
    Accessible.name: text

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    contentItem: Label {
        text: root.text
        font: root.font
        color: root.hovered ? Theme.text : Theme.textMuted
        Accessible.ignored: true

        Behavior on color {
            ColorAnimation {
                duration: 150
            }
        }
    }

    FocusFrame {
        visible: root.visualFocus
    }
}
