import QtQuick
import QtQuick.Controls.Material

/// A tool tip for texts of several sentences: it wraps at a readable width.
ToolTip {
    id: root

    contentWidth: Math.min(implicitContentWidth, 300)
    font.pixelSize: 12
    y: (parent?.height ?? 0) + 6

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 120 }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: 120 }
    }
}
