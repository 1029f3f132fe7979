#include "settings/SettingsFile.h"

#include "settings/SettingsJson.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

namespace meridax {

QString settingsFilePath()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return folder.filePath(QStringLiteral("appsettings.json"));
}

AppSettings loadSettings()
{
    AppSettings defaults;
    QFile file(settingsFilePath());
    if (!file.open(QIODevice::ReadOnly))
        return defaults;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    return document.isObject() ? appSettingsFromJson(document.object(), defaults) : defaults;
}

bool saveSettings(const AppSettings &settings)
{
    QFile file(settingsFilePath());
    if (!QDir().mkpath(QFileInfo(file).absolutePath()))
        return false;
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray text = QJsonDocument(toJson(settings)).toJson(QJsonDocument::Indented);
    // A full disk shows in the write when the text is longer than the buffer, otherwise in closing,
    // which flushes the buffer and forgets the error of the write.
    const bool written = file.write(text) == text.size();
    file.close();
    return written && file.error() == QFileDevice::NoError;
}

} // namespace meridax
