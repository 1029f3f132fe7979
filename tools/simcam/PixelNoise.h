#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace meridax::simcam {

/// Sigma of the pixel noise [grey levels].
struct NoiseLevels
{
    double read = 0;    ///< the same everywhere
    double photons = 0; ///< at grey level 128; its variance grows with the signal

    bool operator==(const NoiseLevels &) const = default;
    bool isNone() const { return read <= 0 && photons <= 0; }
};

/// Normally distributed pixel noise from a table, which keeps it cheaper than the encoding.
class PixelNoise
{
public:
    /// Adds noise of `levels`, another one for each `seed`, to a grey image of `width` columns.
    void add(std::vector<std::uint8_t> &luma, unsigned width, const NoiseLevels &levels,
             std::uint32_t seed);

private:
    void prepare(const NoiseLevels &levels);

    std::vector<std::int8_t> m_table;        ///< deviates, in units of the sigma at one grey level
    std::array<std::int32_t, 256> m_sigma{}; ///< of those units, per grey level
    NoiseLevels m_levels;                    ///< what the two were made for
};

} // namespace meridax::simcam
