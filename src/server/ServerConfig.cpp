#include "server/ServerConfig.h"

#include "diagnostics/DataFolder.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace meridax {

namespace {

void readUnlessEmpty(const QJsonObject &json, QLatin1StringView key, QString &field)
{
    const QString value = json.value(key).toString();
    if (!value.isEmpty())
        field = value;
}

} // namespace

ServerConfig ServerConfig::load()
{
    ServerConfig config;
    QFile file(dataFilePath(QLatin1StringView("server.json")));
    if (!file.exists()) {
        qDebug() << "[ServerConfig] keine server.json gefunden, Defaults aktiv:"
                 << config.apiBaseUrl;
        return config;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning() << "[ServerConfig] server.json existiert, ist aber nicht lesbar:"
                   << file.fileName() << "→ Defaults werden verwendet";
        return config;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject()) {
        qWarning() << "[ServerConfig] server.json ist kein gültiges JSON-Objekt:" << file.fileName()
                   << "→ Defaults werden verwendet";
        return config;
    }
    const QJsonObject json = document.object();
    readUnlessEmpty(json, QLatin1StringView("apiBaseUrl"), config.apiBaseUrl);
    readUnlessEmpty(json, QLatin1StringView("downloadsBaseUrl"), config.downloadsBaseUrl);
    readUnlessEmpty(json, QLatin1StringView("productCode"), config.productCode);
    config.loadedFromFile = true;
    qDebug() << "[ServerConfig] geladen aus" << file.fileName()
             << "apiBaseUrl=" << config.apiBaseUrl << "downloadsBaseUrl=" << config.downloadsBaseUrl
             << "productCode=" << config.productCode;
    return config;
}

} // namespace meridax
