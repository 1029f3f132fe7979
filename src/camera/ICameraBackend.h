#pragma once

#include "camera/CameraCapabilities.h"
#include "settings/AppSettings.h"

#include <QString>

#include <memory>

namespace meridax {

/// Which controls a call brings to the camera.
enum class ControlWrites {
    Changed, ///< those that differ from what the driver remembers, if it is asked
    All,     ///< each one: a camera may have forgotten what its driver remembers
};

/// What a camera made of the values it was given.
struct ApplyResult
{
    bool taken = false;    ///< at least one control has its value now
    bool noAnswer = false; ///< the camera stopped to answer, and the rest was not tried

    explicit operator bool() const { return taken; }
    bool operator==(const ApplyResult &) const = default;
};

/// The seam to platform camera control: everything that Qt's camera classes leave out.
/// Implementations hold no state between calls. All calls come on the control thread.
class ICameraBackend
{
public:
    virtual ~ICameraBackend() = default;

    /// Writes exposure, focus, brightness, contrast, saturation and gain to the device that
    /// `settings` names, until the camera stops to answer. `error` may be null; otherwise it is
    /// emptied and receives a text on failure.
    virtual ApplyResult applySettings(const CameraSettings &settings, ControlWrites writes,
                                      QString *error) = 0;

    /// Resets `caps` and fills in every control the device answers for. Returns true if at least
    /// one control is supported. `error` as in applySettings().
    virtual bool queryCameraCapabilities(const CameraSettings &settings, CameraCapabilities *caps,
                                         QString *error) = 0;
};

/// Whether Qt's calls for focus and exposure mode come before the backend's write, or only where
/// the backend took nothing.
enum class ControlOrder { QtFirst, BackendFirst };

/// How the controls of a camera are reached beside Qt's own camera interface.
struct CameraControls
{
    std::shared_ptr<ICameraBackend> backend; ///< null: Qt's interface alone
    ControlOrder order = ControlOrder::QtFirst;
};

/// That of this platform.
CameraControls platformCameraControls();

} // namespace meridax
