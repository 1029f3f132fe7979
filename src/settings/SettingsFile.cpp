#include "settings/SettingsFile.h"

#include "diagnostics/DataFolder.h"
#include "settings/SettingsJson.h"

#include <QFile>
#include <QJsonDocument>

namespace meridax {

QString settingsFilePath()
{
    return dataFilePath(QLatin1StringView("appsettings.json"));
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
    if (!makeDataFolder() || !openForOwner(file, QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray text = QJsonDocument(toJson(settings)).toJson(QJsonDocument::Indented);
    // A full disk shows in the write when the text is longer than the buffer, otherwise in closing,
    // which flushes the buffer and forgets the error of the write.
    const bool written = file.write(text) == text.size();
    file.close();
    return written && file.error() == QFileDevice::NoError;
}

} // namespace meridax
