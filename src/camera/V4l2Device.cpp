#include "camera/V4l2Device.h"
#include "camera/ControlRules.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <utility>

namespace meridax {

namespace {

bool capturesVideo(const v4l2_capability &capability)
{
    // What this node can do, where the driver tells it apart from the whole device.
    const std::uint32_t abilities = capability.capabilities & V4L2_CAP_DEVICE_CAPS
                                        ? capability.device_caps
                                        : capability.capabilities;
    return abilities & (V4L2_CAP_VIDEO_CAPTURE | V4L2_CAP_VIDEO_CAPTURE_MPLANE);
}

bool isWritableNumber(const v4l2_query_ext_ctrl &query)
{
    switch (query.type) {
    case V4L2_CTRL_TYPE_INTEGER:
    case V4L2_CTRL_TYPE_INTEGER64:
    case V4L2_CTRL_TYPE_BOOLEAN:
    case V4L2_CTRL_TYPE_MENU:
        return !(query.flags & (V4L2_CTRL_FLAG_DISABLED | V4L2_CTRL_FLAG_READ_ONLY));
    default:
        return false;
    }
}

/// True if the error means that the camera itself has not answered, in time or at all. A control
/// whose range cannot be read may be broken on its own.
bool meansNoAnswer(int error, unsigned long request)
{
    switch (error) {
    case EIO:
        return request != VIDIOC_QUERY_EXT_CTRL;
    case ETIMEDOUT:
    case EPROTO:
    case ENODEV:
        return true;
    default:
        return false;
    }
}

/// A list of one control for VIDIOC_[GS]_EXT_CTRLS, which also reaches 64-bit controls.
v4l2_ext_controls listOf(v4l2_ext_control &entry)
{
    v4l2_ext_controls list{};
    list.which = V4L2_CTRL_WHICH_CUR_VAL;
    list.count = 1;
    list.controls = &entry;
    return list;
}

} // namespace

V4l2Device::V4l2Device(const QString &path)
    : m_fd(::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC))
    , m_error(m_fd < 0 ? errno : 0)
{
    if (m_error)
        return;
    v4l2_capability capability{};
    m_error = request(VIDIOC_QUERYCAP, &capability);
    if (!m_error && !capturesVideo(capability))
        m_error = ENODEV;
    const auto *const card = reinterpret_cast<const char *>(capability.card);
    m_name =
        QString::fromUtf8(card, static_cast<qsizetype>(qstrnlen(card, sizeof capability.card)));
}

V4l2Device::~V4l2Device()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

V4l2Device::V4l2Device(V4l2Device &&other) noexcept
    : m_fd(std::exchange(other.m_fd, -1))
    , m_error(other.m_error)
    , m_lost(other.m_lost)
    , m_name(std::move(other.m_name))
{
}

int V4l2Device::request(unsigned long request, void *argument) const
{
    if (m_lost)
        return m_lost;
    int result = 0;
    do
        result = ::ioctl(m_fd, request, argument);
    while (result < 0 && errno == EINTR);
    if (result == 0)
        return 0;
    if (meansNoAnswer(errno, request))
        m_lost = errno;
    return errno;
}

int V4l2Device::query(std::uint32_t id, Control &control) const
{
    control.id = id;
    v4l2_query_ext_ctrl query{};
    query.id = id;
    if (const int error = request(VIDIOC_QUERY_EXT_CTRL, &query))
        return error;
    if (!isWritableNumber(query))
        return EINVAL;
    control.range =
        supportedRange(query.minimum, query.maximum, static_cast<std::int64_t>(query.step),
                       query.default_value, false);
    control.is64Bit = query.type == V4L2_CTRL_TYPE_INTEGER64;
    control.isInactive = query.flags & V4L2_CTRL_FLAG_INACTIVE;
    return 0;
}

bool V4l2Device::hasMenuEntry(std::uint32_t id, std::uint32_t index) const
{
    v4l2_querymenu entry{};
    entry.id = id;
    entry.index = index;
    return request(VIDIOC_QUERYMENU, &entry) == 0;
}

std::optional<int> V4l2Device::value(const Control &control) const
{
    v4l2_ext_control entry{};
    entry.id = control.id;
    v4l2_ext_controls list = listOf(entry);
    if (request(VIDIOC_G_EXT_CTRLS, &list))
        return {};
    return control.is64Bit ? to32Bits(entry.value64) : entry.value;
}

int V4l2Device::setValue(const Control &control, int value) const
{
    v4l2_ext_control entry{};
    entry.id = control.id;
    if (control.is64Bit)
        entry.value64 = value;
    else
        entry.value = value;
    v4l2_ext_controls list = listOf(entry);
    return request(VIDIOC_S_EXT_CTRLS, &list);
}

} // namespace meridax
