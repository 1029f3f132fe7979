#pragma once

#include "Controls.h"

namespace meridax::simcam {

/// Grey level in the finished picture of a place of the scene with grey level `light`, not rounded.
double tone(const Picture &picture, double light);

/// Colour of the picture where the share `brass` (0 to 1) of the ground is coloured metal; 128 is
/// neutral.
struct Chroma
{
    std::uint8_t u;
    std::uint8_t v;
};
Chroma chroma(const Picture &picture, double brass);

} // namespace meridax::simcam
