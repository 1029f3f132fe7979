#include "Device.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>

namespace meridax::simcam {

namespace {

std::chrono::steady_clock::duration seconds(double s)
{
    using Duration = std::chrono::steady_clock::duration;
    return std::chrono::duration_cast<Duration>(std::chrono::duration<double>(s));
}

} // namespace

int Device::streamOn(Handle *handle)
{
    if (m_buffers.empty())
        return -EINVAL;
    if (m_owner != handle)
        return -EBUSY;
    if (m_isStreaming)
        return 0;
    if (const int error = static_cast<int>(m_state.get(Param::StreamonErrno)))
        return -error;
    if (m_state.isOn(Param::Forgets))
        forgetControls(m_state);
    m_isStreaming = true;
    m_generator = std::thread([this] { generate(); });
    return 0;
}

int Device::streamOff(Handle *handle, Lock &lock)
{
    if (m_owner && m_owner != handle)
        return -EBUSY;
    stopStream(lock);
    m_queued.clear();
    for (Buffer &buffer : m_buffers)
        buffer.stage = Buffer::Idle;
    return 0;
}

void Device::stopStream(Lock &lock)
{
    if (!m_isStreaming)
        return;
    m_quit = true;
    m_changed.notify_all();
    lock.unlock();
    m_generator.join();
    lock.lock();
    m_isStreaming = m_quit = false;
    m_done.clear();
    clearReadable();
    m_changed.notify_all();
}

double Device::framePeriod() const
{
    // A long exposure slows a real camera down, too, where it may.
    const double period =
        std::max(1.0 / std::max(1U, m_state.framesPerSecond.load()), exposureTime(m_state));
    return period + double(m_state.get(Param::FrameDelay));
}

void Device::generate()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    pthread_setname_np(pthread_self(), "simcam");

    std::uint32_t sequence = 0;
    Lock lock(m_mutex);
    for (auto due = Clock::now(); !m_quit;) {
        const auto period = seconds(framePeriod());
        due += period;
        while (!m_quit && !isGone() && Clock::now() < due) // in steps, to see the unplugging
            m_changed.wait_until(lock, std::min(due, Clock::now() + std::chrono::milliseconds(100)),
                                 [&] { return m_quit || isGone(); });
        if (m_quit)
            break;
        // After a delay the beat starts anew: frames that were missed are lost, never caught up,
        // and two frames are never closer than half a period.
        const auto now = Clock::now();
        if (now > due + period / 2)
            due = now;
        if (isGone() || m_state.isOn(Param::DqbufErrno)) {
            raiseReadable();
            m_changed.notify_all();
            if (isGone())
                break;
        } else if (!m_state.isOn(Param::Stall)) {
            deliver(lock, sequence++, now);
        }
    }
}

void Device::deliver(Lock &lock, std::uint32_t sequence, Clock::time_point due)
{
    if (m_queued.empty()) {
        ++m_state.dropped;
        return;
    }
    const unsigned index = m_queued.front();
    m_queued.pop_front();
    Buffer &buffer = m_buffers[index];
    buffer.stage = Buffer::Active;
    std::uint8_t *memory = m_memory == V4L2_MEMORY_USERPTR
                               ? reinterpret_cast<std::uint8_t *>(buffer.info.m.userptr)
                               : m_mapping + m_slot * index;
    const bool isFaulty = m_state.isOn(Param::ErrorFrames);

    lock.unlock();
    const auto start = Clock::now();
    std::span<const std::uint8_t> frame;
    if (!isFaulty)
        frame = m_frames.produce(m_state, m_state.frames);
    m_state.renderUs = static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start).count());
    lock.lock();

    // A program that has been told of the end of stream or device may have freed its buffers since.
    // It is told under the lock, so here they are still there.
    if (m_quit || isGone()) {
        buffer.stage = Buffer::Queued;
        return;
    }
    const std::size_t used = std::min<std::size_t>(frame.size(), buffer.info.length);
    std::copy_n(frame.begin(), used, memory);
    buffer.info.bytesused = static_cast<std::uint32_t>(used);
    buffer.info.sequence = sequence;
    buffer.info.field = V4L2_FIELD_NONE;
    const auto us = std::chrono::duration_cast<std::chrono::microseconds>(due.time_since_epoch());
    buffer.info.timestamp = {us.count() / 1000000, us.count() % 1000000};
    buffer.isFaulty = isFaulty;
    buffer.stage = Buffer::Done;
    m_done.push_back(index);
    ++m_state.frames;
    raiseReadable();
    m_changed.notify_all();
}

void Device::raiseReadable() const
{
    const std::uint64_t one = 1;
    if (m_owner) [[maybe_unused]]
        const auto written = ::write(m_owner->fd, &one, sizeof one);
}

void Device::clearReadable() const
{
    if (!m_owner)
        return;
    // The descriptor may be a blocking one: read only what is there.
    pollfd p{m_owner->fd, POLLIN, 0};
    std::uint64_t count = 0;
    if (::poll(&p, 1, 0) == 1) [[maybe_unused]]
        const auto got = ::read(m_owner->fd, &count, sizeof count);
}

} // namespace meridax::simcam
