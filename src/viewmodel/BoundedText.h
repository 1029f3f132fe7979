#pragma once

#include <QString>

namespace meridax {

/// The longest text of the server's that is shown, in characters and in lines: some forty printed
/// pages. Laying out Markdown takes time that grows faster than the text, most of all with the
/// number of list items and table rows, and the window stands still meanwhile.
constexpr qsizetype kMaxShownText = 100000;
constexpr qsizetype kMaxShownLines = 2000;

/// `text`, or its beginning, if possible up to the end of a line, with a note that it was cut.
QString boundedText(const QString &text);

} // namespace meridax
