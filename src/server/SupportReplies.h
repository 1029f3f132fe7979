#pragma once

#include <QMetaType>
#include <QString>

namespace meridax {

/// One release as the server describes it.
struct UpdateRelease
{
    QString version;
    QString channel; ///< "beta", or anything else for stable
    QString platform;
    QString downloadUrl;
    qint64 fileSize = 0; ///< bytes
    QString sha256;
    QString releaseNotes; ///< Markdown
    QString releasedAt;
    bool valid = false; ///< has a version and an address

    bool operator==(const UpdateRelease &) const = default;
};

/// What the server says of itself; empty where it does not.
struct ServerBuild
{
    QString apiVersion;
    QString commitSha;
    QString buildTime;

    bool operator==(const ServerBuild &) const = default;
};

struct UpdateInfo
{
    UpdateRelease latest; ///< the server's choice for this installation
    UpdateRelease latestStable;
    bool isBetaTester = false;
    bool updateAvailable = false;
    bool bugReportsEnabled = true;
    bool featureRequestsEnabled = true;
    ServerBuild server;

    bool operator==(const UpdateInfo &) const = default;
};

struct LegalDocument
{
    QString kind; ///< "eula" or "privacy"
    QString version;
    QString contentMarkdown;
    QString changeSummary;
    QString effectiveFrom;
    bool valid = false; ///< has a text

    bool operator==(const LegalDocument &) const = default;
};

} // namespace meridax

Q_DECLARE_METATYPE(meridax::UpdateInfo)
Q_DECLARE_METATYPE(meridax::LegalDocument)
