#pragma once

#include "settings/AppSettings.h"

#include <QJsonObject>

/// The settings records as JSON. The writers produce every key of a record. A reader starts from
/// `fallback` and replaces it field by field, so that a key that is missing, of another type, no
/// whole number or out of range where an int is due keeps the fallback. Unknown keys are ignored.
///
/// A colour stands as "#rrggbb", a line style as "solid", "dashed", "dotted" or "dashdot", a
/// crosshair type as "lines" or "cross"; another text keeps the fallback.
namespace meridax {

QJsonObject toJson(const CircleSettings &circle);
QJsonObject toJson(const CrossSettings &cross);
QJsonObject toJson(const BlobSettings &blob);
/// Without the focus range, which belongs to the running camera.
QJsonObject toJson(const CameraSettings &camera);
QJsonObject toJson(const AppSettings &settings);

CircleSettings circleSettingsFromJson(const QJsonObject &json, const CircleSettings &fallback);
CrossSettings crossSettingsFromJson(const QJsonObject &json, const CrossSettings &fallback);
/// Without "minCircularity" its former key "minConvexity" is read.
BlobSettings blobSettingsFromJson(const QJsonObject &json, const BlobSettings &fallback);
/// A negative focus value reads as 0, which is the automatic mode.
CameraSettings cameraSettingsFromJson(const QJsonObject &json, const CameraSettings &fallback);
/// The number of positions is clamped to 3..15. The remembered sections are replaced as a whole:
/// without their key there are none.
AppSettings appSettingsFromJson(const QJsonObject &json, const AppSettings &fallback);

} // namespace meridax
