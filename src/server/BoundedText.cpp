#include "server/BoundedText.h"

#include <QCoreApplication>

namespace meridax {

QString boundedText(const QString &text)
{
    if (text.size() <= kMaxShownText)
        return text;
    qsizetype end = text.lastIndexOf(u'\n', kMaxShownText - 1);
    if (end < kMaxShownText / 2) {
        end = kMaxShownText;
        if (text.at(end - 1).isHighSurrogate())
            --end;
    }
    return text.first(end) +
           QStringLiteral("\n\n*%1*\n")
               .arg(QCoreApplication::translate("BoundedText", "Der Text wurde gekürzt."));
}

} // namespace meridax
