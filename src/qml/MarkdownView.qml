import QtQuick
import Meridax
import "markdownText.mjs" as MarkdownText

/// A text in Markdown to read. Nothing that it names is loaded; links to the web open in the
/// browser.
ReadOnlyText {
    id: root

    required property string markdown

    function _show() {
        const moderate = MarkdownText.isModerate(markdown);
        // Emptied first: what was there would be laid out in the new format.
        text = "";
        textFormat = moderate ? TextEdit.MarkdownText : TextEdit.PlainText;
        text = moderate ? MarkdownText.withoutResources(markdown) : markdown;
    }

    wrapMode: TextEdit.WordWrap
    textPadding: 16
    onMarkdownChanged: _show()
    Component.onCompleted: _show()
    onLinkActivated: link => ViewModel.openLink(link)
}
