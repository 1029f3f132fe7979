#include "settings/FocusPreset.h"

namespace meridax {

FocusPreset captureFocusPreset(const QString &name, const CameraSettings &camera, bool withMarkers)
{
    FocusPreset preset{.name = name,
                       .focusValue = camera.focusValue,
                       .hasMarkers = withMarkers,
                       .exposure = camera.captureTimeMs,
                       .brightness = camera.brightness,
                       .contrast = camera.contrast,
                       .saturation = camera.saturation,
                       .gain = camera.gain,
                       .zoom = camera.zoom};
    if (withMarkers) {
        preset.circle1 = camera.circle1;
        preset.circle2 = camera.circle2;
        preset.circle3 = camera.circle3;
        preset.cross = camera.cross;
    }
    return preset;
}

void applyFocusPreset(const FocusPreset &preset, CameraSettings &camera)
{
    camera.focusValue = preset.focusValue;
    camera.captureTimeMs = preset.exposure;
    camera.brightness = preset.brightness;
    camera.contrast = preset.contrast;
    camera.saturation = preset.saturation;
    camera.gain = preset.gain;
    camera.zoom = preset.zoom;
    if (!preset.hasMarkers)
        return;
    camera.circle1 = preset.circle1;
    camera.circle2 = preset.circle2;
    camera.circle3 = preset.circle3;
    camera.cross = preset.cross;
}

bool matchesFocusPreset(const FocusPreset &preset, const CameraSettings &camera)
{
    return captureFocusPreset(preset.name, camera, preset.hasMarkers) == preset;
}

} // namespace meridax
