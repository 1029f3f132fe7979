#include "Device.h"

#include "RawCalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>

namespace meridax::simcam {

namespace {

constexpr unsigned kMinBuffers = 2;
constexpr unsigned kMaxBuffers = 32;

} // namespace

bool Device::isOwnedElsewhere() const
{
    const pid_t owner = m_state.owner;
    return owner && owner != getpid() && !(::kill(owner, 0) < 0 && errno == ESRCH);
}

int Device::requestBuffers(Handle *handle, v4l2_requestbuffers &request)
{
    const bool offersUserptr = !m_state.isOn(Param::NoUserptr);
    request.capabilities = V4L2_BUF_CAP_SUPPORTS_MMAP | V4L2_BUF_CAP_SUPPORTS_ORPHANED_BUFS |
                           (offersUserptr ? V4L2_BUF_CAP_SUPPORTS_USERPTR : 0);
    request.flags = 0;
    std::fill(std::begin(request.reserved), std::end(request.reserved), std::uint8_t(0));
    if (request.memory != V4L2_MEMORY_MMAP &&
        !(request.memory == V4L2_MEMORY_USERPTR && offersUserptr))
        return -EINVAL;
    if ((m_owner && m_owner != handle) || isOwnedElsewhere() || m_isStreaming)
        return -EBUSY;
    freeBuffers();
    if (request.count == 0)
        return 0;
    request.count = std::clamp(request.count, kMinBuffers, kMaxBuffers);
    return allocate(handle, request.count, request.memory);
}

int Device::allocate(Handle *handle, unsigned count, std::uint32_t memory)
{
    const std::uint32_t length = bufferLength(m_state.width, m_state.height);
    // The program maps each buffer by itself, so each begins with a page.
    const auto page = static_cast<size_t>(::sysconf(_SC_PAGESIZE));
    m_slot = (length + page - 1) / page * page;
    if (memory == V4L2_MEMORY_MMAP) {
        m_memoryFd = memfd_create("simcam", MFD_CLOEXEC);
        if (m_memoryFd < 0 || ::ftruncate(m_memoryFd, off_t(m_slot * count)) < 0)
            return -ENOMEM;
        void *mapping =
            raw::mmap(nullptr, m_slot * count, PROT_READ | PROT_WRITE, MAP_SHARED, m_memoryFd, 0);
        if (mapping == MAP_FAILED)
            return -ENOMEM;
        m_mapping = static_cast<std::uint8_t *>(mapping);
    }
    m_memory = memory;
    m_owner = handle;
    m_state.owner = getpid();
    m_buffers.assign(count, {});
    for (unsigned i = 0; i < count; ++i) {
        v4l2_buffer &info = m_buffers[i].info;
        info.index = i;
        info.length = length;
        if (memory == V4L2_MEMORY_MMAP)
            info.m.offset = static_cast<std::uint32_t>(m_slot * i);
    }
    return 0;
}

void Device::freeBuffers()
{
    if (m_mapping)
        ::munmap(m_mapping, m_slot * m_buffers.size());
    if (m_memoryFd >= 0)
        raw::close(m_memoryFd);
    m_mapping = nullptr;
    m_memoryFd = -1;
    m_buffers.clear();
    m_queued.clear();
    m_done.clear();
    if (m_owner)
        m_state.owner = 0;
    m_owner = nullptr;
}

void Device::describe(const Buffer &buffer, v4l2_buffer &out) const
{
    out = buffer.info;
    out.type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    out.memory = m_memory;
    out.flags = V4L2_BUF_FLAG_TIMESTAMP_MONOTONIC | V4L2_BUF_FLAG_TSTAMP_SRC_SOE;
    if (buffer.isMapped)
        out.flags |= V4L2_BUF_FLAG_MAPPED;
    switch (buffer.stage) {
    case Buffer::Idle:
        break;
    case Buffer::Queued:
    case Buffer::Active:
        out.flags |= V4L2_BUF_FLAG_QUEUED;
        out.bytesused = 0;
        out.sequence = 0;
        out.timestamp = {};
        out.field = V4L2_FIELD_ANY;
        break;
    case Buffer::Done:
        out.flags |= V4L2_BUF_FLAG_DONE | (buffer.isFaulty ? V4L2_BUF_FLAG_ERROR : 0);
        break;
    }
}

int Device::queryBuffer(v4l2_buffer &out) const
{
    if (out.type != V4L2_BUF_TYPE_VIDEO_CAPTURE || out.index >= m_buffers.size())
        return -EINVAL;
    describe(m_buffers[out.index], out);
    return 0;
}

int Device::queue(Handle *handle, v4l2_buffer &in)
{
    if (in.type != V4L2_BUF_TYPE_VIDEO_CAPTURE || in.index >= m_buffers.size() ||
        in.memory != m_memory)
        return -EINVAL;
    if (m_owner != handle)
        return -EBUSY;
    Buffer &buffer = m_buffers[in.index];
    if (buffer.stage != Buffer::Idle)
        return -EINVAL;
    if (m_memory == V4L2_MEMORY_USERPTR) {
        if (in.length < bufferLength(m_state.width, m_state.height))
            return -EINVAL;
        if (!isReadable(reinterpret_cast<const void *>(in.m.userptr), in.length))
            return -EFAULT;
        buffer.info.m.userptr = in.m.userptr;
        buffer.info.length = in.length;
    }
    buffer.stage = Buffer::Queued;
    m_queued.push_back(in.index);
    describe(buffer, in);
    return 0;
}

int Device::dequeue(Handle *handle, v4l2_buffer &out, Lock &lock)
{
    if (out.type != V4L2_BUF_TYPE_VIDEO_CAPTURE || (m_memory && out.memory != m_memory))
        return -EINVAL;
    if (m_owner && m_owner != handle)
        return -EBUSY;
    const bool isNonBlocking = handle->isNonBlocking();
    for (;;) {
        if (isGone())
            return -ENODEV;
        if (const int error = static_cast<int>(m_state.get(Param::DqbufErrno)))
            return -error;
        if (!m_isStreaming)
            return -EINVAL;
        if (!m_done.empty())
            break;
        if (isNonBlocking)
            return -EAGAIN;
        m_changed.wait(lock);
    }
    Buffer &buffer = m_buffers[m_done.front()];
    m_done.pop_front();
    if (m_done.empty())
        clearReadable();
    describe(buffer, out);
    out.flags &= ~std::uint32_t(V4L2_BUF_FLAG_DONE);
    buffer.stage = Buffer::Idle;
    return 0;
}

void *Device::map(void *address, size_t length, int protection, int flags, off_t offset)
{
    if (m_memory == V4L2_MEMORY_MMAP && length <= m_slot) {
        for (Buffer &buffer : m_buffers) {
            if (off_t(buffer.info.m.offset) != offset)
                continue;
            void *mapped = raw::mmap(address, length, protection, flags, m_memoryFd, offset);
            buffer.isMapped = buffer.isMapped || mapped != MAP_FAILED;
            return mapped;
        }
    }
    errno = EINVAL;
    return MAP_FAILED;
}

} // namespace meridax::simcam
