import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The title band of a dialog; its children stand in a row. It leaves the dialog's border free.
Pane {
    id: root

    property alias color: ground.color
    property int inset: 1
    default property alias content: row.data

    padding: 16
    topInset: inset
    leftInset: inset
    rightInset: inset

    background: Rectangle {
        id: ground

        topLeftRadius: 8 - root.inset
        topRightRadius: 8 - root.inset
        color: Theme.settingsHeaderBg
    }
    contentItem: RowLayout {
        id: row

        spacing: 12
    }
}
