#include "PixelNoise.h"

#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

constexpr std::size_t kTableSize = 1 << 16;
constexpr std::size_t kLongestRow = 8192;
constexpr double kUnit = 28; // of a table of unit deviates: 4.5 of them fit into 8 bits
constexpr int kOneBits = 13;
constexpr int kOne = 1 << kOneBits;

/// Normal deviates of `sigma`, rounded, with the beginning repeated behind the end.
std::vector<std::int8_t> noiseTable(double sigma)
{
    std::vector<std::int8_t> table(kTableSize + kLongestRow);
    for (std::uint32_t i = 0; i < kTableSize; i += 2) {
        const double r = std::sqrt(-2 * std::log((hash(2 * i + 1) + 0.5) / 4294967296.0));
        const double a = 2 * std::numbers::pi * hash(2 * i + 2) / 4294967296.0;
        const auto entry = [&](double x) {
            return static_cast<std::int8_t>(std::clamp(std::lround(sigma * r * x), -127L, 127L));
        };
        table[i] = entry(std::cos(a));
        table[i + 1] = entry(std::sin(a));
    }
    std::copy_n(table.begin(), kLongestRow, table.begin() + kTableSize);
    return table;
}

} // namespace

void PixelNoise::prepare(const NoiseLevels &levels)
{
    if (m_levels == levels)
        return;
    m_levels = levels;
    // Deviates alike everywhere are rounded in the table. Where sigma depends on the grey level the
    // table has unit deviates, which are multiplied by it.
    m_table = noiseTable(levels.photons > 0 ? kUnit : levels.read);
    for (std::size_t grey = 0; grey < m_sigma.size(); ++grey) {
        const double photons = levels.photons * levels.photons * double(grey) / 128;
        const double sigma = std::sqrt(levels.read * levels.read + photons);
        m_sigma[grey] = static_cast<std::int32_t>(std::lround(sigma * kOne / kUnit));
    }
}

void PixelNoise::add(std::vector<std::uint8_t> &luma, unsigned width, const NoiseLevels &levels,
                     std::uint32_t seed)
{
    if (levels.isNone())
        return;
    prepare(levels);
    const std::size_t rows = luma.size() / width;
    for (std::size_t y = 0; y < rows; ++y) {
        const std::uint32_t start = hash(seed * 4099 + static_cast<std::uint32_t>(y));
        const std::int8_t *noise = m_table.data() + start % kTableSize;
        std::uint8_t *row = luma.data() + y * width;
        for (unsigned x = 0; x < width; ++x) {
            const int deviation =
                levels.photons > 0 ? (noise[x] * m_sigma[row[x]] + kOne / 2) >> kOneBits : noise[x];
            const int value = row[x] + deviation;
            row[x] = static_cast<std::uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value);
        }
    }
}

} // namespace meridax::simcam
