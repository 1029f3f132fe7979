#pragma once

#include "camera/ICameraBackend.h"

namespace meridax {

/// Camera controls on Linux, by the kernel's own interface. Each call opens the device for itself,
/// beside the stream, and closes it again.
///
/// The device is the node `cameraId` where it exists, else the one that chooseDevice() gives.
/// Exposure is in tenths of a stop; a value from elsewhere is migrated before it is written, so
/// that the first picture has its light.
///
/// With ControlWrites::Changed a control that has the wanted value and mode already counts as taken
/// and is not written, since each write is a slow transfer to the camera. Most readings are
/// answered by the driver's memory; only exposure time and focus are asked of a USB camera itself.
class V4l2Backend final : public ICameraBackend
{
public:
    ApplyResult applySettings(const CameraSettings &settings, ControlWrites writes,
                              QString *error) override;
    bool queryCameraCapabilities(const CameraSettings &settings, CameraCapabilities *caps,
                                 QString *error) override;
};

} // namespace meridax
