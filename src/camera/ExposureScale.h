#pragma once

#include "camera/ControlRange.h"

namespace meridax {

/// What the numbers of an exposure mean: base-2 logarithms of a time in seconds.
enum class ExposureScale {
    Stops,         ///< one step doubles the time, -7 is 1/128 s
    TenthsOfAStop, ///< ten steps double the time, -70 is 1/128 s
};

/// The time of an exposure in milliseconds.
double exposureMs(int exposure, ExposureScale scale);

/// Exposure in tenths of a stop for a time in V4L2's unit of 0.1 ms, at most 0.6 s; a time below
/// 0.1 ms counts as that. The scale ends there, so that the numbers -6 to 6 of the interface's
/// former scale, and 0 of a camera for which nothing has been chosen, are no times of it.
int exposureOfUnits(int units);

/// The way back: what exposureOfUnits() made of these units gives the same exposure again. Below
/// 1.4 ms, where a tenth of a stop is less than the unit, neighbours share theirs.
int unitsOfExposure(int exposure);

/// The range of a driver that counts in V4L2's unit, in tenths of a stop.
ControlRange exposureRangeOfUnits(const ControlRange &units);

/// `value` as an exposure of the hardware's `range`, which counts in `scale`. A value inside the
/// range stays, whatever scale it came from; so does every value where the range is unsupported or
/// empty (max < min).
///
/// Outside it is a value of the interface's former scale, -6 to 6, and goes to the same place in
/// the range, on the grid that the range's step spans from its minimum. On the scale in tenths of a
/// stop 0 is automatic where the camera can be, and what earlier versions stored in the driver's
/// unit is the same time again, and automatic if it was.
int migratedExposure(int value, const ControlRange &range, ExposureScale scale);

} // namespace meridax
