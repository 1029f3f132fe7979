#include "Answers.h"

#include <cerrno>
#include <cstring>

namespace meridax::simcam {

namespace {

constexpr std::uint32_t kCapture = V4L2_BUF_TYPE_VIDEO_CAPTURE;
constexpr std::uint32_t kDriverVersion = 0x060c00;

} // namespace

int queryCapabilities(const Device &device, v4l2_capability &c)
{
    const bool isMetadata = device.state().kind == State::Metadata;
    c = {};
    setText(c.driver, "uvcvideo");
    setText(c.card, device.state().name);
    setText(c.bus_info, "usb-0000:00:14.0-1");
    c.version = kDriverVersion;
    c.device_caps = V4L2_CAP_STREAMING | V4L2_CAP_EXT_PIX_FORMAT |
                    (isMetadata ? V4L2_CAP_META_CAPTURE : V4L2_CAP_VIDEO_CAPTURE);
    // The capabilities are those of the whole device, both of its nodes.
    c.capabilities =
        c.device_caps | V4L2_CAP_DEVICE_CAPS | V4L2_CAP_VIDEO_CAPTURE | V4L2_CAP_META_CAPTURE;
    return 0;
}

int enumFormat(v4l2_fmtdesc &f)
{
    constexpr std::uint32_t kFormats[] = {V4L2_PIX_FMT_MJPEG, V4L2_PIX_FMT_YUYV};
    if (f.type != kCapture || f.index >= std::size(kFormats))
        return -EINVAL;
    const std::uint32_t index = f.index;
    f = {};
    f.index = index;
    f.type = kCapture;
    f.pixelformat = kFormats[index];
    f.flags = index == 0 ? V4L2_FMT_FLAG_COMPRESSED : 0;
    setText(f.description, index == 0 ? "Motion-JPEG" : "YUYV 4:2:2");
    return 0;
}

int enumFrameSize(v4l2_frmsizeenum &f)
{
    const Mode *mode = modeAt(f.pixel_format, f.index);
    if (!mode)
        return -EINVAL;
    f.type = V4L2_FRMSIZE_TYPE_DISCRETE;
    f.stepwise = {};
    f.discrete = {mode->width, mode->height};
    f.reserved[0] = f.reserved[1] = 0;
    return 0;
}

int enumFrameInterval(v4l2_frmivalenum &f)
{
    const Mode *mode = findMode(f.pixel_format, f.width, f.height);
    if (!mode || f.index >= mode->rates.size())
        return -EINVAL;
    f.type = V4L2_FRMIVAL_TYPE_DISCRETE;
    f.stepwise = {};
    f.discrete = {1, mode->rates[f.index]};
    f.reserved[0] = f.reserved[1] = 0;
    return 0;
}

int accessFormat(Device &device, v4l2_format &f, unsigned request)
{
    if (f.type != kCapture)
        return -EINVAL;
    const State &state = device.state();
    switch (request) {
    case VIDIOC_G_FMT:
        describe(*findMode(state.pixelFormat, state.width, state.height), f.fmt.pix);
        return 0;
    case VIDIOC_TRY_FMT:
        describe(nearestMode(f.fmt.pix), f.fmt.pix);
        return 0;
    default:
        return device.setFormat(f.fmt.pix);
    }
}

int accessRate(Device &device, v4l2_streamparm &p, bool isSet)
{
    if (p.type != kCapture)
        return -EINVAL;
    if (isSet)
        if (const int result = device.setRate(p.parm.capture.timeperframe))
            return result;
    std::memset(&p.parm, 0, sizeof p.parm);
    p.parm.capture.capability = V4L2_CAP_TIMEPERFRAME;
    p.parm.capture.timeperframe = {1, device.state().framesPerSecond};
    return 0;
}

int enumInput(v4l2_input &input)
{
    if (input.index)
        return -EINVAL;
    input = {};
    setText(input.name, "Camera 1");
    input.type = V4L2_INPUT_TYPE_CAMERA;
    return 0;
}

int setPriority(Handle &handle, std::uint32_t priority)
{
    if (priority < V4L2_PRIORITY_BACKGROUND || priority > V4L2_PRIORITY_RECORD)
        return -EINVAL;
    handle.priority = priority;
    return 0;
}

int queryOldControl(const Device &device, v4l2_queryctrl &q)
{
    v4l2_query_ext_ctrl ext{};
    ext.id = q.id;
    if (const int result = device.queryControl(ext))
        return result;
    q = {};
    q.id = ext.id;
    q.type = ext.type;
    setText(q.name, ext.name);
    q.minimum = static_cast<std::int32_t>(ext.minimum);
    q.maximum = static_cast<std::int32_t>(ext.maximum);
    q.step = static_cast<std::int32_t>(ext.step);
    q.default_value = static_cast<std::int32_t>(ext.default_value);
    q.flags = ext.flags;
    return 0;
}

int queryMenu(const Device &device, v4l2_querymenu &q)
{
    const Control *control = findControl(device.state(), q.id);
    if (!control || !control->menu || q.index > unsigned(control->max) ||
        !(control->menuMask >> q.index & 1))
        return -EINVAL;
    // The structure is packed, so no reference to its members may be taken.
    std::snprintf(reinterpret_cast<char *>(q.name), sizeof q.name, "%s", control->menu[q.index]);
    q.reserved = 0;
    return 0;
}

int accessOldControl(Device &device, Handle *handle, v4l2_control &c, unsigned extRequest)
{
    v4l2_ext_control entry{};
    entry.id = c.id;
    entry.value = c.value;
    v4l2_ext_controls list{};
    list.count = 1;
    list.controls = &entry;
    const int result = device.accessControls(handle, list, extRequest);
    if (result == 0)
        c.value = entry.value;
    return result;
}

int unsubscribe(Handle &handle, const v4l2_event_subscription &s)
{
    const auto matches = [&](const auto &x) {
        return s.type == V4L2_EVENT_ALL || (x.type == s.type && x.id == s.id);
    };
    std::erase_if(handle.subscriptions, matches);
    std::erase_if(handle.events, matches);
    return 0;
}

} // namespace meridax::simcam
