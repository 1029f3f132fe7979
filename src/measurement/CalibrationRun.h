#pragma once

#include <QPointF>

#include <vector>

namespace meridax {

/// What one frame did to a calibration.
struct CalibrationStep
{
    enum class Kind {
        Ignored,      ///< no measurement runs; nothing changed
        Counted,      ///< the frame counts, more are wanted
        PositionDone, ///< this frame completed a position, more positions follow
        AllDone,      ///< this frame completed the last position
    };
    Kind kind = Kind::Ignored;
    int framesDone = 0;
    int framesTotal = 0;
    QPointF point;         ///< mean position, px; with PositionDone and AllDone only
    int positionsDone = 0; ///< positions completed so far, this one included

    bool positionCompleted() const { return kind == Kind::PositionDone || kind == Kind::AllDone; }
};

/// The course of one calibration as a plain value: positions to visit, frames averaged at each, and
/// the mean points so far (frame pixels). It knows neither camera nor clock nor thread; whoever
/// shares it guards it.
///
///     idle --start--> turning --beginMeasuring--> measuring --add, last frame--> turning
///                                                    `--add, last frame of all--> idle
///
/// The points outlive the last position, for the fit, until reset() or the next start().
class CalibrationRun
{
public:
    /// The number of frames a setting stands for: 30 if it is 0 or less.
    static int framesWanted(int measureFrames);

    /// Begins anew with `positions` positions, at least three.
    void start(int positions);

    /// Ends without a result and forgets the points. The number of positions stays.
    void reset();

    /// Begins to average at the current position, or begins again. False, and without effect, while
    /// no calibration is active.
    bool beginMeasuring();

    /// Adds the position (px) of one frame's only blob. `measureFrames` is the setting at the time
    /// of this frame; a position is complete as soon as that many frames have been counted.
    CalibrationStep add(QPointF position, int measureFrames);

    bool active() const { return m_active; }
    /// True while the next frame counts; implies active().
    bool measuring() const { return m_measuring; }
    /// 0-based index of the next position; 0 when no calibration is active.
    int guideIndex() const { return m_guideIndex; }
    int positions() const { return m_positions; }
    const std::vector<QPointF> &points() const { return m_points; }

private:
    void clearAverage();

    bool m_active = false;
    bool m_measuring = false;
    int m_positions = 3;
    int m_guideIndex = 0;
    int m_frames = 0;
    QPointF m_sum;
    std::vector<QPointF> m_points;
};

} // namespace meridax
