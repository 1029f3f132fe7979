#include "server/LegalDocumentCache.h"

#include "diagnostics/DataFolder.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace meridax {

namespace {

using namespace Qt::StringLiterals;

QString path()
{
    return dataFilePath("legal-docs.json"_L1);
}

/// The text under `key`, or under the name that older files have for it.
QString text(const QJsonObject &json, QLatin1StringView key, QLatin1StringView oldKey)
{
    const QString value = json.value(key).toString();
    return value.isEmpty() ? json.value(oldKey).toString() : value;
}

} // namespace

bool LegalDocumentCache::load(LegalDocsRecord &record)
{
    QFile file(path());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        return false;
    const QJsonObject json = document.object();
    record.eulaVersion = text(json, "eulaVersion"_L1, "agbVersion"_L1);
    record.eulaMarkdown = text(json, "eulaMarkdown"_L1, "agbMarkdown"_L1);
    record.privacyVersion = json.value("privacyVersion"_L1).toString();
    record.privacyMarkdown = json.value("privacyMarkdown"_L1).toString();
    record.fetchedAt =
        QDateTime::fromString(json.value("fetchedAt"_L1).toString(), Qt::ISODateWithMs);
    return !record.eulaMarkdown.isEmpty() && !record.privacyMarkdown.isEmpty();
}

void LegalDocumentCache::save(const LegalDocsRecord &record)
{
    QFile file(path());
    makeDataFolder();
    const QDateTime fetchedAt =
        record.fetchedAt.isValid() ? record.fetchedAt.toUTC() : QDateTime::currentDateTimeUtc();
    const QJsonObject json{{"eulaVersion"_L1, record.eulaVersion},
                           {"eulaMarkdown"_L1, record.eulaMarkdown},
                           {"privacyVersion"_L1, record.privacyVersion},
                           {"privacyMarkdown"_L1, record.privacyMarkdown},
                           {"fetchedAt"_L1, fetchedAt.toString(Qt::ISODate)}};
    if (!openForOwner(file, QIODevice::WriteOnly | QIODevice::Truncate)) {
        qWarning() << "[LegalDocumentCache] kann legal-docs.json nicht schreiben:"
                   << file.errorString();
        return;
    }
    file.write(QJsonDocument(json).toJson(QJsonDocument::Indented));
}

} // namespace meridax
