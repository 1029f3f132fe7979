import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A figure in a table of results.
Label {
    Layout.fillWidth: true
    font.pixelSize: 12
    font.family: Theme.monoFamily
    elide: Text.ElideRight
    color: Theme.text
}
