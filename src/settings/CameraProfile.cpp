#include "settings/CameraProfile.h"

#include "settings/AppSettings.h"
#include "settings/JsonFields.h"

namespace meridax {

using namespace Qt::StringLiterals;

namespace {

QSize resolutionOf(const CameraSettings &camera)
{
    return {camera.cameraResolutionX, camera.cameraResolutionY};
}

QJsonObject toJson(const QMap<QString, ResolutionCalibration> &calibrations)
{
    QJsonObject json;
    for (auto entry = calibrations.begin(); entry != calibrations.end(); ++entry) {
        json.insert(entry.key(), QJsonObject{{"centerX"_L1, entry->centerX},
                                             {"centerY"_L1, entry->centerY},
                                             {"calibrated"_L1, entry->calibrated}});
    }
    return json;
}

ResolutionCalibration calibrationFromJson(const QJsonObject &json)
{
    ResolutionCalibration calibration;
    read(json, "centerX"_L1, calibration.centerX);
    read(json, "centerY"_L1, calibration.centerY);
    read(json, "calibrated"_L1, calibration.calibrated);
    return calibration;
}

void migrateSingleCenter(CameraProfile &profile)
{
    const QSize resolution(profile.resolutionX, profile.resolutionY);
    const bool hasCenter = profile.calibrated || profile.centerX > 0 || profile.centerY > 0;
    if (!profile.perResolution.isEmpty() || resolution.isEmpty() || !hasCenter)
        return;
    profile.perResolution.insert(resolutionKey(resolution),
                                 {profile.centerX, profile.centerY, profile.calibrated});
}

} // namespace

QString resolutionKey(const QSize &resolution)
{
    return u"%1x%2"_s.arg(resolution.width()).arg(resolution.height());
}

void takeIntoProfile(CameraProfile &profile, const CameraSettings &camera, bool gainSupported)
{
    profile.focusValue = camera.focusValue;
    profile.brightness = camera.brightness;
    profile.contrast = camera.contrast;
    profile.saturation = camera.saturation;
    if (gainSupported)
        profile.gain = camera.gain;
    profile.exposure = camera.captureTimeMs;
    profile.resolutionX = camera.cameraResolutionX;
    profile.resolutionY = camera.cameraResolutionY;
    profile.centerX = camera.centerX;
    profile.centerY = camera.centerY;
    profile.calibrated = camera.calibrated;
    profile.perResolution.insert(resolutionKey(resolutionOf(camera)),
                                 {camera.centerX, camera.centerY, camera.calibrated});
}

void restoreValues(const CameraProfile &profile, CameraSettings &camera)
{
    camera.focusValue = profile.focusValue;
    camera.brightness = profile.brightness;
    camera.contrast = profile.contrast;
    camera.saturation = profile.saturation;
    camera.gain = profile.gain;
    camera.captureTimeMs = profile.exposure;
    if (profile.resolutionX > 0 && profile.resolutionY > 0) {
        camera.cameraResolutionX = profile.resolutionX;
        camera.cameraResolutionY = profile.resolutionY;
    }
}

QJsonObject toJson(const CameraProfile &profile)
{
    return {{"restoreOnConnect"_L1, profile.restoreOnConnect},
            {"restoreCalibration"_L1, profile.restoreCalibration},
            {"focusValue"_L1, profile.focusValue},
            {"brightness"_L1, profile.brightness},
            {"contrast"_L1, profile.contrast},
            {"saturation"_L1, profile.saturation},
            {"gain"_L1, profile.gain},
            {"captureTimeMs"_L1, profile.exposure},
            {"resolutionX"_L1, profile.resolutionX},
            {"resolutionY"_L1, profile.resolutionY},
            {"centerX"_L1, profile.centerX},
            {"centerY"_L1, profile.centerY},
            {"calibrated"_L1, profile.calibrated},
            {"perResolution"_L1, toJson(profile.perResolution)}};
}

CameraProfile cameraProfileFromJson(const QJsonObject &json, const CameraProfile &fallback)
{
    CameraProfile profile = fallback;
    read(json, "restoreOnConnect"_L1, profile.restoreOnConnect);
    read(json, "restoreCalibration"_L1, profile.restoreCalibration);
    read(json, "focusValue"_L1, profile.focusValue);
    read(json, "brightness"_L1, profile.brightness);
    read(json, "contrast"_L1, profile.contrast);
    read(json, "saturation"_L1, profile.saturation);
    read(json, "gain"_L1, profile.gain);
    read(json, "captureTimeMs"_L1, profile.exposure);
    read(json, "resolutionX"_L1, profile.resolutionX);
    read(json, "resolutionY"_L1, profile.resolutionY);
    read(json, "centerX"_L1, profile.centerX);
    read(json, "centerY"_L1, profile.centerY);
    read(json, "calibrated"_L1, profile.calibrated);
    const QJsonObject calibrations = json.value("perResolution"_L1).toObject();
    for (auto entry = calibrations.begin(); entry != calibrations.end(); ++entry)
        profile.perResolution.insert(entry.key(), calibrationFromJson(entry.value().toObject()));
    migrateSingleCenter(profile);
    return profile;
}

} // namespace meridax
