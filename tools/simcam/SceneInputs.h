#pragma once

#include "Controls.h"
#include "Ground.h"
#include "PixelNoise.h"

#include <array>

namespace meridax::simcam {

/// What only the scene nearer to reality has. Lengths in px of the frame, grey levels at light 1.
struct Surface
{
    Point origin;     ///< what the surface turns about, position noise and form error included
    double angle = 0; ///< by which it has turned [deg]
    double groundGrey = 0;
    double markAxes = 1;   ///< shorter axis of the mark over the longer one
    double lightFall = 0;  ///< part of the light lost over a frame height
    double vignetting = 0; ///< part of the light lost in the corners
    double grain = 0;      ///< sigma [grey levels]
    unsigned dust = 0;     ///< specks

    bool operator==(const Surface &) const = default;
};

/// Everything that a frame of the scene depends on, taken from the state at one moment.
struct SceneInputs
{
    GroundLayout ground{};
    Picture picture{};
    unsigned marks = 0;
    std::array<Point, 2> mark; ///< [px]
    double markRadius = 0;     ///< of the longer axis [px]
    double markGrey = 0;
    NoiseLevels noise{};
    bool isReal = false; ///< the scene nearer to reality
    Surface surface{};   ///< of that scene

    bool operator==(const SceneInputs &) const = default;
};

/// Takes the inputs of frame `frame` at time `nowMs` from the state.
SceneInputs sceneInputs(const State &state, FrameSize size, std::uint32_t frame,
                        std::uint32_t nowMs);

} // namespace meridax::simcam
