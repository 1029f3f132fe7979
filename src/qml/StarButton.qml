import QtQuick
import Meridax

/// One star of a rating.
RoundIconButton {
    id: root

    required property string name
    required property bool filled
    /// It is the last one that is filled.
    required property bool chosen
    /// The tab key stops here; among the stars the arrow keys lead.
    required property bool tabStop

    implicitWidth: 44
    implicitHeight: 44
    icon.source: filled ? "qrc:/resources/icon_star_filled.svg" : "qrc:/resources/icon_star.svg"
    icon.width: 32
    icon.height: 32
    icon.color: filled ? "#FFC107" : Theme.textMuted
    toolTip: name
    focusPolicy: tabStop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

    Accessible.role: Accessible.RadioButton
    Accessible.focusable: tabStop
    Accessible.checkable: true
    Accessible.checked: chosen
}
