#pragma once

#include <algorithm>
#include <cmath>

namespace meridax {

/// Focus distance 0..1 of Qt's camera interface for a focus value in the camera's own unit.
/// `rangeMax` is the top of the camera's focus range; a value of 0 or below stands for 100.
inline float focusDistance(int focusValue, int rangeMax)
{
    const double range = rangeMax > 0 ? rangeMax : 100;
    return static_cast<float>(std::clamp(focusValue / range, 0.0, 1.0));
}

/// Exposure time in seconds for a value of the interface's scale -6..6, a base-2 logarithm:
/// -6 gives 1/256 s and 6 gives 1 s.
inline float exposureSeconds(int exposure)
{
    const double e = std::clamp(exposure, -6, 6);
    return static_cast<float>(std::exp2((e + 6.0) / 12.0 * 8.0 - 8.0));
}

} // namespace meridax
