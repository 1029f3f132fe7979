#pragma once

#include "settings/AppSettings.h"

#include <QString>

namespace meridax {

/// A named snapshot of focus and camera values, with or without circles and crosshair. Units and
/// frame are those of CameraSettings. Presets live in memory only.
struct FocusPreset
{
    QString name;
    int focusValue = 0;
    bool hasMarkers = false;
    CircleSettings circle1{}; ///< the circles and the crosshair count only with `hasMarkers`
    CircleSettings circle2{};
    CircleSettings circle3{};
    CrossSettings cross{};
    int exposure = 0;
    int brightness = 0;
    int contrast = 0;
    int saturation = 0;
    int gain = 0;
    double zoom = 1.0;

    bool operator==(const FocusPreset &) const = default;
};

/// The values of `camera` as a preset, circles and crosshair only with `withMarkers`.
FocusPreset captureFocusPreset(const QString &name, const CameraSettings &camera, bool withMarkers);

/// Writes the preset's values into `camera` as they stand, without a look at any range. A preset
/// without markers leaves circles and crosshair alone.
void applyFocusPreset(const FocusPreset &preset, CameraSettings &camera);

/// Whether `camera` has every value that the preset holds.
bool matchesFocusPreset(const FocusPreset &preset, const CameraSettings &camera);

} // namespace meridax
