import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Title and subtitle in the band of a dialog.
ColumnLayout {
    id: root

    required property string title
    required property color titleColor
    property int titleSize: 15
    property string subtitle
    property color subtitleColor: Theme.textMuted

    spacing: 2
    Layout.fillWidth: true

    Label {
        objectName: "titleLabel"
        text: root.title
        textFormat: Text.PlainText
        font {
            pixelSize: root.titleSize
            bold: true
        }
        color: root.titleColor
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
        Layout.fillWidth: true
    }

    Label {
        objectName: "subtitleLabel"
        visible: text !== ""
        text: root.subtitle
        font.pixelSize: 11
        color: root.subtitleColor
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }
}
