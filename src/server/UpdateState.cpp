#include "server/UpdateState.h"

#include "diagnostics/DataFolder.h"

#include <QSettings>

namespace meridax {

namespace {

constexpr QLatin1StringView kDismissedVersion("dismissedVersion");

QString path()
{
    return dataFilePath(QLatin1StringView("update-state.ini"));
}

} // namespace

QString loadDismissedVersion()
{
    return QSettings(path(), QSettings::IniFormat).value(kDismissedVersion).toString();
}

void saveDismissedVersion(const QString &version)
{
    QSettings(path(), QSettings::IniFormat).setValue(kDismissedVersion, version);
}

bool offersUpdate(const UpdateInfo &info)
{
    return info.updateAvailable && info.latest.valid;
}

bool announcesUpdate(const UpdateInfo &info, const QString &dismissedVersion)
{
    return offersUpdate(info) &&
           (dismissedVersion.isEmpty() || dismissedVersion != info.latest.version);
}

} // namespace meridax
