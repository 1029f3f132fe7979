#include "V4l2Client.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <unistd.h>

V4l2Client::V4l2Client(const char *path)
    : m_fd(::open(path, O_RDWR | O_NONBLOCK | O_CLOEXEC))
    , m_openError(m_fd < 0 ? errno : 0)
{
}

V4l2Client::~V4l2Client()
{
    stop();
    if (m_fd >= 0)
        ::close(m_fd);
}

void V4l2Client::markBuffers(char byte)
{
    for (const Buffer &buffer : std::as_const(m_buffers))
        *static_cast<char *>(buffer.memory) = byte;
}

bool V4l2Client::buffersAreMarked(char byte) const
{
    return std::all_of(m_buffers.begin(), m_buffers.end(), [byte](const Buffer &buffer) {
        return *static_cast<const char *>(buffer.memory) == byte;
    });
}

int V4l2Client::request(unsigned long request, void *argument) const
{
    return ::ioctl(m_fd, request, argument) < 0 ? errno : 0;
}

int V4l2Client::setFormat(quint32 pixelFormat, unsigned width, unsigned height)
{
    v4l2_format format{};
    format.type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    format.fmt.pix.pixelformat = pixelFormat;
    format.fmt.pix.width = width;
    format.fmt.pix.height = height;
    return request(VIDIOC_S_FMT, &format);
}

int V4l2Client::setControl(quint32 id, int value) const
{
    v4l2_control control{id, value};
    return request(VIDIOC_S_CTRL, &control);
}

int V4l2Client::control(quint32 id) const
{
    v4l2_control control{id, 0};
    return request(VIDIOC_G_CTRL, &control) ? -1 : control.value;
}

int V4l2Client::queue(unsigned index) const
{
    v4l2_buffer buffer{};
    buffer.type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    buffer.memory = m_memory;
    buffer.index = index;
    const Buffer &own = m_buffers[index];
    if (m_memory == V4L2_MEMORY_USERPTR) {
        buffer.m.userptr = reinterpret_cast<unsigned long>(own.memory);
        buffer.length = static_cast<quint32>(own.length);
    }
    return request(VIDIOC_QBUF, &buffer);
}

int V4l2Client::start(quint32 memory, unsigned count)
{
    v4l2_requestbuffers buffers{};
    buffers.count = count;
    buffers.type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    buffers.memory = memory;
    if (const int error = request(VIDIOC_REQBUFS, &buffers))
        return error;
    m_memory = memory;
    for (unsigned i = 0; i < std::min(buffers.count, count); ++i) {
        v4l2_buffer info{};
        info.type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
        info.memory = memory;
        info.index = i;
        if (const int error = request(VIDIOC_QUERYBUF, &info))
            return error;
        void *pixels = memory == V4L2_MEMORY_USERPTR ? std::malloc(info.length)
                                                     : ::mmap(nullptr, info.length, PROT_READ,
                                                              MAP_SHARED, m_fd, info.m.offset);
        if (pixels == MAP_FAILED)
            return errno;
        m_buffers.append({pixels, info.length});
        if (const int error = queue(i))
            return error;
    }
    int type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    return request(VIDIOC_STREAMON, &type);
}

void V4l2Client::stop()
{
    if (m_buffers.isEmpty())
        return;
    int type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    request(VIDIOC_STREAMOFF, &type);
    for (const Buffer &buffer : std::as_const(m_buffers)) {
        if (m_memory == V4L2_MEMORY_USERPTR)
            std::free(buffer.memory);
        else
            ::munmap(buffer.memory, buffer.length);
    }
    m_buffers.clear();
    v4l2_requestbuffers none{};
    none.type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    none.memory = m_memory;
    request(VIDIOC_REQBUFS, &none);
}

CapturedFrame V4l2Client::take(int timeoutMs)
{
    unsigned index = 0;
    CapturedFrame frame = dequeue(timeoutMs, index);
    if (!frame.error)
        frame.error = queue(index);
    return frame;
}

CapturedFrame V4l2Client::takeAndKeep(int timeoutMs)
{
    unsigned index = 0;
    return dequeue(timeoutMs, index);
}

CapturedFrame V4l2Client::dequeue(int timeoutMs, unsigned &index)
{
    CapturedFrame frame;
    pollfd wait{m_fd, POLLIN, 0};
    if (::poll(&wait, 1, timeoutMs) != 1) {
        frame.error = ETIMEDOUT;
        return frame;
    }
    v4l2_buffer buffer{};
    buffer.type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    buffer.memory = m_memory;
    frame.error = request(VIDIOC_DQBUF, &buffer);
    if (frame.error)
        return frame;
    frame.data = QByteArray(static_cast<const char *>(m_buffers[buffer.index].memory),
                            static_cast<qsizetype>(buffer.bytesused));
    frame.sequence = buffer.sequence;
    frame.isFaulty = buffer.flags & V4L2_BUF_FLAG_ERROR;
    frame.timestamp = double(buffer.timestamp.tv_sec) + 1e-6 * double(buffer.timestamp.tv_usec);
    index = buffer.index;
    return frame;
}
