#pragma once

#include "Geometry.h"

#include <array>
#include <vector>

namespace meridax::simcam {

/// Where the parts of the ground lie in one frame.
struct GroundLayout
{
    FrameSize size;
    Point center;      ///< of all rings [px]
    double pathRadius; ///< of the mark [px]
    double clearance;  ///< plain ground left and right of the path [px]

    bool operator==(const GroundLayout &) const = default;
};

/// The lit end of the sleeve without the mark: concentric rings, ticks and fine texture to focus
/// on, and a plain band where the mark runs. The brightest spot is the centre, so that no set of
/// concentric rings is ever taken for a dark round mark.
///
/// The picture is held at several steps of blur, each made when first needed; what lies between
/// two steps is mixed from them.
class Ground
{
public:
    /// Draws the ground anew if `layout` is not the one it was drawn for.
    void prepare(const GroundLayout &layout);

    /// Two steps of blur and the share of the second one. A negative share sharpens.
    struct Mix
    {
        const std::uint8_t *first;
        const std::uint8_t *second;
        float share;

        float at(std::size_t i) const
        {
            return float(first[i]) + share * (float(second[i]) - float(first[i]));
        }
    };

    /// The ground blurred by `sigma` px; `sharpening` exaggerates the edges.
    Mix blurred(double sigma, double sharpening);

    /// Share of the coloured metal per pair of pixels, 0 to 255.
    const std::vector<std::uint8_t> &tint() const { return m_tint; }

private:
    static constexpr std::size_t kSteps = 7;

    void draw();
    const std::uint8_t *step(std::size_t index);

    GroundLayout m_layout{};
    std::array<std::vector<std::uint8_t>, kSteps> m_step;
    std::vector<std::uint8_t> m_tint;
};

} // namespace meridax::simcam
