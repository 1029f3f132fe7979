#include "camera/ExposureScale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace meridax {

namespace {

constexpr double kFormerLimit = 6.0;
constexpr int kLongest = -7;
constexpr double kUnitsPerSecond = 1e4;
constexpr double kTenths = 10.0;

int clampToRange(int value, const ControlRange &range)
{
    return std::clamp(value, range.min, range.max);
}

/// The place of `value` on the former scale, in `range`.
int placeInRange(int value, const ControlRange &range)
{
    const double former = std::clamp<double>(value, -kFormerLimit, kFormerLimit);
    const std::int64_t min = range.min;
    const std::int64_t max = range.max;
    std::int64_t raw =
        std::llround((former + kFormerLimit) / (2 * kFormerLimit) * static_cast<double>(max - min) +
                     static_cast<double>(min));
    if (range.step > 1) {
        const std::int64_t offset = raw - min + range.step / 2;
        raw = min + offset - offset % range.step;
    }
    return static_cast<int>(std::clamp(raw, min, max));
}

} // namespace

double exposureMs(int exposure, ExposureScale scale)
{
    return 1e3 * std::exp2(scale == ExposureScale::Stops ? exposure : exposure / kTenths);
}

int exposureOfUnits(int units)
{
    const double seconds = std::max(units, 1) / kUnitsPerSecond;
    return std::min(static_cast<int>(std::lround(kTenths * std::log2(seconds))), kLongest);
}

int unitsOfExposure(int exposure)
{
    const double seconds = std::exp2(std::min(exposure, kLongest) / kTenths);
    return static_cast<int>(std::lround(kUnitsPerSecond * seconds));
}

ControlRange exposureRangeOfUnits(const ControlRange &units)
{
    ControlRange range = units;
    range.min = exposureOfUnits(units.min);
    range.max = exposureOfUnits(units.max);
    range.step = 1;
    range.defaultValue = exposureOfUnits(units.defaultValue);
    return range;
}

int migratedExposure(int value, const ControlRange &range, ExposureScale scale)
{
    const bool usable = range.supported && range.min <= range.max;
    if (!usable || (value >= range.min && value <= range.max))
        return value;
    if (scale == ExposureScale::Stops)
        return placeInRange(value, range);

    if (value == 0 && range.canAuto)
        return range.min;
    if (value < -kFormerLimit)
        return clampToRange(value, range);
    const int stored = clampToRange(exposureOfUnits(value), range);
    const bool wasAutomatic = value > 0 && range.canAuto && stored == range.min;
    return value > kFormerLimit || wasAutomatic ? stored : placeInRange(value, range);
}

} // namespace meridax
