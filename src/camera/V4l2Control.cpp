#include "camera/V4l2Control.h"

namespace meridax {

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
    for (const int automatic : {V4L2_EXPOSURE_APERTURE_PRIORITY, V4L2_EXPOSURE_AUTO}) {
        if (device.hasMenuEntry(id, static_cast<std::uint32_t>(automatic))) {
            mode.automatic = automatic;
            return mode;
        }
    }
    return {};
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
    if (!now)
        return false;
    if (mode.control.id != V4L2_CID_EXPOSURE_AUTO)
        return *now != 0;
    return *now == V4L2_EXPOSURE_AUTO || *now == V4L2_EXPOSURE_APERTURE_PRIORITY;
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
    return {.taken = switchTo(*m_mode, m_mode->automatic), .touched = true};
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
    const bool automatic = m_mode && isAutomatic(*m_mode);
    const bool switched =
        m_mode && (automatic || writes == ControlWrites::All) && switchTo(*m_mode, m_mode->manual);
    if (automatic && !switched)
        return {.touched = true};
    if (!switched && writes == ControlWrites::Changed && holds(value))
        return {.taken = true};
    // Taken over by the automatic mode of another control: a write would be refused.
    if (m_control.isInactive)
        return {.touched = switched};

    int error = m_device.setValue(m_control, value);
    if (error && m_mode) {
        // Some devices refuse the first value after a switch, and another program may have
        // switched back meanwhile.
        switchTo(*m_mode, m_mode->manual);
        error = m_device.setValue(m_control, value);
    }
    return {.taken = error == 0, .touched = true};
}

ControlReadBack V4l2Control::readBack() const
{
    const std::optional<int> value = m_device.value(m_control);
    if (!value)
        return {};
    return {*value, m_mode && isAutomatic(*m_mode) ? 1 : 2};
}

} // namespace meridax
