#pragma once

#include "server/SupportReplies.h"
#include "server/SupportRequests.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// The wire format of the support server, free of any network: requests to JSON, replies to
/// records.
namespace meridax {

/// A reply as it came in. `status` is 0 where there was none, and then `error` says why.
struct HttpReply
{
    int status = 0;
    bool networkError = false;
    QString error;
    QByteArray body;

    /// No word of the server's arrived.
    bool unreachable() const { return status == 0 && networkError; }
};

QJsonObject toJson(const BugReportRequest &request);
QJsonObject toJson(const FeatureRequestRequest &request);
QJsonObject toJson(const FeedbackRequest &request);
QJsonObject updateInfoRequest(const QString &machineGuid, const QString &productCode,
                              const QString &currentVersion, const QString &platform);

UpdateInfo updateInfoFromJson(const QJsonObject &json);
LegalDocument legalDocumentFromJson(const QJsonObject &json);

enum class Submission { BugReport, FeatureRequest, Feedback };

struct SubmissionReply
{
    bool success = false;
    QString id;
    QString message;   ///< the server's, or the network's without a reply
    QString errorCode; ///< empty without a reply; says nothing on success
};

/// Only "success" in the body decides; the status fills in the code of a failure that has none.
SubmissionReply readSubmissionReply(Submission kind, const HttpReply &reply);

template <typename Info>
struct InfoReply
{
    bool success = false;
    Info info;
    QString error; ///< empty on success
};

/// Any JSON object is a success, whatever the status.
InfoReply<UpdateInfo> readUpdateInfoReply(const HttpReply &reply);
/// `kind` is the one asked for; it names the reply in the log.
InfoReply<LegalDocument> readLegalDocumentReply(const QString &kind, const HttpReply &reply);

} // namespace meridax
