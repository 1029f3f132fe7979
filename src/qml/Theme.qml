pragma Singleton

import QtQuick

/// The palette of the interface, dark and light. Only `dark` is written, by the main window.
QtObject {
    property bool dark: true

    // A list of family names with a generic fallback: an alias alone costs a slow lookup at start,
    // and the list keeps glyph widths alike on all platforms.
    readonly property string monoFont: "Consolas, Menlo, monospace"
    // QML takes a list for one name. Where the first is missing, fontconfig knows what it stands for.
    readonly property string monoFamily: monoFont.split(", ")[Qt.platform.os === "osx" ? 1 : 0]

    readonly property color topBarBg: dark ? "#1A1A1A" : "#EAEAEA"
    // Translucent, as is handleBg: the live image shows through the side panels.
    readonly property color panelBg: dark ? Qt.rgba(0.145, 0.145, 0.145, 0.82)
                                          : Qt.rgba(0.94, 0.94, 0.94, 0.93)
    readonly property color settingsPanelBg: dark ? "#1C1C1C" : "#F5F5F5"
    readonly property color settingsHeaderBg: dark ? "#141414" : "#E8E8E8"
    readonly property color tableBg: dark ? "#2A2A2A" : "#E8E8E8"

    readonly property color text: dark ? "#C8C8C8" : "#1A1A1A"
    readonly property color textMuted: dark ? "#717171" : "#505050"
    readonly property color textDisabled: dark ? "#555555" : "#888888"
    readonly property color textTableHeader: dark ? "#777777" : "#555555"

    // Of what has succeeded, on the ground of a dialog.
    readonly property color textGood: dark ? "#4CAF50" : "#2E7D32"
    // Round what has the keyboard focus; the accent blue would not stand out from every ground.
    readonly property color focusFrame: dark ? "#6BB5DD" : "#1F6F9A"

    readonly property color divider: dark ? "#2E2E2E" : "#D0D0D0"
    readonly property color dividerMid: dark ? "#3a3a3a" : "#CCCCCC"
    readonly property color dividerStrong: dark ? "#444444" : "#BBBBBB"
    readonly property color separatorLine: dark ? "#555555" : "#CCCCCC"

    readonly property color logoColor: dark ? "#C8C8C8" : "#303030"
    readonly property color handleBg: dark ? Qt.rgba(0.176, 0.176, 0.176, 0.88)
                                           : Qt.rgba(0.86, 0.86, 0.86, 0.92)
    readonly property color handleText: dark ? "#C8C8C8" : "#303030"

    readonly property color sliderLabel: dark ? "#C8C8C8" : "#202020"
    readonly property color sliderValue: dark ? "#717171" : "#505050"
    readonly property color sliderValueDis: dark ? "#444444" : "#999999"
    readonly property color spinboxLabel: dark ? "#aaaaaa" : "#444444"
    readonly property color spinboxLabelDis: dark ? "#555555" : "#999999"
    readonly property color rowLabel: dark ? "#717171" : "#505050"
    readonly property color rowLabelEnabled: dark ? "#C8C8C8" : "#202020"
}
