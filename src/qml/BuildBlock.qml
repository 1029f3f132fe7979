pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// What is known of one build, client or server: a heading over pairs of label and value.
ColumnLayout {
    id: root

    required property string heading
    /// Objects with "label" and "value"; an empty value shows as a dash.
    required property var entries

    spacing: 6
    Layout.fillWidth: true

    Label {
        text: root.heading
        font {
            pixelSize: 11
            bold: true
        }
        color: "#4A9ECA"
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Repeater {
        model: root.entries

        RowLayout {
            id: entry

            required property var modelData

            spacing: 12
            Layout.fillWidth: true

            Label {
                text: entry.modelData.label
                font.pixelSize: 11
                color: Theme.textMuted
                Layout.preferredWidth: 90
            }

            Label {
                objectName: "value"
                text: entry.modelData.value || "—"
                textFormat: Text.PlainText
                font {
                    family: Theme.monoFamily
                    pixelSize: 12
                }
                color: Theme.text
                elide: Text.ElideMiddle
                Accessible.role: Accessible.StaticText
                Accessible.name: entry.modelData.label + " " + text
                Layout.fillWidth: true
            }
        }
    }
}
