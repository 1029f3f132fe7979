#include "server/MachineGuid.h"

#include "diagnostics/DataFolder.h"

#include <QFile>
#include <QSaveFile>
#include <QUuid>

namespace meridax {

namespace {

constexpr qsizetype kUuidLength = 36;
constexpr auto kOwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString readGuid(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromLatin1(file.read(kUuidLength));
    return QUuid::fromString(text).isNull() ? QString() : text;
}

} // namespace

QString machineGuid()
{
    const QString path = dataFilePath(QLatin1StringView("machine-guid"));
    QString guid = readGuid(path);
    if (!guid.isEmpty())
        return guid;

    guid = QUuid::createUuid().toString(QUuid::WithoutBraces);
    makeDataFolder();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        // Before anything is in it.
        file.setPermissions(kOwnerOnly);
        file.write(guid.toLatin1());
        file.commit();
    }
    return guid;
}

} // namespace meridax
