#pragma once

#include "camera/ControlRange.h"

#include <linux/videodev2.h>

#include <QString>

#include <cstdint>
#include <optional>

namespace meridax {

/// One open V4L2 capture node with the calls that its controls need, beside whoever streams from
/// it. Controls are named by their V4L2_CID_* id, never by their name, which drivers change.
/// Results called `int` are 0 or an errno.
///
/// A camera that hangs keeps each request for seconds, so after the first one that it has not
/// answered all others fail at once: lost() tells the reason.
class V4l2Device
{
public:
    /// Opens the node `path`; error() tells the outcome. A node that captures no video is ENODEV.
    explicit V4l2Device(const QString &path);
    ~V4l2Device();
    V4l2Device(V4l2Device &&other) noexcept;
    V4l2Device &operator=(V4l2Device &&) = delete;

    int error() const { return m_error; }
    /// 0, or the errno with which the camera stopped to answer.
    int lost() const { return m_lost; }
    /// The name that the driver gives the camera.
    const QString &name() const { return m_name; }

    /// What the driver says of one control.
    struct Control
    {
        std::uint32_t id = 0;
        ControlRange range; ///< canAuto is left open: it depends on another control
        bool is64Bit = false;
        bool isInactive = false; ///< some automatic mode has taken it over at present
    };

    /// Describes the control `id` in `control` if it is a number that can be written. A control
    /// that is missing, disabled, read-only or of another kind is EINVAL; of `control` only the id
    /// is valid then.
    int query(std::uint32_t id, Control &control) const;
    /// True if the menu `id` has an entry `index`: menus have holes.
    bool hasMenuEntry(std::uint32_t id, std::uint32_t index) const;

    std::optional<int> value(const Control &control) const;
    int setValue(const Control &control, int value) const;

private:
    int request(unsigned long request, void *argument) const;

    int m_fd = -1;
    int m_error = 0;
    mutable int m_lost = 0;
    QString m_name;
};

} // namespace meridax
