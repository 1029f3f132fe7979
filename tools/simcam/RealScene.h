#pragma once

#include "DiscMark.h"
#include "Grain.h"
#include "Planes.h"
#include "SceneInputs.h"

#include <array>
#include <vector>

namespace meridax::simcam {

/// Draws a scene nearer to reality: a lit surface with grain and a dark mark, which turns as a
/// whole, seen through a lens that may be out of focus on a sensor with vignetting and dust, which
/// stay in place.
///
/// Light is multiplied throughout: grain, fall of the light, vignetting and dust act on ground and
/// mark alike.
class RealScene
{
public:
    /// The picture of `inputs` without pixel noise; valid until the next call.
    const Planes &draw(const SceneInputs &inputs);

private:
    /// Finished grey levels over the light, in steps of 1 / kLightSteps.
    static constexpr int kLightSteps = 16;
    using Tones = std::array<std::uint8_t, 256 * kLightSteps>;

    void drawSensor(const SceneInputs &inputs);
    void drawRow(const SceneInputs &inputs, unsigned y);
    void lightRow(const SceneInputs &inputs, unsigned y);
    void limitRow(const SceneInputs &inputs, unsigned y);
    void markRow(const SceneInputs &inputs, unsigned y);

    SceneInputs m_drawn;
    Grain m_grain;
    std::vector<float> m_sensor; ///< part of the light that vignetting and dust leave
    std::vector<DiscMark> m_marks;
    std::vector<float> m_light; ///< of one row
    std::vector<float> m_grey;  ///< of the surface in one row
    Tones m_tones{};
    Planes m_planes;
};

} // namespace meridax::simcam
