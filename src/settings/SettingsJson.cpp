#include "settings/SettingsJson.h"

#include "settings/JsonFields.h"

#include <algorithm>
#include <array>

namespace meridax {

namespace {

constexpr std::array lineStyleNames{"solid", "dashed", "dotted", "dashdot"};
constexpr std::array crossTypeNames{"lines", "cross"};

template <std::size_t N>
QString nameOf(const std::array<const char *, N> &names, int index, std::size_t otherwise)
{
    const bool known = index >= 0 && static_cast<std::size_t>(index) < N;
    return QString::fromLatin1(names[known ? static_cast<std::size_t>(index) : otherwise]);
}

template <std::size_t N>
void readName(const QJsonObject &json, QLatin1StringView key,
              const std::array<const char *, N> &names, int &field)
{
    const auto found = std::ranges::find(names, json.value(key).toString(),
                                         [](const char *name) { return QLatin1StringView(name); });
    if (found != names.end())
        field = static_cast<int>(found - names.begin());
}

} // namespace

using namespace Qt::StringLiterals;

QJsonObject toJson(const CircleSettings &circle)
{
    return {{"name"_L1, circle.name},
            {"radius"_L1, circle.radius},
            {"color"_L1, circle.color.name()},
            {"lineWidth"_L1, circle.lineWidth},
            {"lineStyle"_L1, nameOf(lineStyleNames, circle.lineStyle, Solid)},
            {"enabled"_L1, circle.enabled}};
}

CircleSettings circleSettingsFromJson(const QJsonObject &json, const CircleSettings &fallback)
{
    CircleSettings circle = fallback;
    read(json, "name"_L1, circle.name);
    read(json, "radius"_L1, circle.radius);
    read(json, "color"_L1, circle.color);
    read(json, "lineWidth"_L1, circle.lineWidth);
    readName(json, "lineStyle"_L1, lineStyleNames, circle.lineStyle);
    read(json, "enabled"_L1, circle.enabled);
    return circle;
}

QJsonObject toJson(const CrossSettings &cross)
{
    return {{"angle"_L1, cross.angle},
            {"color"_L1, cross.color.name()},
            {"lineWidth"_L1, cross.lineWidth},
            {"lineStyle"_L1, nameOf(lineStyleNames, cross.lineStyle, Solid)},
            {"enabled"_L1, cross.enabled},
            {"type"_L1, nameOf(crossTypeNames, cross.type, FourArms)}};
}

CrossSettings crossSettingsFromJson(const QJsonObject &json, const CrossSettings &fallback)
{
    CrossSettings cross = fallback;
    read(json, "angle"_L1, cross.angle);
    read(json, "color"_L1, cross.color);
    read(json, "lineWidth"_L1, cross.lineWidth);
    readName(json, "lineStyle"_L1, lineStyleNames, cross.lineStyle);
    read(json, "enabled"_L1, cross.enabled);
    readName(json, "type"_L1, crossTypeNames, cross.type);
    return cross;
}

QJsonObject toJson(const BlobSettings &blob)
{
    return {{"minThreshold"_L1, blob.minThreshold},
            {"maxThreshold"_L1, blob.maxThreshold},
            {"filterByArea"_L1, blob.filterByArea},
            {"minArea"_L1, blob.minArea},
            {"maxArea"_L1, blob.maxArea},
            {"filterByCircularity"_L1, blob.filterByCircularity},
            {"minCircularity"_L1, blob.minCircularity},
            {"filterByInertia"_L1, blob.filterByInertia},
            {"minInertiaRatio"_L1, blob.minInertiaRatio}};
}

BlobSettings blobSettingsFromJson(const QJsonObject &json, const BlobSettings &fallback)
{
    BlobSettings blob = fallback;
    read(json, "minThreshold"_L1, blob.minThreshold);
    read(json, "maxThreshold"_L1, blob.maxThreshold);
    read(json, "filterByArea"_L1, blob.filterByArea);
    read(json, "minArea"_L1, blob.minArea);
    read(json, "maxArea"_L1, blob.maxArea);
    read(json, "filterByCircularity"_L1, blob.filterByCircularity);
    if (json.contains("minCircularity"_L1))
        read(json, "minCircularity"_L1, blob.minCircularity);
    else
        read(json, "minConvexity"_L1, blob.minCircularity);
    read(json, "filterByInertia"_L1, blob.filterByInertia);
    read(json, "minInertiaRatio"_L1, blob.minInertiaRatio);
    return blob;
}

QJsonObject toJson(const CameraSettings &camera)
{
    return {{"cameraName"_L1, camera.cameraName},
            {"cameraId"_L1, camera.cameraId},
            {"cameraIndex"_L1, camera.cameraIndex},
            {"cameraResolutionX"_L1, camera.cameraResolutionX},
            {"cameraResolutionY"_L1, camera.cameraResolutionY},
            {"centerX"_L1, camera.centerX},
            {"centerY"_L1, camera.centerY},
            {"centerOffsetX"_L1, camera.centerOffsetX},
            {"centerOffsetY"_L1, camera.centerOffsetY},
            {"centerOffsetEnabled"_L1, camera.centerOffsetEnabled},
            {"zoom"_L1, camera.zoom},
            {"focusValue"_L1, camera.focusValue},
            {"captureTimeMs"_L1, camera.captureTimeMs},
            {"brightness"_L1, camera.brightness},
            {"saturation"_L1, camera.saturation},
            {"contrast"_L1, camera.contrast},
            {"gain"_L1, camera.gain},
            {"locked"_L1, camera.locked},
            {"calibrated"_L1, camera.calibrated},
            {"circle1"_L1, toJson(camera.circle1)},
            {"circle2"_L1, toJson(camera.circle2)},
            {"circle3"_L1, toJson(camera.circle3)},
            {"cross"_L1, toJson(camera.cross)}};
}

CameraSettings cameraSettingsFromJson(const QJsonObject &json, const CameraSettings &fallback)
{
    CameraSettings camera = fallback;
    read(json, "cameraName"_L1, camera.cameraName);
    read(json, "cameraId"_L1, camera.cameraId);
    read(json, "cameraIndex"_L1, camera.cameraIndex);
    read(json, "cameraResolutionX"_L1, camera.cameraResolutionX);
    read(json, "cameraResolutionY"_L1, camera.cameraResolutionY);
    read(json, "centerX"_L1, camera.centerX);
    read(json, "centerY"_L1, camera.centerY);
    read(json, "centerOffsetX"_L1, camera.centerOffsetX);
    read(json, "centerOffsetY"_L1, camera.centerOffsetY);
    read(json, "centerOffsetEnabled"_L1, camera.centerOffsetEnabled);
    read(json, "zoom"_L1, camera.zoom);
    read(json, "focusValue"_L1, camera.focusValue);
    camera.focusValue = std::max(0, camera.focusValue);
    read(json, "captureTimeMs"_L1, camera.captureTimeMs);
    read(json, "brightness"_L1, camera.brightness);
    read(json, "saturation"_L1, camera.saturation);
    read(json, "contrast"_L1, camera.contrast);
    read(json, "gain"_L1, camera.gain);
    read(json, "locked"_L1, camera.locked);
    read(json, "calibrated"_L1, camera.calibrated);
    camera.circle1 = circleSettingsFromJson(json.value("circle1"_L1).toObject(), camera.circle1);
    camera.circle2 = circleSettingsFromJson(json.value("circle2"_L1).toObject(), camera.circle2);
    camera.circle3 = circleSettingsFromJson(json.value("circle3"_L1).toObject(), camera.circle3);
    camera.cross = crossSettingsFromJson(json.value("cross"_L1).toObject(), camera.cross);
    return camera;
}

namespace {

QJsonObject toJson(const QMap<QString, CameraProfile> &profiles)
{
    QJsonObject json;
    for (auto profile = profiles.begin(); profile != profiles.end(); ++profile)
        json.insert(profile.key(), meridax::toJson(profile.value()));
    return json;
}

} // namespace

QJsonObject toJson(const AppSettings &settings)
{
    return {{"language"_L1, settings.language},
            {"darkMode"_L1, settings.darkMode},
            {"calibrationPositions"_L1, settings.calibrationPositions},
            {"calibrationMeasureFrames"_L1, settings.calibrationMeasureFrames},
            {"collapsedSections"_L1, QJsonObject::fromVariantMap(settings.collapsedSections)},
            {"rememberCollapsedSections"_L1, settings.rememberCollapsedSections},
            {"screenshotPath"_L1, settings.screenshotPath},
            {"screenshotIncludeOverlays"_L1, settings.screenshotIncludeOverlays},
            {"focusPresetIncludeMarkers"_L1, settings.focusPresetIncludeMarkers},
            {"focusPresetShowValue"_L1, settings.focusPresetShowValue},
            {"cameraPanelExpandedAtStart"_L1, settings.cameraPanelExpandedAtStart},
            {"overlayPanelExpandedAtStart"_L1, settings.overlayPanelExpandedAtStart},
            {"showTooltips"_L1, settings.showTooltips},
            {"showZoomOverlay"_L1, settings.showZoomOverlay},
            {"windowWidth"_L1, settings.windowWidth},
            {"windowHeight"_L1, settings.windowHeight},
            {"windowX"_L1, settings.windowX},
            {"windowY"_L1, settings.windowY},
            {"windowMaximized"_L1, settings.windowMaximized},
            {"cameraProfiles"_L1, toJson(settings.cameraProfiles)},
            {"camera"_L1, toJson(settings.camera)},
            {"blob"_L1, toJson(settings.blob)}};
}

AppSettings appSettingsFromJson(const QJsonObject &json, const AppSettings &fallback)
{
    AppSettings settings = fallback;
    read(json, "language"_L1, settings.language);
    read(json, "darkMode"_L1, settings.darkMode);
    read(json, "calibrationPositions"_L1, settings.calibrationPositions);
    settings.calibrationPositions = std::clamp(settings.calibrationPositions, 3, 15);
    // Deliberately not clamped: only the setter limits the number of frames.
    read(json, "calibrationMeasureFrames"_L1, settings.calibrationMeasureFrames);
    settings.collapsedSections = json.value("collapsedSections"_L1).toObject().toVariantMap();
    read(json, "rememberCollapsedSections"_L1, settings.rememberCollapsedSections);
    read(json, "screenshotPath"_L1, settings.screenshotPath);
    read(json, "screenshotIncludeOverlays"_L1, settings.screenshotIncludeOverlays);
    read(json, "focusPresetIncludeMarkers"_L1, settings.focusPresetIncludeMarkers);
    read(json, "focusPresetShowValue"_L1, settings.focusPresetShowValue);
    read(json, "cameraPanelExpandedAtStart"_L1, settings.cameraPanelExpandedAtStart);
    read(json, "overlayPanelExpandedAtStart"_L1, settings.overlayPanelExpandedAtStart);
    read(json, "showTooltips"_L1, settings.showTooltips);
    read(json, "showZoomOverlay"_L1, settings.showZoomOverlay);
    read(json, "windowWidth"_L1, settings.windowWidth);
    read(json, "windowHeight"_L1, settings.windowHeight);
    read(json, "windowX"_L1, settings.windowX);
    read(json, "windowY"_L1, settings.windowY);
    read(json, "windowMaximized"_L1, settings.windowMaximized);
    const QJsonObject profiles = json.value("cameraProfiles"_L1).toObject();
    for (auto profile = profiles.begin(); profile != profiles.end(); ++profile) {
        settings.cameraProfiles.insert(
            profile.key(), cameraProfileFromJson(profile.value().toObject(), CameraProfile()));
    }
    settings.camera = cameraSettingsFromJson(json.value("camera"_L1).toObject(), settings.camera);
    settings.blob = blobSettingsFromJson(json.value("blob"_L1).toObject(), settings.blob);
    return settings;
}

} // namespace meridax
