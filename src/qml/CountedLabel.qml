import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The name of a field, with how much of its length is used at the right.
RowLayout {
    id: root

    required property string text
    required property string counter
    /// The length is not admitted.
    required property bool alert

    spacing: 8
    Layout.fillWidth: true

    Label {
        text: root.text
        font.pixelSize: 12
        color: Theme.text
        Layout.fillWidth: true
    }

    Label {
        objectName: "counter"
        text: root.counter
        font.pixelSize: 11
        color: root.alert ? "#F44336" : Theme.textMuted
    }
}
