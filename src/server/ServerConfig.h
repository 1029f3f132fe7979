#pragma once

#include <QString>

namespace meridax {

/// Which server the program talks to. The addresses are prefixes without a trailing slash, taken as
/// they stand: nothing checks or completes what the file says.
struct ServerConfig
{
    QString apiBaseUrl = QStringLiteral("https://api.tarnwick-optics.example");
    /// Kept for installations that say it; no request uses it, since the server sends download
    /// addresses whole.
    QString downloadsBaseUrl = QStringLiteral("https://downloads.tarnwick-optics.example");
    QString productCode = QStringLiteral("MERIDAX");
    bool loadedFromFile = false; ///< a valid server.json was taken over

    /// The defaults with what "server.json" of the data folder says instead. Never fails: a file
    /// that is missing or broken leaves the defaults and a line in the log.
    static ServerConfig load();
};

} // namespace meridax
