#include "camera/ControlThread.h"
#include "diagnostics/CrashHandler.h"

#include <QMetaObject>
#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace meridax {

namespace {

using namespace std::chrono_literals;

/// The program ends within 2 s, other things included.
constexpr auto kPatience = 1500ms;

std::atomic<int> leftBehind = 0;

} // namespace

/// What the thread works on, and all it may touch once it has been left behind.
struct ControlThread::Shared
{
    struct Write
    {
        std::uint64_t number;
        ControlRecord record;
    };
    struct Query
    {
        std::uint64_t number;
        CameraSettings settings;
    };

    Shared(std::shared_ptr<ICameraBackend> calls, QObject *answersTo, OnWritten written,
           OnQueried queried)
        : backend(std::move(calls))
        , onWritten(std::move(written))
        , onQueried(std::move(queried))
        , receiver(answersTo)
    {
    }

    const std::shared_ptr<ICameraBackend> backend;
    const OnWritten onWritten;
    const OnQueried onQueried;

    std::mutex mutex; ///< guards what follows; no call of the backend is made under it
    std::condition_variable changed;
    QObject *receiver; ///< null when nobody waits for answers any more
    std::optional<Write> write;
    std::optional<Query> query;
    bool stopRequested = false;
    bool isLeftBehind = false;
    bool finished = false;

    ControlAnswer answer(const Write &order) const
    {
        ControlAnswer answer;
        answer.number = order.number;
        answer.record = order.record;
        answer.result =
            backend->applySettings(order.record.settings, order.record.writes, &answer.error);
        return answer;
    }

    CapabilityAnswer answer(const Query &order) const
    {
        CapabilityAnswer answer;
        answer.number = order.number;
        answer.cameraName = order.settings.cameraName;
        answer.any = backend->queryCameraCapabilities(order.settings, &answer.caps, nullptr);
        return answer;
    }

    /// Does one order without the lock and sends its answer under it, so that the receiver cannot
    /// go meanwhile.
    template <typename Order, typename Handler>
    void serve(const Order &order, const Handler &handler, std::unique_lock<std::mutex> &lock)
    {
        lock.unlock();
        auto result = answer(order);
        lock.lock();
        if (receiver) {
            QMetaObject::invokeMethod(
                receiver, [handler, result = std::move(result)] { handler(result); },
                Qt::QueuedConnection);
        }
    }
};

ControlThread::ControlThread(std::shared_ptr<ICameraBackend> backend, QObject *receiver,
                             OnWritten onWritten, OnQueried onQueried)
    : m_shared(std::make_shared<Shared>(std::move(backend), receiver, std::move(onWritten),
                                        std::move(onQueried)))
    , m_thread(&ControlThread::run, m_shared)
{
}

ControlThread::~ControlThread()
{
    {
        std::unique_lock lock(m_shared->mutex);
        m_shared->stopRequested = true;
        m_shared->receiver = nullptr;
        m_shared->query.reset();
        m_shared->changed.notify_all();
        if (!m_shared->changed.wait_for(lock, kPatience, [this] { return m_shared->finished; })) {
            m_shared->isLeftBehind = true;
            m_shared->write.reset();
            ++leftBehind;
        }
    }
    if (m_shared->isLeftBehind)
        m_thread.detach();
    else
        m_thread.join();
}

std::uint64_t ControlThread::write(ControlRecord record)
{
    const std::lock_guard lock(m_shared->mutex);
    if (const auto &waiting = m_shared->write;
        waiting && waiting->record.writes == ControlWrites::All)
        record.writes = ControlWrites::All;
    m_shared->write = {++m_lastNumber, std::move(record)};
    m_shared->changed.notify_all();
    return m_lastNumber;
}

std::uint64_t ControlThread::query(const CameraSettings &settings)
{
    const std::lock_guard lock(m_shared->mutex);
    m_shared->query = {++m_lastNumber, settings};
    m_shared->changed.notify_all();
    return m_lastNumber;
}

bool ControlThread::anyLeftBehind()
{
    return leftBehind > 0;
}

void ControlThread::run(const std::shared_ptr<Shared> &shared)
{
    CrashHandler::coverThread();
    std::unique_lock lock(shared->mutex);
    while (true) {
        shared->changed.wait(
            lock, [&] { return shared->stopRequested || shared->write || shared->query; });
        if (const auto write = std::exchange(shared->write, {}))
            shared->serve(*write, shared->onWritten, lock);
        else if (const auto query = std::exchange(shared->query, {}))
            shared->serve(*query, shared->onQueried, lock);
        else
            break;
    }
    shared->finished = true;
    shared->changed.notify_all();
    if (shared->isLeftBehind)
        --leftBehind;
}

} // namespace meridax
