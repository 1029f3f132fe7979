#pragma once

#include "camera/ControlRules.h"
#include "camera/ICameraBackend.h"
#include "camera/V4l2Device.h"

#include <cerrno>
#include <optional>
#include <vector>

namespace meridax {

/// A control and the one that switches its automatic mode, 0 where V4L2 has none.
struct V4l2ControlIds
{
    std::uint32_t value;
    std::uint32_t mode;
};

/// One control of an open device together with its automatic mode. The device has to outlive it.
class V4l2Control
{
public:
    V4l2Control(const V4l2Device &device, V4l2ControlIds ids);

    /// False where the device has no such control, or none that can be written.
    bool exists() const { return m_error != EINVAL; }
    /// Nothing where the device has failed to tell the range.
    std::optional<ControlRange> range() const;

    struct Outcome
    {
        bool taken = false;   ///< the control has the wanted value and mode now
        bool touched = false; ///< something was written to the device
    };

    /// Brings the control to value and mode of `write`.
    Outcome apply(const ControlWrite &write, ControlWrites writes);
    ControlReadBack readBack() const;

private:
    /// The control that switches the mode, the value of it that leaves the control to the user,
    /// and those that may be its automatic mode, the best one first.
    struct Mode
    {
        V4l2Device::Control control;
        int manual = 0;
        std::vector<int> automatic{1};
    };
    static std::optional<Mode> queryMode(const V4l2Device &device, std::uint32_t id);
    bool isAutomatic(const Mode &mode) const;
    bool isManual(const Mode &mode) const;
    bool switchTo(const Mode &mode, int value);

    Outcome applyAutomatic(ControlWrites writes);
    Outcome applyValue(int value, ControlWrites writes);
    bool holds(int value) const;
    int setValue(int value, bool settling);

    const V4l2Device &m_device;
    V4l2Device::Control m_control;
    int m_error = 0; ///< of the last query of m_control
    std::optional<Mode> m_mode;
};

} // namespace meridax
