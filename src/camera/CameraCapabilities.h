#pragma once

#include "camera/ControlRange.h"
#include "camera/ExposureScale.h"

#include <QMetaType>
#include <QStringList>

namespace meridax {

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
    ExposureScale exposureScale = ExposureScale::Stops;

    bool operator==(const CameraCapabilities &) const = default;
};

/// The log lines that tell `caps` of the camera `cameraName`: a head line and one line a control.
QStringList capabilityLogLines(const QString &cameraName, const CameraCapabilities &caps);

} // namespace meridax

Q_DECLARE_METATYPE(meridax::CameraCapabilities)
