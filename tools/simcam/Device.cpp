#include "Device.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace meridax::simcam {

bool Handle::isNonBlocking() const
{
    return fcntl(fd, F_GETFL) & O_NONBLOCK;
}

Device::Device(std::string node, State *state, ino_t inode)
    : m_node(std::move(node))
    , m_state(*state)
    , m_inode(inode)
{
}

Device::~Device()
{
    ::munmap(&m_state, sizeof m_state);
}

int Device::nodeNumber() const
{
    return std::atoi(m_node.c_str() + 5);
}

void Device::attach(Handle *handle)
{
    m_handles.push_back(handle);
    ++m_state.opens;
}

void Device::detach(Handle *handle, Lock &lock)
{
    if (m_owner == handle) {
        stopStream(lock);
        freeBuffers();
    }
    std::erase(m_handles, handle);
}

std::uint32_t Device::priority(const Handle *except) const
{
    std::uint32_t highest = V4L2_PRIORITY_UNSET;
    for (const Handle *handle : m_handles)
        if (handle != except)
            highest = std::max(highest, handle->priority);
    return highest;
}

int Device::setFormat(v4l2_pix_format &pix)
{
    const Mode &mode = nearestMode(pix);
    simcam::describe(mode, pix);
    if (!m_buffers.empty() || isOwnedElsewhere())
        return -EBUSY;
    m_state.width = mode.width;
    m_state.height = mode.height;
    m_state.pixelFormat = mode.pixelFormat;
    m_state.framesPerSecond = mode.rates.front(); // a new format starts at its default rate
    return 0;
}

int Device::setRate(v4l2_fract interval)
{
    if (m_isStreaming)
        return -EBUSY;
    const double wish = interval.numerator && interval.denominator
                            ? double(interval.denominator) / interval.numerator
                            : 30;
    const Mode *mode = findMode(m_state.pixelFormat, m_state.width, m_state.height);
    m_state.framesPerSecond = nearestRate(*mode, wish);
    return 0;
}

bool isReadable(const void *p, size_t length)
{
    if (length == 0)
        return true;
    if (!p)
        return false;
    char bytes[2];
    auto *first = static_cast<char *>(const_cast<void *>(p));
    const iovec local[] = {{bytes, 1}, {bytes + 1, 1}};
    const iovec remote[] = {{first, 1}, {first + length - 1, 1}};
    const long got = ::syscall(SYS_process_vm_readv, getpid(), local, 2UL, remote, 2UL, 0UL);
    // Where the call itself is forbidden nothing can be said about the pointer.
    return got == 2 || (got < 0 && errno != EFAULT);
}

} // namespace meridax::simcam
