#pragma once

#include <QJsonObject>
#include <QMap>
#include <QSize>
#include <QString>

namespace meridax {

struct CameraSettings;

/// The image centre found for one resolution, in pixels of that resolution.
struct ResolutionCalibration
{
    double centerX = 0.0;
    double centerY = 0.0;
    bool calibrated = false;

    bool operator==(const ResolutionCalibration &) const = default;
};

/// What comes back when a camera connects: its values, and per resolution its centre. The values
/// are in the camera's own units.
struct CameraProfile
{
    bool restoreOnConnect = false;
    bool restoreCalibration = false;
    int focusValue = 0;
    int brightness = 0;
    int contrast = 50;
    int saturation = 50;
    int gain = 0;
    int exposure = 0;
    int resolutionX = 0;
    int resolutionY = 0;
    double centerX = 0.0;
    double centerY = 0.0;
    bool calibrated = false;
    QMap<QString, ResolutionCalibration> perResolution; ///< by resolutionKey()

    bool operator==(const CameraProfile &) const = default;
};

/// "1280x720"
QString resolutionKey(const QSize &resolution);

/// Takes values, resolution, centre and state of calibration from `camera`; the flags stay. The
/// gain stays too unless the camera has one.
void takeIntoProfile(CameraProfile &profile, const CameraSettings &camera, bool gainSupported);
/// Gives the values, and the resolution if the profile holds one, to `camera`. Not the centre.
void restoreValues(const CameraProfile &profile, CameraSettings &camera);

QJsonObject toJson(const CameraProfile &profile);
/// A profile from before centres were kept per resolution keeps its centre, under its resolution.
CameraProfile cameraProfileFromJson(const QJsonObject &json, const CameraProfile &fallback);

} // namespace meridax
