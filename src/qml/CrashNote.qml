import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// A line of the crash dialog's explanation.
Label {
    font.pixelSize: 13
    color: Theme.text
    wrapMode: Text.WordWrap
    Layout.fillWidth: true
}
