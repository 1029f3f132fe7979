#pragma once

#include <QStandardPaths>
#include <QString>

namespace meridax {

/// Full path of the file `name` directly in the user's data folder of the application.
inline QString dataFilePath(QLatin1StringView name)
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u'/' + name;
}

} // namespace meridax
