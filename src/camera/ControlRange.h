#pragma once

namespace meridax {

/// Range of one hardware control in the unit of its backend, mostly the hardware's own.
/// A control with `canAuto` is in automatic mode when its value is at or below `min`.
struct ControlRange
{
    int min = 0;
    int max = 0;
    int step = 1; ///< smallest change; never below 1 once a backend has filled it
    int defaultValue = 0;
    bool supported = false; ///< false: no other field has a meaning
    bool canAuto = false;

    bool operator==(const ControlRange &) const = default;
};

} // namespace meridax
