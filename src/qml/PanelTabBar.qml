import QtQuick.Controls.Material

/// The tabs of a side panel.
TabBar {
    background: null
    Material.accent: "#4A9ECA"
}
