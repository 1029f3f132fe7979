#pragma once

#include "camera/ControlRange.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The decisions that all camera backends share: which device is meant, and what is written to a
/// control. Free of Qt and of any platform, so that a backend only makes its platform's calls.
namespace meridax {

/// `value` as far as 32 bits reach.
int to32Bits(std::int64_t value);

/// The range that a device tells for a control: what lies beyond 32 bits is cut to them, and a step
/// below 1 becomes 1.
ControlRange supportedRange(std::int64_t min, std::int64_t max, std::int64_t step,
                            std::int64_t defaultValue, bool canAuto);

/// What goes to one control.
struct ControlWrite
{
    int value = 0; ///< in automatic mode the hardware's default
    bool automatic = false;

    bool operator==(const ControlWrite &) const = default;
};

/// `value` on the nearest step of the range, counted from its lower end, and inside the range.
int snapToStep(int value, const ControlRange &range);

/// Exposure: automatic at or below the lower end of a range with automatic mode, else on a step.
/// Nothing is written to a control whose range cannot be read.
std::optional<ControlWrite> exposureWrite(int value, const std::optional<ControlRange> &range);

/// Focus and the image controls: automatic at or below the lower end of a range with automatic
/// mode, else clamped but not snapped. Without a range the value goes out as it stands.
ControlWrite controlWrite(int value, const std::optional<ControlRange> &range);

/// The lowest value that is not automatic mode; the lower end where the control has none.
int firstManualValue(const ControlRange &range);

/// Value and mode that a device reports of a control after a write.
struct ControlReadBack
{
    int value = -1;
    int flags = -1; ///< 1 automatic, 2 manual; -1 when the control could not be read
};

/// The log line that tells a write to the image control number `property` and its outcome.
std::string procAmpLogLine(std::uint32_t property, const ControlWrite &write, bool accepted,
                           const ControlReadBack &readBack);

/// Name and path of a device, both folded to one case by the platform's own rules.
struct DeviceNames
{
    std::wstring name;
    std::wstring path;
};

/// The device that the settings name; the texts are folded as in DeviceNames. Empty texts fit
/// nothing.
struct WantedDevice
{
    std::wstring name;
    std::wstring id;
    int index = 0;
};

/// True if the identifier is found in the device's path. An identifier that carries something in
/// front of a USB device path fits by that path alone.
bool idFitsPath(const std::wstring &id, const std::wstring &path);

/// Position in `devices` of the first one that fits by name or by path, wherever it stands; else
/// the one at the wanted index; -1 when that lies outside.
int chooseByNameOrPath(const std::vector<DeviceNames> &devices, const WantedDevice &wanted);

} // namespace meridax
