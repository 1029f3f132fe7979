import QtQuick
import QtQuick.Controls.Material

/// Heading of a group of controls.
Label {
    font.pixelSize: 13
    font.bold: true
    color: Material.accentColor

    Accessible.role: Accessible.Heading
    Accessible.name: text
}
