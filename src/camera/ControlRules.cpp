#include "camera/ControlRules.h"

#include <algorithm>
#include <limits>

namespace meridax {

namespace {

constexpr int kFlagAutomatic = 1;
constexpr int kFlagManual = 2;

int clampToRange(int value, const ControlRange &range)
{
    // A device that reports its ends the wrong way round must not end in undefined behaviour.
    return std::min(std::max(value, range.min), range.max);
}

bool meansAutomatic(int value, const ControlRange &range)
{
    return range.canAuto && value <= range.min;
}

template <typename Fits>
int firstFitting(const std::vector<DeviceNames> &devices, Fits fits)
{
    const auto found = std::find_if(devices.begin(), devices.end(), fits);
    return found == devices.end() ? -1 : static_cast<int>(found - devices.begin());
}

} // namespace

int to32Bits(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

ControlRange supportedRange(std::int64_t min, std::int64_t max, std::int64_t step,
                            std::int64_t defaultValue, bool canAuto)
{
    return {.min = to32Bits(min),
            .max = to32Bits(max),
            .step = std::max(1, to32Bits(step)),
            .defaultValue = to32Bits(defaultValue),
            .supported = true,
            .canAuto = canAuto};
}

int snapToStep(int value, const ControlRange &range)
{
    if (range.step <= 1)
        return clampToRange(value, range);
    const std::int64_t offset = std::int64_t(value) - range.min + range.step / 2;
    return clampToRange(to32Bits(offset - offset % range.step + range.min), range);
}

std::optional<ControlWrite> exposureWrite(int value, const std::optional<ControlRange> &range)
{
    if (!range)
        return {};
    if (meansAutomatic(value, *range))
        return ControlWrite{range->defaultValue, true};
    return ControlWrite{snapToStep(value, *range), false};
}

ControlWrite controlWrite(int value, const std::optional<ControlRange> &range)
{
    if (!range)
        return {value, false};
    if (meansAutomatic(value, *range))
        return {range->defaultValue, true};
    return {clampToRange(value, *range), false};
}

int firstManualValue(const ControlRange &range)
{
    const std::int64_t next = std::int64_t(range.min) + std::max(range.step, 1);
    return range.canAuto ? clampToRange(to32Bits(next), range) : range.min;
}

std::string procAmpLogLine(std::uint32_t property, const ControlWrite &write, bool accepted,
                           const ControlReadBack &readBack)
{
    const int flags = write.automatic ? kFlagAutomatic : kFlagManual;
    return "[ProcAmp] prop=" + std::to_string(property) +
           " requested=" + std::to_string(write.value) + " flagsUsed=" + std::to_string(flags) +
           " setHR=" + (accepted ? "OK" : "FAIL") + " readBack=" + std::to_string(readBack.value) +
           " readBackFlags=" + std::to_string(readBack.flags);
}

bool idFitsPath(const std::wstring &id, const std::wstring &path)
{
    if (id.empty())
        return false;
    if (path.find(id) != std::wstring::npos)
        return true;
    const auto devicePath = id.find(L"\\\\?\\usb");
    return devicePath != std::wstring::npos &&
           path.find(id.substr(devicePath)) != std::wstring::npos;
}

int chooseByNameOrPath(const std::vector<DeviceNames> &devices, const WantedDevice &wanted)
{
    const int fitting = firstFitting(devices, [&](const DeviceNames &device) {
        return (!wanted.name.empty() && device.name == wanted.name) ||
               idFitsPath(wanted.id, device.path);
    });
    if (fitting >= 0)
        return fitting;
    const bool exists = wanted.index >= 0 && wanted.index < static_cast<int>(devices.size());
    return exists ? wanted.index : -1;
}

} // namespace meridax
