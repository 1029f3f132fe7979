#include "camera/DirectShowControls.h"
#include "camera/ControlRules.h"
#include "camera/DirectShowFilter.h"

#include <optional>

namespace meridax::directshow {

using Microsoft::WRL::ComPtr;

namespace {

// Both interfaces have the same calls and give the two modes the same values, but share no base.
constexpr long flagAutomatic = CameraControl_Flags_Auto;
constexpr long flagManual = CameraControl_Flags_Manual;
static_assert(flagAutomatic == VideoProcAmp_Flags_Auto && flagManual == VideoProcAmp_Flags_Manual);

template <typename Interface>
std::optional<ControlRange> rangeOf(Interface &controls, long property)
{
    long min = 0;
    long max = 0;
    long step = 0;
    long defaultValue = 0;
    long flags = 0;
    if (FAILED(controls.GetRange(property, &min, &max, &step, &defaultValue, &flags)))
        return {};
    return supportedRange(min, max, step, defaultValue, flags & flagAutomatic);
}

template <typename Interface>
bool set(Interface &controls, long property, const ControlWrite &write)
{
    const long flags = write.automatic ? flagAutomatic : flagManual;
    return SUCCEEDED(controls.Set(property, write.value, flags));
}

bool setExposureAndFocus(IBaseFilter &filter, const Values &values)
{
    ComPtr<IAMCameraControl> controls;
    if (FAILED(filter.QueryInterface(IID_PPV_ARGS(controls.GetAddressOf()))))
        return false;
    bool accepted = false;
    if (const auto write =
            exposureWrite(values.exposure, rangeOf(*controls.Get(), CameraControl_Exposure)))
        accepted = set(*controls.Get(), CameraControl_Exposure, *write);
    const ControlWrite focus =
        controlWrite(values.focus, rangeOf(*controls.Get(), CameraControl_Focus));
    return set(*controls.Get(), CameraControl_Focus, focus) || accepted;
}

bool setProcAmpValue(IBaseFilter &filter, long property, int value, const Log &log)
{
    ComPtr<IAMVideoProcAmp> controls;
    if (FAILED(filter.QueryInterface(IID_PPV_ARGS(controls.GetAddressOf()))))
        return false;
    const ControlWrite write = controlWrite(value, rangeOf(*controls.Get(), property));
    const bool accepted = set(*controls.Get(), property, write);

    ControlReadBack readBack;
    long valueRead = 0;
    long flagsRead = 0;
    if (SUCCEEDED(controls->Get(property, &valueRead, &flagsRead)))
        readBack = {static_cast<int>(valueRead), static_cast<int>(flagsRead)};
    log(procAmpLogLine(static_cast<std::uint32_t>(property), write, accepted, readBack));
    return accepted;
}

} // namespace

bool applyValues(const Camera &camera, const Values &values, const Log &log, std::wstring &error)
{
    error.clear();
    const ComScope com;
    if (com.failed()) {
        error = failureText(L"COM-Initialisierung fehlgeschlagen: %1", com.result());
        return false;
    }
    const ComPtr<IBaseFilter> filter = bindFilter(camera, error);
    if (!filter)
        return false;
    bool accepted = setExposureAndFocus(*filter.Get(), values);
    const std::pair<long, int> imageControls[] = {{VideoProcAmp_Brightness, values.brightness},
                                                  {VideoProcAmp_Contrast, values.contrast},
                                                  {VideoProcAmp_Saturation, values.saturation},
                                                  {VideoProcAmp_Gain, values.gain}};
    for (const auto &[property, value] : imageControls)
        accepted |= setProcAmpValue(*filter.Get(), property, value, log);
    return accepted;
}

bool queryRanges(const Camera &camera, Ranges &ranges, std::wstring &error)
{
    error.clear();
    // Before COM, so that a failure leaves a clean record.
    ranges = {};
    const ComScope com;
    if (com.failed()) {
        error = failureText(L"COM init fehlgeschlagen: %1", com.result());
        return false;
    }
    const ComPtr<IBaseFilter> filter = bindFilter(camera, error);
    if (!filter)
        return false;

    bool any = false;
    const auto read = [&any](auto &controls, long property, ControlRange &range) {
        if (const auto answer = rangeOf(controls, property)) {
            range = *answer;
            any = true;
        }
    };
    ComPtr<IAMCameraControl> camControl;
    if (SUCCEEDED(filter.As(&camControl))) {
        read(*camControl.Get(), CameraControl_Exposure, ranges.exposure);
        read(*camControl.Get(), CameraControl_Focus, ranges.focus);
    }
    ComPtr<IAMVideoProcAmp> procAmp;
    if (SUCCEEDED(filter.As(&procAmp))) {
        read(*procAmp.Get(), VideoProcAmp_Brightness, ranges.brightness);
        read(*procAmp.Get(), VideoProcAmp_Contrast, ranges.contrast);
        read(*procAmp.Get(), VideoProcAmp_Saturation, ranges.saturation);
        read(*procAmp.Get(), VideoProcAmp_Gain, ranges.gain);
        read(*procAmp.Get(), VideoProcAmp_Gamma, ranges.gamma);
        read(*procAmp.Get(), VideoProcAmp_WhiteBalance, ranges.whiteBalance);
    }
    return any;
}

} // namespace meridax::directshow
