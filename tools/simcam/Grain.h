#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace meridax::simcam {

/// The grain of a surface: random structure of several sizes on a square that repeats itself, held
/// at several steps of defocus, each made when first needed.
class Grain
{
public:
    /// Gets the grain ready for at(): of `contrast` (sigma over mean where it is sharp), spread by
    /// discs of `spread` px at 720. What lies between two steps is mixed from them.
    void prepare(double contrast, double spread);

    /// Side of the square [px at 720].
    static constexpr int kSide = 1024;
    /// Where at() takes its coordinates from: steps per px at 720.
    static constexpr int kFractionBits = 16;

    /// Brightness at a place of the surface, 1 on average.
    float at(std::uint32_t x, std::uint32_t y) const
    {
        const std::uint32_t x0 = x >> kFractionBits & (kSide - 1);
        const std::uint32_t y0 = y >> kFractionBits & (kSide - 1);
        const std::uint32_t x1 = (x0 + 1) & (kSide - 1);
        const std::uint32_t y1 = (y0 + 1) & (kSide - 1);
        const float fx = float(x & 0xffff) / 65536.0F;
        const float fy = float(y & 0xffff) / 65536.0F;
        const float *upper = m_ready.data() + std::size_t(y0) * kSide;
        const float *lower = m_ready.data() + std::size_t(y1) * kSide;
        const float above = upper[x0] + fx * (upper[x1] - upper[x0]);
        const float below = lower[x0] + fx * (lower[x1] - lower[x0]);
        return above + fy * (below - above);
    }

private:
    static constexpr std::size_t kSteps = 7;

    const std::vector<float> &step(std::size_t index);

    std::array<std::vector<float>, kSteps> m_step; ///< sigma 1 where sharp
    std::vector<float> m_ready;
    double m_contrast = -1; ///< of m_ready
    double m_spread = -1;
};

} // namespace meridax::simcam
