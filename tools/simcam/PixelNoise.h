#pragma once

#include <cstdint>
#include <vector>

namespace meridax::simcam {

/// Normally distributed pixel noise from a table, which keeps it cheaper than the encoding.
class PixelNoise
{
public:
    /// Adds noise of `sigma` grey levels, another one for each `seed`, to a grey image of `width`
    /// columns.
    void add(std::vector<std::uint8_t> &luma, unsigned width, double sigma, std::uint32_t seed);

private:
    std::vector<std::int8_t> m_table;
    double m_sigma = 0; ///< of m_table
};

} // namespace meridax::simcam
