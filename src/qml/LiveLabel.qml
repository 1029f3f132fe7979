import QtQuick
import QtQuick.Controls.Material

/// A text that changes by itself; a screen reader is told of each change. What flickers is not told,
/// only what stays for `settleTime`.
Label {
    id: root

    /// Milliseconds.
    property int settleTime: 400
    /// Interrupts what the screen reader is saying.
    property bool urgent: false

    /// What was told last.
    readonly property alias told: root._told
    property string _told

    function _tell() {
        const shown = visible ? text : "";
        if (shown === _told)
            return;
        _told = shown;
        if (shown !== "")
            Accessible.announce(shown, urgent ? Accessible.Assertive : Accessible.Polite);
    }

    Accessible.role: urgent ? Accessible.AlertMessage : Accessible.StaticText
    Accessible.name: text

    onTextChanged: settle.restart()
    onVisibleChanged: settle.restart()

    Timer {
        id: settle

        interval: root.settleTime
        onTriggered: root._tell()
    }
}
