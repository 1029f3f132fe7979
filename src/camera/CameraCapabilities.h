#pragma once

#include <QMetaType>
#include <QStringList>

namespace meridax {

/// Range of one hardware control in the hardware's own units.
/// A control with `canAuto` is in automatic mode when its value is at or below `min`.
struct ControlRange
{
    int min = 0;
    int max = 0;
    int step = 1; ///< smallest change; never below 1 once a backend has filled it
    int defaultValue = 0;
    bool supported = false; ///< false: no other field has a meaning
    bool canAuto = false;

    bool operator==(const ControlRange &) const = default;
};

/// What a camera's hardware can do, one record a control.
struct CameraCapabilities
{
    ControlRange exposure;
    ControlRange focus;
    ControlRange brightness;
    ControlRange contrast;
    ControlRange saturation;
    ControlRange gain;
    ControlRange gamma;
    ControlRange whiteBalance;

    bool operator==(const CameraCapabilities &) const = default;
};

/// The log lines that tell `caps` of the camera `cameraName`: a head line and one line a control.
QStringList capabilityLogLines(const QString &cameraName, const CameraCapabilities &caps);

} // namespace meridax

Q_DECLARE_METATYPE(meridax::CameraCapabilities)
