#include "camera/V4l2Control.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace meridax {

namespace {

// A lens that the automatic focus still drives, or a sensor in the middle of a frame, refuses
// values for some frames after the mode has changed.
constexpr int kSettlingTries = 6;
constexpr std::chrono::milliseconds kSettlingPause{15};

/// True if the device may well take the same value a moment later.
bool mayPass(int error)
{
    return error == EACCES || error == EBUSY;
}

} // namespace

V4l2Control::V4l2Control(const V4l2Device &device, V4l2ControlIds ids)
    : m_device(device)
    , m_error(device.query(ids.value, m_control))
{
    if (exists() && ids.mode)
        m_mode = queryMode(device, ids.mode);
}

std::optional<V4l2Control::Mode> V4l2Control::queryMode(const V4l2Device &device, std::uint32_t id)
{
    Mode mode;
    if (device.query(id, mode.control))
        return {};
    if (id != V4L2_CID_EXPOSURE_AUTO)
        return mode;
    // USB cameras have no full automatic exposure: theirs keeps the aperture and moves the time.
    mode.manual = V4L2_EXPOSURE_MANUAL;
    mode.automatic = {V4L2_EXPOSURE_APERTURE_PRIORITY, V4L2_EXPOSURE_AUTO};
    std::erase_if(mode.automatic, [&](int automatic) {
        return !device.hasMenuEntry(id, static_cast<std::uint32_t>(automatic));
    });
    if (mode.automatic.empty())
        return {};
    return mode;
}

std::optional<ControlRange> V4l2Control::range() const
{
    if (m_error)
        return {};
    ControlRange range = m_control.range;
    range.canAuto = m_mode.has_value();
    return range;
}

bool V4l2Control::isAutomatic(const Mode &mode) const
{
    const std::optional<int> now = m_device.value(mode.control);
    return now && std::ranges::find(mode.automatic, *now) != mode.automatic.end();
}

bool V4l2Control::isManual(const Mode &mode) const
{
    // Neither this nor automatic: an exposure with priority of the shutter, which takes no value.
    return m_device.value(mode.control).value_or(mode.manual) == mode.manual;
}

bool V4l2Control::switchTo(const Mode &mode, int value)
{
    if (m_device.setValue(mode.control, value))
        return false;
    // The other mode may have made the control inactive, or active again.
    m_error = m_device.query(m_control.id, m_control);
    return true;
}

V4l2Control::Outcome V4l2Control::apply(const ControlWrite &write, ControlWrites writes)
{
    return write.automatic ? applyAutomatic(writes) : applyValue(write.value, writes);
}

V4l2Control::Outcome V4l2Control::applyAutomatic(ControlWrites writes)
{
    if (!m_mode)
        return {};
    if (writes == ControlWrites::Changed && isAutomatic(*m_mode))
        return {.taken = true};
    // Menus may name modes that are refused.
    const bool taken = std::ranges::any_of(
        m_mode->automatic, [this](int automatic) { return switchTo(*m_mode, automatic); });
    return {.taken = taken, .touched = true};
}

bool V4l2Control::holds(int value) const
{
    // Drivers round to the step, so a value between two steps is never read back as such.
    const std::optional<int> now = m_device.value(m_control);
    return now && (*now == value || (!m_error && *now == snapToStep(value, m_control.range)));
}

V4l2Control::Outcome V4l2Control::applyValue(int value, ControlWrites writes)
{
    // Devices refuse a value while the automatic mode is on, so the mode comes first.
    const bool manual = !m_mode || isManual(*m_mode);
    const bool switched =
        m_mode && (!manual || writes == ControlWrites::All) && switchTo(*m_mode, m_mode->manual);
    if (!manual && !switched)
        return {.touched = true};
    if (!switched && writes == ControlWrites::Changed && holds(value))
        return {.taken = true};
    // Taken over by the automatic mode of another control: a write would be refused.
    if (m_control.isInactive && !switched)
        return {};
    return {.taken = setValue(value, switched) == 0, .touched = true};
}

int V4l2Control::setValue(int value, bool settling)
{
    for (int tries = m_mode && settling ? kSettlingTries : 2;; --tries) {
        const int error = m_control.isInactive ? EACCES : m_device.setValue(m_control, value);
        if (!mayPass(error) || !m_mode || tries == 1)
            return error;
        if (settling)
            std::this_thread::sleep_for(kSettlingPause);
        // Another program may have switched back meanwhile.
        switchTo(*m_mode, m_mode->manual);
    }
}

ControlReadBack V4l2Control::readBack() const
{
    const std::optional<int> value = m_device.value(m_control);
    if (!value)
        return {};
    return {*value, m_mode && isAutomatic(*m_mode) ? 1 : 2};
}

} // namespace meridax
