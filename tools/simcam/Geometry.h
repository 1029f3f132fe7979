#pragma once

#include "StateFile.h"

namespace meridax::simcam {

/// A position in frame pixels: origin in the middle of the top left pixel, y downwards.
struct Point
{
    double x = 0;
    double y = 0;
    bool operator==(const Point &) const = default;
};

struct FrameSize
{
    unsigned width = 0;
    unsigned height = 0;
    bool operator==(const FrameSize &) const = default;

    /// Pixels of this frame per pixel of a frame 720 rows high.
    double scale() const { return height / 720.0; }
};

/// The camera's place in its turn.
struct Turn
{
    double angle = 0;        ///< of the mark about the centre [deg]
    std::uint32_t dwell = 0; ///< changes with every turn from one position to another
};

/// Angle and dwell at time `nowMs`: as set, or where the automatic turn has come to.
Turn turnAt(const State &state, std::uint32_t nowMs);

/// The centre the camera turns about.
Point centerOf(const State &state, FrameSize size);

/// Distance of the mark from the centre at `angle`: radius plus form error,
/// radius + sum_k amplitude_k * cos(k * angle + phase_k) [px].
double pathRadius(const State &state, FrameSize size, double angle);

/// The mark at `angle` without position noise.
Point markPosition(const State &state, FrameSize size, double angle);

/// Position noise of dwell `dwell` and frame `frame`, the same for the same numbers [px].
Point positionNoise(const State &state, FrameSize size, std::uint32_t dwell, std::uint32_t frame);

/// Angle between the first and the second mark [deg].
constexpr double kSecondMark = 120;

/// Uniformly distributed bits from any number.
std::uint32_t hash(std::uint32_t x);

} // namespace meridax::simcam
