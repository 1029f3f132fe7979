#pragma once

#include "RateLimiter.h"
#include "Validation.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <array>

namespace supportserver {

struct Request
{
    bool isPost = false;
    QString path;
    QByteArray contentType;
    QByteArray body;
};

struct Answer
{
    int status = 200;
    QByteArray body;
    QByteArray contentType = "application/json";
};

/// What the five requests are answered with, free of any network.
class SupportService
{
public:
    /// `contentFolder` holds the replies on updates and legal texts, which are read at each
    /// request. With `betaOnly` nobody may report bugs.
    SupportService(QString contentFolder, bool betaOnly);

    Answer answer(const Request &request);

private:
    struct Topic;

    Answer updateInfo(const QJsonObject &request) const;
    Answer legalDocument(const QString &kind) const;
    Answer submission(const Topic &topic, const QJsonObject &request);

    QString m_contentFolder;
    bool m_betaOnly;
    RateLimiter m_requests; ///< of all kinds
    std::array<RateLimiter, 3> m_submissions;
    int m_lastNumber = 0;
};

} // namespace supportserver
