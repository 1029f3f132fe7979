#include "Validation.h"

#include <QByteArray>
#include <QStringList>

namespace supportserver {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kMaxTitle = 200;
constexpr qsizetype kMaxDescription = 8000;
constexpr qsizetype kMaxComment = 4000;
constexpr qsizetype kMaxScreenshotBytes = 5 * 1024 * 1024;

bool hasText(const QJsonObject &json, QLatin1StringView key, qsizetype longest)
{
    const QString text = json.value(key).toString();
    return !text.trimmed().isEmpty() && text.size() <= longest;
}

QString validateScreenshot(const QJsonObject &report)
{
    if (!report.contains("screenshotBase64"_L1))
        return {};
    const QString mime = report.value("screenshotMime"_L1).toString();
    if (mime != "image/png"_L1 && mime != "image/jpeg"_L1)
        return u"SCREENSHOT_INVALID_MIME"_s;
    const auto decoded =
        QByteArray::fromBase64Encoding(report.value("screenshotBase64"_L1).toString().toLatin1(),
                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return u"SCREENSHOT_DECODE_FAILED"_s;
    if (decoded.decoded.size() > kMaxScreenshotBytes)
        return u"SCREENSHOT_TOO_LARGE"_s;
    const QByteArrayView start =
        mime == "image/png"_L1 ? QByteArrayView("\x89PNG\r\n") : QByteArrayView("\xff\xd8\xff");
    return decoded.decoded.startsWith(start) ? QString() : u"SCREENSHOT_DECODE_FAILED"_s;
}

QString validateReport(const QJsonObject &report, const QStringList &categories)
{
    if (!hasText(report, "title"_L1, kMaxTitle))
        return u"INVALID_TITLE"_s;
    if (!hasText(report, "description"_L1, kMaxDescription))
        return u"INVALID_DESCRIPTION"_s;
    if (report.contains("category"_L1) &&
        !categories.contains(report.value("category"_L1).toString()))
        return u"INVALID_CATEGORY"_s;
    return validateScreenshot(report);
}

QString validateFeedback(const QJsonObject &feedback)
{
    const int rating = feedback.value("rating"_L1).toInt();
    if (rating < 1 || rating > 5)
        return u"INVALID_RATING"_s;
    if (feedback.value("comment"_L1).toString().size() > kMaxComment)
        return u"INVALID_COMMENT"_s;
    return {};
}

} // namespace

QString validate(Kind kind, const QJsonObject &submission)
{
    const QStringList categories{u"Hardware"_s, u"Workflow"_s, u"GUI"_s, u"Other"_s};
    for (const auto key : {"machineGuid"_L1, "appVersion"_L1, "platform"_L1, "operatingSystem"_L1})
        if (submission.value(key).toString().isEmpty())
            return u"INVALID_REQUEST"_s;
    switch (kind) {
    case Kind::BugReport:
        return validateReport(submission, QStringList{u"Crash"_s, u"Installation"_s} + categories);
    case Kind::FeatureRequest:
        return validateReport(submission, categories);
    case Kind::Feedback:
        return validateFeedback(submission);
    }
    return {};
}

} // namespace supportserver
