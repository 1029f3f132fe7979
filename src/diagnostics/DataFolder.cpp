#include "diagnostics/DataFolder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace meridax {

namespace {

constexpr auto kOwnersFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr auto kOwnersFolder = kOwnersFile | QFileDevice::ExeOwner;

} // namespace

QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString dataFilePath(QLatin1StringView name)
{
    return dataFolder() + u'/' + name;
}

bool makeDataFolder()
{
    const QString folder = dataFolder();
    if (!QDir().mkpath(folder))
        return false;
    // Some file systems know no rights: the folder is of use all the same.
    QFile::setPermissions(folder, kOwnersFolder);
    return true;
}

bool openForOwner(QFile &file, QIODevice::OpenMode mode)
{
    // The first for a new file, from its first moment on; the second for one of an earlier version.
    if (!file.open(mode, kOwnersFile))
        return false;
    file.setPermissions(kOwnersFile);
    return true;
}

} // namespace meridax
