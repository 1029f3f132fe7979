#pragma once

#include "camera/FrameSilence.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace meridax {

/// Notices a running stream that brings no frames. Lives on the thread that the frames arrive on.
class FrameWatchdog : public QObject
{
    Q_OBJECT

public:
    explicit FrameWatchdog(QObject *parent = nullptr);

    /// Time without a frame after which a stream counts as silent or failing; from the next start.
    void setLimit(std::chrono::milliseconds limit) { m_limit = limit; }
    std::chrono::milliseconds limit() const { return m_limit; }

    void start();
    void stop();
    void frameArrived() { m_silence.frameArrived(); }

signals:
    /// No frame for the time of the limit; once in each silence.
    void silent();
    /// The same, and the device keeps answering with errors; at each tick until stopped.
    void failing();

private:
    void tick();

    std::chrono::milliseconds m_limit{5000};
    FrameSilence m_silence{0, 0};
    QTimer m_timer;
    QMetaObject::Connection m_turns;
};

} // namespace meridax
