#include "Ioctl.h"

#include "Answers.h"
#include "Device.h"
#include "Hang.h"
#include "Log.h"
#include "Registry.h"

#include <cerrno>
#include <cstring>
#include <optional>

namespace meridax::simcam {

namespace {

constexpr std::uint32_t kCapture = V4L2_BUF_TYPE_VIDEO_CAPTURE;
constexpr std::uint32_t kMetadata = V4L2_BUF_TYPE_META_CAPTURE;
constexpr std::uint32_t kMetadataLength = 10240;

template <typename T>
T &as(void *argument)
{
    return *static_cast<T *>(argument);
}

int requestBuffers(Device &device, Handle *handle, v4l2_requestbuffers &r)
{
    return r.type == kCapture ? device.requestBuffers(handle, r) : -EINVAL;
}

/// The second node of a USB camera: it can be asked what it is, and streams nothing here.
int answerMetadata(const Device &device, unsigned request, void *p)
{
    switch (request) {
    case VIDIOC_QUERYCAP:
        return queryCapabilities(device, as<v4l2_capability>(p));
    case VIDIOC_ENUM_FMT: {
        auto &f = as<v4l2_fmtdesc>(p);
        if (f.type != kMetadata || f.index)
            return -EINVAL;
        f = {};
        f.type = kMetadata;
        f.pixelformat = V4L2_META_FMT_UVC;
        setText(f.description, "UVC Payload Header Metadata");
        return 0;
    }
    case VIDIOC_G_FMT:
    case VIDIOC_TRY_FMT:
    case VIDIOC_S_FMT: {
        auto &f = as<v4l2_format>(p);
        if (f.type != kMetadata)
            return -EINVAL;
        f.fmt = {};
        f.fmt.meta.dataformat = V4L2_META_FMT_UVC;
        f.fmt.meta.buffersize = kMetadataLength;
        return 0;
    }
    case VIDIOC_REQBUFS:
        return -EINVAL;
    default:
        return -ENOTTY;
    }
}

/// True for requests that a handle of lower priority than another one may not make.
bool needsPriority(unsigned request)
{
    switch (request) {
    case VIDIOC_S_PRIORITY:
    case VIDIOC_S_FMT:
    case VIDIOC_S_PARM:
    case VIDIOC_S_CTRL:
    case VIDIOC_S_EXT_CTRLS:
    case VIDIOC_S_INPUT:
    case VIDIOC_REQBUFS:
    case VIDIOC_STREAMON:
    case VIDIOC_STREAMOFF:
        return true;
    default:
        return false;
    }
}

int answerCapture(Device &device, Handle *handle, unsigned request, void *p, Device::Lock &lock)
{
    if (needsPriority(request) && device.priority(handle) > handle->priority)
        return -EBUSY;
    switch (request) {
    case VIDIOC_QUERYCAP:
        return queryCapabilities(device, as<v4l2_capability>(p));
    case VIDIOC_ENUM_FMT:
        return enumFormat(as<v4l2_fmtdesc>(p));
    case VIDIOC_ENUM_FRAMESIZES:
        return enumFrameSize(as<v4l2_frmsizeenum>(p));
    case VIDIOC_ENUM_FRAMEINTERVALS:
        return enumFrameInterval(as<v4l2_frmivalenum>(p));
    case VIDIOC_G_FMT:
    case VIDIOC_TRY_FMT:
    case VIDIOC_S_FMT:
        return accessFormat(device, as<v4l2_format>(p), request);
    case VIDIOC_G_PARM:
    case VIDIOC_S_PARM:
        return accessRate(device, as<v4l2_streamparm>(p), request == VIDIOC_S_PARM);
    case VIDIOC_ENUMINPUT:
        return enumInput(as<v4l2_input>(p));
    case VIDIOC_G_INPUT:
        as<int>(p) = 0;
        return 0;
    case VIDIOC_S_INPUT:
        return as<int>(p) ? -EINVAL : 0;
    case VIDIOC_G_PRIORITY:
        as<std::uint32_t>(p) = device.priority();
        return 0;
    case VIDIOC_S_PRIORITY:
        return setPriority(*handle, as<std::uint32_t>(p));
    case VIDIOC_QUERY_EXT_CTRL:
        return device.queryControl(as<v4l2_query_ext_ctrl>(p));
    case VIDIOC_QUERYCTRL:
        return queryOldControl(device, as<v4l2_queryctrl>(p));
    case VIDIOC_QUERYMENU:
        return queryMenu(device, as<v4l2_querymenu>(p));
    case VIDIOC_G_CTRL:
        return accessOldControl(device, handle, as<v4l2_control>(p), VIDIOC_G_EXT_CTRLS);
    case VIDIOC_S_CTRL:
        return accessOldControl(device, handle, as<v4l2_control>(p), VIDIOC_S_EXT_CTRLS);
    case VIDIOC_G_EXT_CTRLS:
    case VIDIOC_S_EXT_CTRLS:
    case VIDIOC_TRY_EXT_CTRLS:
        return device.accessControls(handle, as<v4l2_ext_controls>(p), request);
    case VIDIOC_SUBSCRIBE_EVENT:
        return device.subscribe(handle, as<v4l2_event_subscription>(p));
    case VIDIOC_UNSUBSCRIBE_EVENT:
        return unsubscribe(*handle, as<v4l2_event_subscription>(p));
    case VIDIOC_DQEVENT:
        return device.dequeueEvent(handle, as<v4l2_event>(p), lock);
    case VIDIOC_REQBUFS:
        return requestBuffers(device, handle, as<v4l2_requestbuffers>(p));
    case VIDIOC_QUERYBUF:
        return device.queryBuffer(as<v4l2_buffer>(p));
    case VIDIOC_QBUF:
        return device.queue(handle, as<v4l2_buffer>(p));
    case VIDIOC_DQBUF:
        return device.dequeue(handle, as<v4l2_buffer>(p), lock);
    case VIDIOC_STREAMON:
        return as<std::uint32_t>(p) == kCapture ? device.streamOn(handle) : -EINVAL;
    case VIDIOC_STREAMOFF:
        return as<std::uint32_t>(p) == kCapture ? device.streamOff(handle, lock) : -EINVAL;
    default:
        return -ENOTTY;
    }
}

/// For the requests that concern the controls, what makes them hang.
std::optional<Param> hangOf(unsigned request)
{
    switch (request) {
    case VIDIOC_QUERY_EXT_CTRL:
    case VIDIOC_QUERYCTRL:
    case VIDIOC_QUERYMENU:
        return Param::QueryHang;
    case VIDIOC_G_CTRL:
    case VIDIOC_S_CTRL:
    case VIDIOC_G_EXT_CTRLS:
    case VIDIOC_S_EXT_CTRLS:
    case VIDIOC_TRY_EXT_CTRLS:
        return Param::ControlHang;
    default:
        return {};
    }
}

/// True for the requests that answerCapture() knows, whatever their argument.
bool isKnown(unsigned request)
{
    switch (request) {
    case VIDIOC_QUERYCAP:
    case VIDIOC_ENUM_FMT:
    case VIDIOC_ENUM_FRAMESIZES:
    case VIDIOC_ENUM_FRAMEINTERVALS:
    case VIDIOC_G_FMT:
    case VIDIOC_TRY_FMT:
    case VIDIOC_G_PARM:
    case VIDIOC_ENUMINPUT:
    case VIDIOC_G_INPUT:
    case VIDIOC_G_PRIORITY:
    case VIDIOC_QUERY_EXT_CTRL:
    case VIDIOC_QUERYCTRL:
    case VIDIOC_QUERYMENU:
    case VIDIOC_G_CTRL:
    case VIDIOC_G_EXT_CTRLS:
    case VIDIOC_TRY_EXT_CTRLS:
    case VIDIOC_SUBSCRIBE_EVENT:
    case VIDIOC_UNSUBSCRIBE_EVENT:
    case VIDIOC_DQEVENT:
    case VIDIOC_QUERYBUF:
    case VIDIOC_QBUF:
    case VIDIOC_DQBUF:
        return true;
    default:
        return needsPriority(request);
    }
}

} // namespace

int answerIoctl(Handle *handle, unsigned request, void *argument)
{
    if (!isReadable(argument, _IOC_SIZE(request)))
        return isKnown(request) ? -EFAULT : -ENOTTY;
    const auto kept = handle->device; // another thread may close the descriptor meanwhile
    Device &device = *kept;
    if (const auto param = hangOf(request); param && !device.isGone()) {
        const int fd = handle->fd;
        ++device.state().controlCalls;
        if (const int error = hang(device.state(), *param))
            return error;
        if (handleOf(fd) != handle)
            return -EBADF;
    }
    auto lock = device.lock();
    if (device.isGone())
        return -ENODEV;
    const int result = device.state().kind == State::Metadata
                           ? answerMetadata(device, request, argument)
                           : answerCapture(device, handle, request, argument, lock);
    if (result || (request != VIDIOC_QBUF && request != VIDIOC_DQBUF))
        log("ioctl %d 0x%08x -> %s", handle->fd, request, result ? strerrorname_np(-result) : "0");
    return result;
}

} // namespace meridax::simcam
