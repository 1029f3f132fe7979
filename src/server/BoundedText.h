#pragma once

#include <QString>

namespace meridax {

/// The longest text of the server's that is shown, in characters. Some hundred printed pages;
/// laying out more would hold the window up.
constexpr qsizetype kMaxShownText = 200000;

/// `text`, or its beginning up to the last whole line with a note that it was cut.
QString boundedText(const QString &text);

} // namespace meridax
