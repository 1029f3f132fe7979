#pragma once

#include <QColor>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

/// Readers of single fields: a key that is missing or of another type leaves `field` as it is.
namespace meridax {

inline void read(const QJsonObject &json, QLatin1StringView key, bool &field)
{
    field = json.value(key).toBool(field);
}

inline void read(const QJsonObject &json, QLatin1StringView key, int &field)
{
    field = json.value(key).toInt(field);
}

inline void read(const QJsonObject &json, QLatin1StringView key, double &field)
{
    field = json.value(key).toDouble(field);
}

inline void read(const QJsonObject &json, QLatin1StringView key, QString &field)
{
    field = json.value(key).toString(field);
}

inline void read(const QJsonObject &json, QLatin1StringView key, QColor &field)
{
    const QColor color = QColor::fromString(json.value(key).toString());
    if (color.isValid())
        field = color;
}

} // namespace meridax
