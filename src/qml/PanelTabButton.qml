import QtQuick
import QtQuick.Controls.Material

/// A tab of a side panel. Its width is the tab bar's affair: a width of its own would be a binding
/// loop.
TabButton {
    Accessible.role: Accessible.PageTab
    Accessible.name: text
}
