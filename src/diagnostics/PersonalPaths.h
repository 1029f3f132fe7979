#pragma once

#include <QString>
#include <QStringList>

namespace meridax {

/// What tells in a path who the user is.
struct PersonalPaths
{
    QStringList homes; ///< full paths
    QStringList names; ///< of the user's account

    /// Those of the user of this process.
    static PersonalPaths ofUser();
};

/// A copy in which home folders are "~" and a user's name that is a part of another path is
/// "<user>", also where the path is an address ("file:///...") or has backslashes. For texts that
/// leave the computer: the log at home keeps its paths, which its owner may need.
QString withoutPersonalPaths(const QString &text, const PersonalPaths &paths);

} // namespace meridax
