#include "server/SupportApiClient.h"

#include "BuildInfo.h"
#include "server/SupportWire.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSysInfo>
#include <QUrl>

#include <chrono>
#include <memory>

namespace meridax {

namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

constexpr auto kTransferTimeout = 10'000ms;

const QByteArray &userAgent()
{
    static const QByteArray value =
        u"Meridax/%1 (Qt; %2)"_s.arg(build::version(), QSysInfo::prettyProductName()).toUtf8();
    return value;
}

QNetworkRequest requestTo(const QString &address)
{
    QNetworkRequest request{QUrl(address)};
    request.setRawHeader("User-Agent"_ba, userAgent());
    // Otherwise Qt tells the languages of the system.
    request.setRawHeader("Accept-Language"_ba, "*"_ba);
    request.setTransferTimeout(kTransferTimeout);
    return request;
}

/// Takes in what has arrived of a reply and ends it when it grows beyond the limit.
class Intake
{
public:
    void read(QNetworkReply &reply)
    {
        // An aborted reply is closed.
        if (m_refused || !reply.isOpen())
            return;
        m_body += reply.readAll();
        if (m_body.size() <= SupportApiClient::kMaxReplyBytes)
            return;
        m_refused = true;
        m_body.clear();
        reply.abort();
    }

    HttpReply finish(QNetworkReply &reply)
    {
        read(reply);
        if (m_refused)
            return {0, true, u"Antwort zu groß"_s, {}};
        return {reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
                reply.error() != QNetworkReply::NoError, reply.errorString(), std::move(m_body)};
    }

private:
    QByteArray m_body;
    bool m_refused = false;
};

} // namespace

SupportApiClient::SupportApiClient(QObject *parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
{
}

void SupportApiClient::fetchUpdateInfo(const QString &machineGuid, const QString &productCode,
                                       const QString &currentVersion, const QString &platform)
{
    post(u"/api/license/update-info"_s,
         updateInfoRequest(machineGuid, productCode, currentVersion, platform),
         [this](const HttpReply &reply) {
             const auto [success, info, error] = readUpdateInfoReply(reply);
             emit updateInfoFinished(success, info, error);
         });
}

void SupportApiClient::fetchLegalDocument(const QString &kind, const QString &fullPath)
{
    QString address = fullPath;
    if (address.isEmpty()) {
        const QString name = QString::fromLatin1(QUrl::toPercentEncoding(kind));
        address = m_baseUrl + "/api/license/legal/"_L1 + name;
    }
    handle(m_network->get(requestTo(address)), [this, kind](const HttpReply &reply) {
        const auto [success, document, error] = readLegalDocumentReply(kind, reply);
        emit legalDocumentFinished(success, kind, document, error);
    });
}

int SupportApiClient::submitBugReport(const BugReportRequest &request)
{
    return submit(Submission::BugReport, u"/api/license/report-bug"_s, toJson(request),
                  &SupportApiClient::bugReportFinished);
}

int SupportApiClient::submitFeatureRequest(const FeatureRequestRequest &request)
{
    return submit(Submission::FeatureRequest, u"/api/license/feature-request"_s, toJson(request),
                  &SupportApiClient::featureRequestFinished);
}

int SupportApiClient::submitFeedback(const FeedbackRequest &request)
{
    return submit(Submission::Feedback, u"/api/license/feedback"_s, toJson(request),
                  &SupportApiClient::feedbackFinished);
}

int SupportApiClient::submit(Submission kind, const QString &path, const QJsonObject &body,
                             SubmissionFinished finished)
{
    const int number = ++m_lastNumber;
    post(path, body, [this, kind, finished, number](const HttpReply &reply) {
        const SubmissionReply result = readSubmissionReply(kind, reply);
        emit(this->*finished)(result.success, result.id, result.message, result.errorCode, number);
    });
    return number;
}

void SupportApiClient::post(const QString &path, const QJsonObject &body, const Handler &handler)
{
    QNetworkRequest request = requestTo(m_baseUrl + path);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    handle(m_network->post(request, QJsonDocument(body).toJson(QJsonDocument::Compact)), handler);
}

void SupportApiClient::handle(QNetworkReply *reply, const Handler &handler)
{
    const auto intake = std::make_shared<Intake>();
    connect(reply, &QNetworkReply::readyRead, this, [reply, intake] { intake->read(*reply); });
    connect(reply, &QNetworkReply::finished, this, [reply, intake, handler] {
        reply->deleteLater();
        handler(intake->finish(*reply));
    });
}

} // namespace meridax
