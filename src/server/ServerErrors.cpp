#include "server/ServerErrors.h"

#include <QCoreApplication>

#include <array>

namespace meridax {

namespace {

struct ErrorText
{
    QLatin1StringView code;
    const char *text;
};

// clang-format off
constexpr std::array<ErrorText, 11> kErrorTexts{{
    {QLatin1StringView("RATE_LIMITED"),
     QT_TRANSLATE_NOOP("ServerError", "Zu viele Anfragen — bitte versuche es später erneut.")},
    {QLatin1StringView("BUG_REPORT_RATE_LIMIT_EXCEEDED"),
     QT_TRANSLATE_NOOP("ServerError", "Maximal 10 Bug-Reports pro 24h. Bitte später erneut.")},
    {QLatin1StringView("FEATURE_REQUEST_RATE_LIMIT_EXCEEDED"),
     QT_TRANSLATE_NOOP("ServerError", "Max. 5 Feature-Vorschläge pro 24h. Bitte später erneut.")},
    {QLatin1StringView("FEEDBACK_RATE_LIMIT_EXCEEDED"),
     QT_TRANSLATE_NOOP("ServerError", "Du hast in den letzten 24h schon Feedback gesendet — danke! Bitte etwas warten.")},
    {QLatin1StringView("INVALID_TITLE"),
     QT_TRANSLATE_NOOP("ServerError", "Titel ist ungültig (max. 200 Zeichen).")},
    {QLatin1StringView("INVALID_DESCRIPTION"),
     QT_TRANSLATE_NOOP("ServerError", "Beschreibung ist ungültig (max. 8000 Zeichen).")},
    {QLatin1StringView("INVALID_RATING"),
     QT_TRANSLATE_NOOP("ServerError", "Bewertung muss zwischen 1 und 5 liegen.")},
    {QLatin1StringView("INVALID_COMMENT"),
     QT_TRANSLATE_NOOP("ServerError", "Kommentar zu lang (max. 4000 Zeichen).")},
    {QLatin1StringView("SCREENSHOT_TOO_LARGE"),
     QT_TRANSLATE_NOOP("ServerError", "Screenshot zu groß (max. 5 MB).")},
    {QLatin1StringView("SCREENSHOT_INVALID_MIME"),
     QT_TRANSLATE_NOOP("ServerError", "Nur PNG / JPEG erlaubt.")},
    {QLatin1StringView("SCREENSHOT_DECODE_FAILED"),
     QT_TRANSLATE_NOOP("ServerError", "Screenshot konnte nicht gelesen werden.")},
}};
// clang-format on

QString translated(const char *text)
{
    return QCoreApplication::translate("ServerError", text);
}

} // namespace

QString submissionErrorText(const QString &errorCode, const QString &message)
{
    if (errorCode.isEmpty()) {
        return translated(QT_TRANSLATE_NOOP(
            "ServerError", "Server nicht erreichbar. Bitte später erneut versuchen."));
    }
    for (const auto &[code, text] : kErrorTexts) {
        if (errorCode == code)
            return translated(text);
    }
    return message.isEmpty() ? errorCode : message;
}

} // namespace meridax
