#include "measurement/FocusSweep.h"

#include <algorithm>
#include <cmath>

namespace meridax {

namespace {

constexpr int kCoarsePoints = 12;
constexpr int kFinePoints = 9;
constexpr double kLeastPeak = 0.001;
constexpr double kLeastRelativeContrast = 0.15;

} // namespace

int focusWindowHalfSize(int frameWidth, int frameHeight)
{
    const int smaller = std::min(frameWidth, frameHeight);
    return smaller < 640 ? 40 : std::min(smaller / 16, 160);
}

std::vector<int> coarseFocusPositions(FocusRange range)
{
    std::vector<int> positions;
    const double span = range.max - range.min;
    for (int i = 0; i < kCoarsePoints; ++i) {
        const int value = static_cast<int>(std::lround(i * span / (kCoarsePoints - 1))) + range.min;
        positions.push_back(std::clamp(value, range.min, range.max));
    }
    return positions;
}

std::vector<int> fineFocusPositions(FocusRange range, int best)
{
    const int span = range.max - range.min;
    const int step = span > 21 ? span / (kCoarsePoints - 1) : 1;
    const int low = std::clamp(best - step, range.min, range.max);
    const int high = std::clamp(best + step, range.min, range.max);

    std::vector<int> positions;
    for (int i = 0; i < kFinePoints; ++i) {
        const double offset = static_cast<double>(i) * (high - low) / (kFinePoints - 1);
        const int value =
            std::clamp(static_cast<int>(std::lround(offset)) + low, range.min, range.max);
        if (positions.empty() || positions.back() != value)
            positions.push_back(value);
    }
    return positions;
}

FocusSweep::FocusSweep(FocusRange range)
    : m_range(range)
    , m_positions(coarseFocusPositions(range))
{
}

FocusSweep::Next FocusSweep::addScore(double sharpness)
{
    m_scores.push_back(sharpness);
    if (m_scores.size() < m_positions.size())
        return Next::Move;
    if (m_finePass)
        return Next::Found;
    if (peak() < kLeastPeak || relativeContrast() < kLeastRelativeContrast)
        return Next::NoStructure;
    m_positions = fineFocusPositions(m_range, best());
    m_scores.clear();
    m_finePass = true;
    return Next::Move;
}

int FocusSweep::measured() const
{
    return static_cast<int>(m_scores.size()) + (m_finePass ? kCoarsePoints : 0);
}

int FocusSweep::best() const
{
    const auto sharpest = std::max_element(m_scores.begin(), m_scores.end());
    return m_positions[static_cast<size_t>(sharpest - m_scores.begin())];
}

double FocusSweep::peak() const
{
    return *std::max_element(m_scores.begin(), m_scores.end());
}

double FocusSweep::relativeContrast() const
{
    const double least = *std::min_element(m_scores.begin(), m_scores.end());
    return (peak() - least) / (peak() + 1e-9);
}

} // namespace meridax
