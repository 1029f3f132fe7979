#include "camera/FrameWatchdog.h"

#include <QAbstractEventDispatcher>

namespace meridax {

namespace {

constexpr int kTicks = 5;
/// Frames, animations and a mouse of 1 kHz together stay below this; a device that fails each time
/// it is asked is asked tens of thousands of times.
constexpr int kBusyTurnsPerSecond = 5000;

} // namespace

FrameWatchdog::FrameWatchdog(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &FrameWatchdog::tick);
}

void FrameWatchdog::start()
{
    stop();
    const std::chrono::milliseconds interval = m_limit / kTicks;
    m_silence =
        FrameSilence(kTicks, static_cast<int>(kBusyTurnsPerSecond * interval.count() / 1000));
    m_turns = connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
                      [this] { m_silence.eventLoopTurned(); });
    m_timer.start(interval);
}

void FrameWatchdog::stop()
{
    m_timer.stop();
    disconnect(m_turns);
}

void FrameWatchdog::tick()
{
    switch (m_silence.tick()) {
    case FrameSilence::Verdict::Fine:
        break;
    case FrameSilence::Verdict::Silent:
        emit silent();
        break;
    case FrameSilence::Verdict::Failing:
        emit failing();
        break;
    }
}

} // namespace meridax
