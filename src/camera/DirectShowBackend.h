#pragma once

#include "camera/ICameraBackend.h"

namespace meridax {

/// Camera controls on Windows. While Qt runs the stream, each call binds a second capture filter on
/// the same device for its control interfaces; see DirectShowControls.h, which does the work.
class DirectShowBackend final : public ICameraBackend
{
public:
    /// Writes all controls whatever `writes` says: nothing tells here what the camera has.
    ApplyResult applySettings(const CameraSettings &settings, ControlWrites writes,
                              QString *error) override;
    bool queryCameraCapabilities(const CameraSettings &settings, CameraCapabilities *caps,
                                 QString *error) override;
};

} // namespace meridax
