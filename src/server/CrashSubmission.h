#pragma once

#include <QString>

/// How the report that a crash left behind becomes a bug report.
namespace meridax {

/// The exception's name and the module, as far as `report` tells them; at most 200 characters.
QString crashTitle(const QString &report);

/// The user's own words, if there are any, and the report; at most 8000 characters.
QString crashDescription(const QString &additionalDescription, const QString &report);

} // namespace meridax
