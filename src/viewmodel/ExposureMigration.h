#pragma once

#include "camera/CameraCapabilities.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace meridax {

/// Moves an exposure of the interface's former scale (-6..6) onto the hardware's `range`: linearly,
/// then onto the grid that the range's step spans from its minimum. A value that already lies in
/// the range, whatever scale it came from, stays; so does every value where the range is
/// unsupported or empty (max < min).
inline int migratedExposure(int value, const ControlRange &range)
{
    const bool usable = range.supported && range.min <= range.max;
    if (!usable || (value >= range.min && value <= range.max))
        return value;

    constexpr double formerLimit = 6.0;
    const double former = std::clamp<double>(value, -formerLimit, formerLimit);
    const std::int64_t min = range.min;
    const std::int64_t max = range.max;
    std::int64_t raw =
        std::llround((former + formerLimit) / (2 * formerLimit) * static_cast<double>(max - min) +
                     static_cast<double>(min));
    if (range.step > 1) {
        const std::int64_t offset = raw - min + range.step / 2;
        raw = min + offset - offset % range.step;
    }
    return static_cast<int>(std::clamp(raw, min, max));
}

} // namespace meridax
