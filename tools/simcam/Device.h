#pragma once

#include "Controls.h"
#include "DeviceFormats.h"
#include "FrameSource.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <linux/videodev2.h>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace meridax::simcam {

class Device;

/// One open descriptor of a device. The descriptor itself is an eventfd, readable while frames
/// wait. All members are guarded by the mutex of the device.
struct Handle
{
    std::shared_ptr<Device> device;
    int fd;
    std::uint32_t priority = V4L2_PRIORITY_INTERACTIVE;
    std::vector<v4l2_event_subscription> subscriptions;
    std::deque<v4l2_event> events;
    std::uint32_t eventSequence = 0;

    bool isNonBlocking() const;
};

/// One simulated device as this process sees it: buffers, stream and events of its handles. What
/// all processes share is in the state file. Methods named after an ioctl answer it: 0, or a
/// negative errno; the caller holds the lock they are given.
class Device
{
public:
    using Lock = std::unique_lock<std::mutex>;
    using Clock = std::chrono::steady_clock; ///< is CLOCK_MONOTONIC, the clock of V4L2 time stamps

    /// Takes over the mapping of `state`.
    Device(std::string node, State *state, ino_t inode);
    ~Device();

    Lock lock() { return Lock(m_mutex); }
    State &state() const { return m_state; }
    const std::string &node() const { return m_node; }
    ino_t inode() const { return m_inode; }
    int nodeNumber() const;
    bool isGone() const { return m_state.dead != 0; }

    void attach(Handle *handle);
    /// Frees what the handle holds; waits for the generator thread.
    void detach(Handle *handle, Lock &lock);
    /// Highest priority of all handles but `except`.
    std::uint32_t priority(const Handle *except = nullptr) const;

    // Format; refused while buffers exist.
    int setFormat(v4l2_pix_format &pix);
    int setRate(v4l2_fract interval);

    // Buffers and stream.
    int requestBuffers(Handle *handle, v4l2_requestbuffers &request);
    int queryBuffer(v4l2_buffer &out) const;
    int queue(Handle *handle, v4l2_buffer &in);
    int dequeue(Handle *handle, v4l2_buffer &out, Lock &lock);
    int streamOn(Handle *handle);
    int streamOff(Handle *handle, Lock &lock);
    void *map(void *address, size_t length, int protection, int flags, off_t offset);

    // Controls and their events.
    int queryControl(v4l2_query_ext_ctrl &query) const;
    int accessControls(Handle *handle, v4l2_ext_controls &list, unsigned request);
    int subscribe(Handle *handle, const v4l2_event_subscription &subscription);
    int dequeueEvent(Handle *handle, v4l2_event &out, Lock &lock);

private:
    struct Buffer
    {
        enum Stage { Idle, Queued, Active, Done };
        Stage stage = Idle;
        v4l2_buffer info{};
        bool isMapped = false;
        bool isFaulty = false;
    };

    bool isOwnedElsewhere() const;
    int allocate(Handle *handle, unsigned count, std::uint32_t memory);
    void freeBuffers();
    void describe(const Buffer &buffer, v4l2_buffer &out) const;

    void generate();
    double framePeriod() const;
    void deliver(Lock &lock, std::uint32_t sequence, Clock::time_point due);
    void stopStream(Lock &lock);
    void raiseReadable() const;
    void clearReadable() const;

    int checkControls(const v4l2_ext_controls &list, unsigned request, unsigned &errorIndex) const;
    void setControl(const Handle *from, const Control &control, std::int32_t value);
    v4l2_event controlEvent(const Control &control, std::uint32_t changes) const;
    void notify(const Handle *from, const Control &control, std::uint32_t changes);

    const std::string m_node;
    State &m_state;
    const ino_t m_inode;

    std::mutex m_mutex; ///< guards everything below but m_frames
    std::condition_variable m_changed;
    std::vector<Handle *> m_handles;
    Handle *m_owner = nullptr; ///< the handle that holds the buffers
    std::vector<Buffer> m_buffers;
    std::deque<unsigned> m_queued;
    std::deque<unsigned> m_done;
    std::uint32_t m_memory = 0; ///< V4L2_MEMORY_*
    int m_memoryFd = -1;
    std::uint8_t *m_mapping = nullptr;
    size_t m_slot = 0; ///< bytes from one mapped buffer to the next
    bool m_isStreaming = false;
    bool m_quit = false;
    std::thread m_generator;

    FrameSource m_frames; ///< of the generator thread alone
};

/// True if `length` bytes at `p` can be read, so that a bad pointer is EFAULT and no crash.
bool isReadable(const void *p, size_t length);

} // namespace meridax::simcam
