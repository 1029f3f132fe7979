#include "measurement/CalibrationRun.h"

#include <algorithm>

namespace meridax {

int CalibrationRun::framesWanted(int measureFrames)
{
    constexpr int unset = 30;
    return measureFrames > 0 ? measureFrames : unset;
}

void CalibrationRun::start(int positions)
{
    reset();
    m_positions = std::max(3, positions);
    m_active = true;
}

void CalibrationRun::reset()
{
    m_active = false;
    m_measuring = false;
    m_guideIndex = 0;
    m_points.clear();
    clearAverage();
}

bool CalibrationRun::beginMeasuring()
{
    if (!m_active)
        return false;
    clearAverage();
    m_measuring = true;
    return true;
}

CalibrationStep CalibrationRun::add(QPointF position, int measureFrames)
{
    if (!m_measuring)
        return {};

    m_sum += position;
    ++m_frames;
    CalibrationStep step{.kind = CalibrationStep::Kind::Counted,
                         .framesDone = m_frames,
                         .framesTotal = framesWanted(measureFrames),
                         .point = {},
                         .positionsDone = m_guideIndex};
    if (m_frames < step.framesTotal)
        return step;

    step.point = m_sum / m_frames;
    step.positionsDone = ++m_guideIndex;
    m_points.push_back(step.point);
    m_measuring = false;
    clearAverage();

    if (m_guideIndex < m_positions) {
        step.kind = CalibrationStep::Kind::PositionDone;
    } else {
        step.kind = CalibrationStep::Kind::AllDone;
        m_active = false;
        m_guideIndex = 0;
    }
    return step;
}

void CalibrationRun::clearAverage()
{
    m_frames = 0;
    m_sum = {};
}

} // namespace meridax
