#pragma once

namespace meridax {

/// Judges a stream that brings no frames. Driven by ticks instead of a clock, so that a program
/// that was held up itself does not take its own sleep for the camera's.
///
/// Qt tells neither of a device that falls silent nor of one that answers each attempt to take a
/// frame with an error (V4L2, Qt 6.8). The second one shows in the event loop, which the device
/// wakes up again at once, thousands of times a second.
class FrameSilence
{
public:
    enum class Verdict {
        Fine,
        Silent, ///< told once in each silence
        Failing ///< silent, and the event loop never came to rest
    };

    /// `ticks`: whole ticks without a frame after which the stream is silent.
    /// `busyTurns`: turns of the event loop in one tick from which on it counts as never at rest.
    constexpr explicit FrameSilence(int ticks, int busyTurns)
        : m_limit(ticks)
        , m_busyTurns(busyTurns)
    {
    }

    constexpr void frameArrived() { m_frameSeen = true; }

    constexpr void eventLoopTurned() { ++m_turns; }

    constexpr Verdict tick()
    {
        if (m_frameSeen) {
            *this = FrameSilence(m_limit, m_busyTurns);
            return Verdict::Fine;
        }
        ++m_silentTicks;
        m_busyTicks = m_turns >= m_busyTurns ? m_busyTicks + 1 : 0;
        m_turns = 0;
        if (m_busyTicks >= m_limit)
            return Verdict::Failing;
        return m_silentTicks == m_limit ? Verdict::Silent : Verdict::Fine;
    }

private:
    int m_limit;
    int m_busyTurns;
    bool m_frameSeen = false;
    int m_silentTicks = 0;
    int m_busyTicks = 0;
    int m_turns = 0;
};

} // namespace meridax
