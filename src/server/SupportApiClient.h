#pragma once

#include "server/SupportReplies.h"
#include "server/SupportRequests.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

#include <functional>

class QJsonObject;
class QNetworkReply;
class QNetworkRequest;

namespace meridax {

enum class Submission;
struct HttpReply;

/// The program's only client of the support server. Each operation starts one request and is
/// answered by exactly one signal, on the thread of this object; there is no queue, no retry and no
/// cache. Requests may be answered in any order: each submission has a number of its own, above 0,
/// which its signal repeats. A reply that is larger than `kMaxReplyBytes` counts as none at all.
class SupportApiClient : public QObject
{
    Q_OBJECT

public:
    using UpdateInfo = meridax::UpdateInfo;
    using LegalDocument = meridax::LegalDocument;

    static constexpr qint64 kMaxReplyBytes = 20LL * 1024 * 1024;

    explicit SupportApiClient(QObject *parent = nullptr);

    /// Prefix of every address, without a trailing slash.
    void setBaseUrl(const QString &url) { m_baseUrl = url; }

    void fetchUpdateInfo(const QString &machineGuid, const QString &productCode,
                         const QString &currentVersion, const QString &platform);
    /// `fullPath` is the whole address; where it is empty the server's address for `kind` is taken.
    void fetchLegalDocument(const QString &kind, const QString &fullPath);
    int submitBugReport(const BugReportRequest &request);
    int submitFeatureRequest(const FeatureRequestRequest &request);
    int submitFeedback(const FeedbackRequest &request);

signals:
    void updateInfoFinished(bool success, const meridax::UpdateInfo &info, const QString &error);
    /// `kind` is the one asked for, whatever the reply says.
    void legalDocumentFinished(bool success, const QString &kind,
                               const meridax::LegalDocument &info, const QString &error);
    void bugReportFinished(bool success, const QString &bugId, const QString &message,
                           const QString &errorCode, int number);
    void featureRequestFinished(bool success, const QString &requestId, const QString &message,
                                const QString &errorCode, int number);
    void feedbackFinished(bool success, const QString &feedbackId, const QString &message,
                          const QString &errorCode, int number);

private:
    using Handler = std::function<void(const HttpReply &)>;
    using SubmissionFinished = void (SupportApiClient::*)(bool, const QString &, const QString &,
                                                          const QString &, int);

    int submit(Submission kind, const QString &path, const QJsonObject &body,
               SubmissionFinished finished);
    void post(const QString &path, const QJsonObject &body, const Handler &handler);
    void handle(QNetworkReply *reply, const Handler &handler);

    QNetworkAccessManager *m_network;
    QString m_baseUrl;
    int m_lastNumber = 0;
};

} // namespace meridax
