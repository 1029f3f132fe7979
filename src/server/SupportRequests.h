#pragma once

#include <QString>

/// What the user sends to support. Members that may be empty are then left out of the request.
namespace meridax {

/// Who sends.
struct RequestSender
{
    QString machineGuid; ///< the installation
    QString appVersion;
    QString platform; ///< the build constant
    QString operatingSystem;
};

/// What bug reports and feature requests share.
struct ReportRequest : RequestSender
{
    QString title;
    QString description;
    QString category;         ///< the server's English word; may be empty
    QString screenshotBase64; ///< a PNG or JPEG file as it is; may be empty
    QString screenshotMime;   ///< sent with the screenshot only
};

struct BugReportRequest : ReportRequest
{
    QString logsExcerpt; ///< may be empty
};

struct FeatureRequestRequest : ReportRequest
{
};

struct FeedbackRequest : RequestSender
{
    int rating = 0;  ///< 1 to 5
    QString comment; ///< may be empty
};

} // namespace meridax
