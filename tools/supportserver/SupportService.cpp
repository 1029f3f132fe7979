#include "SupportService.h"

#include <QFile>
#include <QJsonDocument>
#include <QVersionNumber>

#include <algorithm>
#include <optional>
#include <utility>

namespace supportserver {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

struct SupportService::Topic
{
    QLatin1StringView path;
    Kind kind;
    QLatin1StringView idKey;
    QLatin1StringView idPrefix;
    QLatin1StringView limitCode;
};

namespace {

constexpr QLatin1StringView kPrefix = "/api/license/"_L1;
constexpr QLatin1StringView kLegalPrefix = "legal/"_L1;

Answer json(int status, const QJsonObject &object)
{
    return {status, QJsonDocument(object).toJson(QJsonDocument::Compact)};
}

Answer failure(int status, const QString &code)
{
    return json(status, {{"success"_L1, false},
                         {"errorCode"_L1, code},
                         {"message"_L1, u"Vom Server abgelehnt: "_s + code}});
}

std::optional<QJsonObject> readObject(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const auto document = QJsonDocument::fromJson(file.readAll());
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

} // namespace

SupportService::SupportService(QString contentFolder, bool betaOnly)
    : m_contentFolder(std::move(contentFolder))
    , m_betaOnly(betaOnly)
    , m_requests(60, 1min)
    , m_submissions{RateLimiter(10, 24h), RateLimiter(5, 24h), RateLimiter(1, 24h)}
{
}

Answer SupportService::answer(const Request &request)
{
    static constexpr std::array<Topic, 3> topics{{
        {"report-bug"_L1, Kind::BugReport, "bugId"_L1, "BUG-"_L1,
         "BUG_REPORT_RATE_LIMIT_EXCEEDED"_L1},
        {"feature-request"_L1, Kind::FeatureRequest, "requestId"_L1, "FEATURE-"_L1,
         "FEATURE_REQUEST_RATE_LIMIT_EXCEEDED"_L1},
        {"feedback"_L1, Kind::Feedback, "feedbackId"_L1, "FEEDBACK-"_L1,
         "FEEDBACK_RATE_LIMIT_EXCEEDED"_L1},
    }};
    if (!request.path.startsWith(kPrefix))
        return failure(404, u"NOT_FOUND"_s);
    const QString path = request.path.sliced(kPrefix.size());
    if (path.startsWith(kLegalPrefix) && !request.isPost)
        return legalDocument(path.sliced(kLegalPrefix.size()));
    if (!request.isPost)
        return failure(405, u"METHOD_NOT_ALLOWED"_s);
    if (request.contentType != "application/json")
        return failure(415, u"UNSUPPORTED_MEDIA_TYPE"_s);
    const auto document = QJsonDocument::fromJson(request.body);
    if (!document.isObject())
        return failure(400, u"INVALID_REQUEST"_s);

    const QString machine = document["machineGuid"_L1].toString();
    if (m_requests.isExhausted(machine))
        return failure(429, u"RATE_LIMITED"_s);
    m_requests.count(machine);
    if (path == "update-info"_L1)
        return updateInfo(document.object());
    const auto *const topic = std::ranges::find_if(
        topics, [&](const Topic &candidate) { return path == candidate.path; });
    return topic == topics.end() ? failure(404, u"NOT_FOUND"_s)
                                 : submission(*topic, document.object());
}

Answer SupportService::updateInfo(const QJsonObject &request) const
{
    auto info = readObject(m_contentFolder + "/update-info.json"_L1);
    if (!info)
        return failure(404, u"NOT_FOUND"_s);
    // Unless the file decides, a later version is an update.
    if (!info->contains("updateAvailable"_L1)) {
        const auto latest =
            QVersionNumber::fromString(info->value("latest"_L1)["version"_L1].toString());
        const auto current =
            QVersionNumber::fromString(request.value("currentVersion"_L1).toString());
        info->insert("updateAvailable"_L1, latest > current);
    }
    return json(200, *info);
}

Answer SupportService::legalDocument(const QString &kind) const
{
    // The names of the files, so that no path leads out of the folder.
    if (kind != "eula"_L1 && kind != "privacy"_L1)
        return failure(404, u"NOT_FOUND"_s);
    const auto document = readObject(m_contentFolder + u'/' + kind + ".json"_L1);
    return document ? json(200, *document) : failure(404, u"NOT_FOUND"_s);
}

Answer SupportService::submission(const Topic &topic, const QJsonObject &request)
{
    if (topic.kind == Kind::BugReport && m_betaOnly)
        return failure(403, u"NOT_BETA_TESTER"_s);
    const QString wrong = validate(topic.kind, request);
    if (!wrong.isEmpty())
        return failure(wrong == "SCREENSHOT_TOO_LARGE"_L1 ? 413 : 400, wrong);
    const QString machine = request.value("machineGuid"_L1).toString();
    RateLimiter &limiter = m_submissions[static_cast<std::size_t>(topic.kind)];
    if (limiter.isExhausted(machine))
        return failure(429, topic.limitCode);
    limiter.count(machine);
    return json(200, {{"success"_L1, true},
                      {topic.idKey, topic.idPrefix + QString::number(++m_lastNumber)},
                      {"message"_L1, u"Danke!"_s}});
}

} // namespace supportserver
