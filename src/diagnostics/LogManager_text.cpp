#include "diagnostics/Immortal.h"
#include "diagnostics/LogManager.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringList>

namespace meridax {

namespace {

QLatin1StringView levelTag(QtMsgType type)
{
    using namespace Qt::StringLiterals;
    switch (type) {
    case QtDebugMsg:
        return "DBG"_L1;
    case QtWarningMsg:
        return "WRN"_L1;
    case QtCriticalMsg:
        return "ERR"_L1;
    case QtFatalMsg:
        return "FTL"_L1;
    case QtInfoMsg:
        return "INF"_L1;
    }
    return "???"_L1;
}

const QStringList &sensitiveKeys()
{
    static const auto *const keys =
        immortal<QStringList>(QStringList{QStringLiteral("emailConfirm")});
    return *keys;
}

bool holdsSensitiveKey(const QString &text)
{
    for (const QString &key : sensitiveKeys()) {
        if (text.contains(key))
            return true;
    }
    return false;
}

} // namespace

QString LogManager::compose(QtMsgType type, const QMessageLogContext &context,
                            const QString &message)
{
    const QString time =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    // All arguments at once, so that a "%1" inside the message stays what it is.
    QString line = QStringLiteral("%1 [%2] %3").arg(time, levelTag(type), message);
    if (context.file && context.line >= 1) {
        line += QStringLiteral(" (%1:%2)")
                    .arg(QString::fromUtf8(context.file), QString::number(context.line));
    }
    return line;
}

QString LogManager::sanitize(const QString &text)
{
    static const auto *const secret = immortal<QRegularExpression>(
        QStringLiteral(R"re("(%1)"\s*:\s*"[^"]*")re").arg(sensitiveKeys().join(u'|')));
    // An address can only begin where a run of its characters begins or the last match has ended.
    // Saying so keeps the search from trying every character of a long run.
    static const auto *const address = immortal<QRegularExpression>(
        QStringLiteral(R"re((?:\G|(?<![A-Za-z0-9._%+\-])))re"
                       R"re([A-Za-z0-9._%+\-]+@([A-Za-z0-9.\-]+\.[A-Za-z]{2,}))re"));

    // Hardly a line holds either, and looking for a text costs a tenth of a match.
    QString cleaned = text;
    if (holdsSensitiveKey(cleaned))
        cleaned.replace(*secret, QStringLiteral(R"("\1":"<redacted>")"));
    if (cleaned.contains(u'@'))
        cleaned.replace(*address, QStringLiteral(R"(<user>@\1)"));
    return cleaned;
}

} // namespace meridax
