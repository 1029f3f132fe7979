#pragma once

#include <QJsonObject>
#include <QString>

namespace supportserver {

enum class Kind { BugReport, FeatureRequest, Feedback };

/// The error code of the first thing wrong with a submission; empty when it is fine.
QString validate(Kind kind, const QJsonObject &submission);

} // namespace supportserver
