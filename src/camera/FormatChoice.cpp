#include "camera/FormatChoice.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace meridax {

namespace {

constexpr float kSlowestFreeRate = 15.0f;
constexpr float kEqualRate = 0.001f;

// 64 bits, since a wanted size from a damaged settings file can be anything.
std::int64_t formatCost(const FormatCandidate &format, QSize wanted)
{
    const std::int64_t cost = std::abs(std::int64_t{format.size.width()} - wanted.width()) +
                              std::abs(std::int64_t{format.size.height()} - wanted.height());
    const float fps = format.maxFrameRate;
    if (fps > 0.0f && fps < kSlowestFreeRate)
        return cost + static_cast<std::int64_t>((kSlowestFreeRate - fps) * 100.0f);
    return cost;
}

} // namespace

int chooseFormat(std::span<const FormatCandidate> formats, QSize wanted)
{
    if (formats.empty())
        return -1;

    size_t best = 0;
    std::int64_t bestCost = std::numeric_limits<std::int32_t>::max();
    for (size_t i = 0; i < formats.size(); ++i) {
        const FormatCandidate &candidate = formats[i];
        const FormatCandidate &current = formats[best];
        const std::int64_t cost = formatCost(candidate, wanted);
        const bool sameRate = std::abs(candidate.maxFrameRate - current.maxFrameRate) < kEqualRate;
        const bool compressesBetter = sameRate && candidate.jpeg && !current.jpeg;
        const bool takesOver =
            compressesBetter ? cost <= bestCost
                             : cost < bestCost || (cost == bestCost &&
                                                   candidate.maxFrameRate > current.maxFrameRate);
        if (takesOver) {
            best = i;
            bestCost = cost;
        }
    }
    return static_cast<int>(best);
}

} // namespace meridax
