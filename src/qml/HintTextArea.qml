import QtQuick
import QtQuick.Controls.Material

/// Several lines of text with a hint while they are empty. The style's own placeholder would lie on
/// the border, as if struck through.
ScrollView {
    id: root

    required property string hint
    required property string name
    property alias text: area.text
    readonly property alias length: area.length

    contentWidth: availableWidth
    ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

    // The keys scroll; the bars offer nothing of their own.
    Component.onCompleted: {
        ScrollBar.vertical.Accessible.ignored = true;
        ScrollBar.horizontal.Accessible.ignored = true;
    }

    TextArea {
        id: area

        objectName: "area"
        topInset: 0
        topPadding: 10
        bottomPadding: 10
        leftPadding: 12
        rightPadding: 18
        font.pixelSize: 13
        wrapMode: TextEdit.Wrap
        textFormat: TextEdit.PlainText
        selectByMouse: true

        Accessible.role: Accessible.EditableText
        Accessible.multiLine: true
        Accessible.name: root.name
        Accessible.description: root.hint

        // A tab in the text serves nobody; the key leads on.
        Keys.onTabPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

        Label {
            x: area.leftPadding
            y: area.topPadding
            width: area.width - area.leftPadding - area.rightPadding
            visible: area.length === 0 && area.preeditText === ""
            text: root.hint
            font: area.font
            color: area.Material.hintTextColor
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }
    }
}
