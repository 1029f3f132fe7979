#pragma once

#include <vector>

namespace meridax {

/// How a focus sweep ended. The numbers travel to the interface.
enum class FocusOutcome {
    Success = 0,
    NoStructure = 1,     ///< nothing in the window to focus on; the focus is as before
    NotControllable = 2, ///< the camera reports no focus range
    Cancelled = 3,
    RangePending = 4, ///< the camera is still being asked for its focus range
};

/// Focus positions in the camera's own unit, both ends included.
struct FocusRange
{
    int min = 0;
    int max = 0;

    bool usable() const { return max > min; }
};

/// Half the side (px) of the window in which sharpness is measured, for a frame of that size.
int focusWindowHalfSize(int frameWidth, int frameHeight);

/// Twelve positions spread evenly over `range`; a narrow range repeats some.
std::vector<int> coarseFocusPositions(FocusRange range);

/// Up to nine positions around `best`, as far as the neighbours of the coarse pass.
std::vector<int> fineFocusPositions(FocusRange range, int best);

/// The search for the sharpest focus position: a coarse pass over the whole range and a fine pass
/// around its best position. Knows neither camera nor time: whoever drives it moves the focus to
/// position() and reports the sharpness found there.
class FocusSweep
{
public:
    /// For the progress display; the fine pass may stay below its share.
    static constexpr int totalSteps = 21;

    enum class Next {
        Move,        ///< go on at position()
        Found,       ///< the sweep is over, best() is the sharpest position
        NoStructure, ///< the coarse pass showed too little contrast
    };

    FocusSweep() = default;
    /// A sweep over a usable range.
    explicit FocusSweep(FocusRange range);

    /// Where to measure next; the sharpest position when the sweep is over.
    int position() const
    {
        return m_scores.size() < m_positions.size() ? m_positions[m_scores.size()] : best();
    }
    Next addScore(double sharpness);
    /// Scores so far; the fine pass counts from 12.
    int measured() const;
    /// The position of the highest score of the pass, the first among equals.
    int best() const;
    /// Highest score of the pass.
    double peak() const;
    /// Spread of the scores of the pass against the highest, 0..1.
    double relativeContrast() const;

private:
    FocusRange m_range;
    std::vector<int> m_positions;
    std::vector<double> m_scores;
    bool m_finePass = false;
};

} // namespace meridax
