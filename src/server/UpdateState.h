#pragma once

#include "server/SupportReplies.h"

#include <QString>

namespace meridax {

/// The version whose update banner the user closed last; empty where none is known. Kept in
/// "update-state.ini" of the data folder.
QString loadDismissedVersion();
void saveDismissedVersion(const QString &version);

/// Whether there is an update that can be offered: a version and where to get it.
bool offersUpdate(const UpdateInfo &info);

/// Whether the banner announces `info` to a user who closed that of `dismissedVersion`.
bool announcesUpdate(const UpdateInfo &info, const QString &dismissedVersion);

} // namespace meridax
