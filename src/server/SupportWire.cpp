#include "server/SupportWire.h"

#include <QDebug>
#include <QJsonDocument>

#include <array>

namespace meridax {

namespace {

using namespace Qt::StringLiterals;

void insertUnlessEmpty(QJsonObject &json, QLatin1StringView key, const QString &value)
{
    if (!value.isEmpty())
        json.insert(key, value);
}

QJsonObject senderToJson(const RequestSender &sender)
{
    return {{"machineGuid"_L1, sender.machineGuid},
            {"appVersion"_L1, sender.appVersion},
            {"platform"_L1, sender.platform},
            {"operatingSystem"_L1, sender.operatingSystem}};
}

QJsonObject reportToJson(const ReportRequest &report)
{
    QJsonObject json = senderToJson(report);
    json.insert("title"_L1, report.title);
    json.insert("description"_L1, report.description);
    insertUnlessEmpty(json, "category"_L1, report.category);
    if (!report.screenshotBase64.isEmpty()) {
        json.insert("screenshotBase64"_L1, report.screenshotBase64);
        json.insert("screenshotMime"_L1, report.screenshotMime);
    }
    return json;
}

/// A size in bytes; out of the type's range means that the server does not know it.
qint64 byteCount(const QJsonValue &value)
{
    constexpr double limit = 9.2e18;
    const double number = value.toDouble();
    return number > -limit && number < limit ? static_cast<qint64>(number) : 0;
}

UpdateRelease releaseFromJson(const QJsonObject &json)
{
    UpdateRelease release;
    release.version = json.value("version"_L1).toString();
    release.channel = json.value("channel"_L1).toString();
    release.platform = json.value("platform"_L1).toString();
    release.downloadUrl = json.value("downloadUrl"_L1).toString();
    release.fileSize = byteCount(json.value("fileSize"_L1));
    release.sha256 = json.value("sha256"_L1).toString();
    release.releaseNotes = json.value("releaseNotes"_L1).toString();
    release.releasedAt = json.value("releasedAt"_L1).toString();
    release.valid = !json.isEmpty() && !release.version.isEmpty() && !release.downloadUrl.isEmpty();
    return release;
}

ServerBuild serverFromJson(const QJsonObject &json)
{
    return {json.value("apiVersion"_L1).toString(), json.value("commitSha"_L1).toString(),
            json.value("buildTime"_L1).toString()};
}

/// What is particular to a kind of submission: the key of the new record's id, and the codes that
/// a status stands for.
struct SubmissionRules
{
    QLatin1StringView idKey;
    QLatin1StringView tooManyRequests;
    QLatin1StringView forbidden;
};

const SubmissionRules &rulesOf(Submission kind)
{
    static constexpr std::array<SubmissionRules, 3> rules{{
        {"bugId"_L1, "BUG_REPORT_RATE_LIMIT_EXCEEDED"_L1, "NOT_BETA_TESTER"_L1},
        {"requestId"_L1, "FEATURE_REQUEST_RATE_LIMIT_EXCEEDED"_L1, {}},
        {"feedbackId"_L1, "FEEDBACK_RATE_LIMIT_EXCEEDED"_L1, {}},
    }};
    return rules[static_cast<std::size_t>(kind)];
}

QString codeOfStatus(const SubmissionRules &rules, int status)
{
    switch (status) {
    case 429:
        return rules.tooManyRequests;
    case 403:
        return rules.forbidden;
    default:
        return {};
    }
}

/// The beginning, without quotation marks, so that the log's own cleaning finds the members it
/// looks for. On one line and without control characters: whoever answers must not write lines of
/// the log or command a terminal. White space stays that, since JSON may have it around its colons.
QString loggedBody(const HttpReply &reply)
{
    constexpr qsizetype limit = 65536;
    const QString body = QString::fromUtf8(reply.body.first(qMin(reply.body.size(), limit)));
    QString logged;
    logged.reserve(body.size());
    for (const QChar c : body) {
        if (c == u'\n' || c == u'\r' || c == u'\t')
            logged += u' ';
        else if (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
                 c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            logged += u"\\u%1"_s.arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            logged += c;
    }
    return logged;
}

} // namespace

QJsonObject toJson(const BugReportRequest &request)
{
    QJsonObject json = reportToJson(request);
    insertUnlessEmpty(json, "logsExcerpt"_L1, request.logsExcerpt);
    return json;
}

QJsonObject toJson(const FeatureRequestRequest &request)
{
    return reportToJson(request);
}

QJsonObject toJson(const FeedbackRequest &request)
{
    QJsonObject json = senderToJson(request);
    json.insert("rating"_L1, request.rating);
    insertUnlessEmpty(json, "comment"_L1, request.comment);
    return json;
}

QJsonObject updateInfoRequest(const QString &machineGuid, const QString &productCode,
                              const QString &currentVersion, const QString &platform)
{
    return {{"machineGuid"_L1, machineGuid},
            {"productCode"_L1, productCode},
            {"currentVersion"_L1, currentVersion},
            {"platform"_L1, platform}};
}

UpdateInfo updateInfoFromJson(const QJsonObject &json)
{
    UpdateInfo info;
    info.latest = releaseFromJson(json.value("latest"_L1).toObject());
    info.latestStable = releaseFromJson(json.value("latestStable"_L1).toObject());
    info.isBetaTester = json.value("isBetaTester"_L1).toBool(info.isBetaTester);
    info.updateAvailable = json.value("updateAvailable"_L1).toBool(info.updateAvailable);
    info.bugReportsEnabled = json.value("bugReportsEnabled"_L1).toBool(info.bugReportsEnabled);
    info.featureRequestsEnabled =
        json.value("featureRequestsEnabled"_L1).toBool(info.featureRequestsEnabled);
    info.server = serverFromJson(json.value("server"_L1).toObject());
    return info;
}

LegalDocument legalDocumentFromJson(const QJsonObject &json)
{
    LegalDocument document;
    document.kind = json.value("kind"_L1).toString();
    document.version = json.value("version"_L1).toString();
    document.contentMarkdown = json.value("contentMarkdown"_L1).toString();
    document.changeSummary = json.value("changeSummary"_L1).toString();
    document.effectiveFrom = json.value("effectiveFrom"_L1).toString();
    document.valid = !document.contentMarkdown.isEmpty();
    return document;
}

SubmissionReply readSubmissionReply(Submission kind, const HttpReply &reply)
{
    SubmissionReply result;
    if (reply.unreachable()) {
        result.message = reply.error;
        return result;
    }
    const SubmissionRules &rules = rulesOf(kind);
    const QJsonObject json = QJsonDocument::fromJson(reply.body).object();
    result.success = json.value("success"_L1).toBool(false);
    result.id = json.value(rules.idKey).toString();
    result.message = json.value("message"_L1).toString();
    result.errorCode = json.value("errorCode"_L1).toString();
    if (!result.success && result.errorCode.isEmpty())
        result.errorCode = codeOfStatus(rules, reply.status);
    return result;
}

InfoReply<UpdateInfo> readUpdateInfoReply(const HttpReply &reply)
{
    if (reply.unreachable())
        return {false, {}, reply.error};
    qDebug().noquote() << "[UpdateInfo] HTTP" << reply.status << "Antwort:" << loggedBody(reply);
    const QJsonDocument document = QJsonDocument::fromJson(reply.body);
    if (!document.isObject())
        return {false, {}, u"Ungültige JSON-Antwort von /update-info"_s};
    return {true, updateInfoFromJson(document.object()), {}};
}

InfoReply<LegalDocument> readLegalDocumentReply(const QString &kind, const HttpReply &reply)
{
    constexpr int firstErrorStatus = 400;
    if (reply.unreachable())
        return {false, {}, reply.error};
    if (reply.status >= firstErrorStatus) {
        qWarning().noquote() << "[LegalDoc]" << kind << "HTTP" << reply.status << loggedBody(reply);
        return {false, {}, u"HTTP %1"_s.arg(reply.status)};
    }
    LegalDocument document = legalDocumentFromJson(QJsonDocument::fromJson(reply.body).object());
    if (!document.valid)
        return {false, {}, u"Leerer Markdown-Inhalt"_s};
    return {true, std::move(document), {}};
}

} // namespace meridax
