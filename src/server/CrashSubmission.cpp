#include "server/CrashSubmission.h"

#include <QStringList>

namespace meridax {

namespace {

using namespace Qt::StringLiterals;

// The server takes no more.
constexpr qsizetype kMaxTitle = 200;
constexpr qsizetype kMaxDescription = 8000;

/// What stands between the first pair of parentheses, with a blank before it.
QString exceptionName(const QString &line)
{
    const qsizetype open = line.indexOf(u'(');
    const qsizetype close = line.indexOf(u')');
    if (open <= 0 || close <= open)
        return {};
    return u' ' + line.sliced(open + 1, close - open - 1);
}

} // namespace

QString crashTitle(const QString &report)
{
    constexpr QLatin1StringView exceptionLabel = "ExceptionCode:"_L1;
    constexpr QLatin1StringView moduleLabel = "Module:"_L1;
    QString title = u"[Crash]"_s;
    const QStringList lines = report.split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(exceptionLabel)) {
            title += exceptionName(line);
        } else if (line.startsWith(moduleLabel)) {
            title += " in "_L1 + line.sliced(moduleLabel.size()).trimmed();
            break;
        }
    }
    return title.left(kMaxTitle);
}

QString crashDescription(const QString &additionalDescription, const QString &report)
{
    QString description = additionalDescription;
    if (!description.isEmpty())
        description += "\n\n"_L1;
    description += "=== Crash-Report ===\n"_L1 + report;
    return description.left(kMaxDescription);
}

} // namespace meridax
