import QtQuick
import QtQuick.Controls.Material
import Meridax

/// A modal dialog in the middle of the window, with a title band of its own for a header.
Dialog {
    id: root

    property alias borderColor: ground.border.color
    property alias borderWidth: ground.border.width

    parent: Overlay.overlay
    // On whole pixels: on half ones text blurs and thin lines vanish.
    x: Math.round(((parent?.width ?? 0) - width) / 2)
    y: Math.round(((parent?.height ?? 0) - height) / 2)
    modal: true
    focus: true
    padding: 0
    topPadding: 0
    Material.background: Theme.settingsPanelBg
    Overlay.modal: ModalDim {}

    background: Rectangle {
        id: ground

        radius: 8
        color: Theme.settingsPanelBg
        border.width: 1
        border.color: Theme.dividerStrong
    }
}
