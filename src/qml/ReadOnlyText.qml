import QtQuick
import QtQuick.Controls.Material
import Meridax

/// A text to read: it can be selected, copied and scrolled by the keys, not changed.
ScrollView {
    id: root

    required property string name
    property alias text: area.text
    property alias textFormat: area.textFormat
    property alias wrapMode: area.wrapMode
    property alias textPadding: area.padding
    readonly property Flickable view: contentItem as Flickable

    signal linkActivated(link: string)

    function scrollBy(distance: real) {
        view.contentY = Math.max(0, Math.min(view.contentY + distance,
                                             view.contentHeight - view.height));
    }

    function scrollToEnd() {
        scrollBy(view.contentHeight);
    }

    contentWidth: wrapMode === TextEdit.NoWrap ? -1 : availableWidth
    font.pixelSize: 12

    // The keys scroll; the bars offer nothing of their own.
    Component.onCompleted: {
        ScrollBar.vertical.Accessible.ignored = true;
        ScrollBar.horizontal.Accessible.ignored = true;
    }

    TextArea {
        id: area

        objectName: "area"
        topInset: 0
        padding: 12
        topPadding: padding
        bottomPadding: padding
        leftPadding: padding
        rightPadding: padding
        background: null
        focus: true
        readOnly: true
        selectByMouse: true
        activeFocusOnTab: true
        wrapMode: TextEdit.Wrap
        textFormat: TextEdit.PlainText
        font: root.font
        color: Theme.text

        Accessible.role: Accessible.StaticText
        Accessible.readOnly: true
        Accessible.multiLine: true
        Accessible.name: root.name

        Keys.onTabPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        Keys.onUpPressed: root.scrollBy(-24)
        Keys.onDownPressed: root.scrollBy(24)
        Keys.onPressed: event => {
            const page = root.view.height * 0.9;
            const distances = new Map([[Qt.Key_PageUp, -page], [Qt.Key_PageDown, page],
                                       [Qt.Key_Home, -root.view.contentHeight],
                                       [Qt.Key_End, root.view.contentHeight]]);
            event.accepted = distances.has(event.key);
            if (event.accepted)
                root.scrollBy(distances.get(event.key));
        }
        onLinkActivated: link => root.linkActivated(link)

        HoverHandler {
            cursorShape: area.hoveredLink !== "" ? Qt.PointingHandCursor : Qt.IBeamCursor
        }
    }
}
