#pragma once

#include "camera/CameraCapabilities.h"
#include "camera/ICameraBackend.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <thread>

class QObject;

namespace meridax {

/// The values that a camera is to take.
struct ControlRecord
{
    CameraSettings settings;
    ControlWrites writes = ControlWrites::Changed;
    bool focusOnly = false; ///< a step of the focus drive: nothing but the focus has changed
};

/// What became of a record.
struct ControlAnswer
{
    std::uint64_t number = 0; ///< as write() returned it
    ControlRecord record;
    ApplyResult result;
    QString error; ///< the backend's text on a failure
};

/// What a camera said of its abilities.
struct CapabilityAnswer
{
    std::uint64_t number = 0; ///< as query() returned it
    QString cameraName;
    bool any = false; ///< `caps` holds at least one control
    CameraCapabilities caps;
};

/// Makes the calls of a backend on a thread of its own, one after the other: a camera that hangs
/// holds up each of them for seconds.
///
/// What waits is the latest record and the latest question, like the one-frame slot: a slider that
/// moves faster than its camera skips values and never queues them up. Records go out in the order
/// of write(), each whole, so that one which replaces another takes its ControlWrites::All over; a
/// record goes before a question.
///
/// Answers arrive on the thread of the receiver, by its event loop, and only as long as this object
/// lives. All operations belong to that thread.
class ControlThread
{
public:
    using OnWritten = std::function<void(const ControlAnswer &)>;
    using OnQueried = std::function<void(const CapabilityAnswer &)>;

    /// `receiver` must outlive this object.
    ControlThread(std::shared_ptr<ICameraBackend> backend, QObject *receiver, OnWritten onWritten,
                  OnQueried onQueried);
    /// Lets a record that waits still go out, for 1.5 s at most. A call that lasts longer is left
    /// behind: its thread owns all that it touches and ends by itself.
    ~ControlThread();
    ControlThread(const ControlThread &) = delete;
    ControlThread &operator=(const ControlThread &) = delete;

    /// Puts a record into the slot, in place of the one that waits there. Numbers ascend.
    std::uint64_t write(ControlRecord record);
    /// Asks for the abilities of the camera, in place of the question that waits.
    std::uint64_t query(const CameraSettings &settings);

    /// True while a thread that was left behind is still in its call. A process that ends then
    /// must not run the destructors of its static objects, which that thread may use.
    static bool anyLeftBehind();

private:
    struct Shared;
    static void run(const std::shared_ptr<Shared> &shared);

    std::shared_ptr<Shared> m_shared;
    std::uint64_t m_lastNumber = 0;
    std::thread m_thread;
};

} // namespace meridax
