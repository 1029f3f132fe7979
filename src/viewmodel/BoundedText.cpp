#include "viewmodel/BoundedText.h"

#include <QCoreApplication>

namespace meridax {

namespace {

/// Where the line after the last one to be shown begins; the length of `text` if there is none.
qsizetype endOfShownLines(const QString &text)
{
    qsizetype end = 0;
    for (qsizetype line = 0; line < kMaxShownLines; ++line) {
        const qsizetype next = text.indexOf(u'\n', end);
        if (next < 0)
            return text.size();
        end = next + 1;
    }
    return end;
}

/// Where to cut what is too long at the front of `text`.
qsizetype endOfShownText(const QString &text)
{
    const qsizetype lineEnd = text.lastIndexOf(u'\n', kMaxShownText - 1);
    if (lineEnd >= kMaxShownText / 2)
        return lineEnd;
    return text.at(kMaxShownText - 1).isHighSurrogate() ? kMaxShownText - 1 : kMaxShownText;
}

} // namespace

QString boundedText(const QString &text)
{
    qsizetype end = endOfShownLines(text);
    if (end > kMaxShownText)
        end = endOfShownText(text);
    if (end == text.size())
        return text;
    const QString note = QCoreApplication::translate("BoundedText", "Der Text wurde gekürzt.");
    return text.first(end) + QStringLiteral("\n\n*%1*\n").arg(note);
}

} // namespace meridax
