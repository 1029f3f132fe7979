#include "PixelNoise.h"

#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

constexpr std::size_t kTableSize = 1 << 16;
constexpr std::size_t kLongestRow = 8192;

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

void PixelNoise::add(std::vector<std::uint8_t> &luma, unsigned width, double sigma,
                     std::uint32_t seed)
{
    if (sigma <= 0)
        return;
    if (m_sigma != sigma) {
        m_table = noiseTable(sigma);
        m_sigma = sigma;
    }
    const std::size_t rows = luma.size() / width;
    for (std::size_t y = 0; y < rows; ++y) {
        const std::uint32_t start = hash(seed * 4099 + static_cast<std::uint32_t>(y));
        const std::int8_t *noise = m_table.data() + start % kTableSize;
        std::uint8_t *row = luma.data() + y * width;
        for (unsigned x = 0; x < width; ++x) {
            const int value = row[x] + noise[x];
            row[x] = static_cast<std::uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value);
        }
    }
}

} // namespace meridax::simcam
