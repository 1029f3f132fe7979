#pragma once

#include "camera/ControlRange.h"

#include <functional>
#include <string>

/// The controls of a camera by DirectShow, on a capture filter of its own beside the stream. Free
/// of Qt. Each call is complete in itself: it initialises COM, binds the filter and releases all.
namespace meridax::directshow {

/// The camera that the settings name.
struct Camera
{
    std::wstring name; ///< compared ignoring case
    std::wstring id;   ///< found in the device path, with or without what stands before "\\?\usb"
    int index = 0;     ///< counts if neither fits
};

/// Values in the hardware's units, exposure as a base-2 logarithm of seconds. A value at or below
/// the lower end of its range means automatic where the hardware has such a mode.
struct Values
{
    int exposure = 0;
    int focus = 0;
    int brightness = 0;
    int contrast = 0;
    int saturation = 0;
    int gain = 0;
};

struct Ranges
{
    ControlRange exposure;
    ControlRange focus;
    ControlRange brightness;
    ControlRange contrast;
    ControlRange saturation;
    ControlRange gain;
    ControlRange gamma;
    ControlRange whiteBalance;
};

/// Takes one line for each image control that was written.
using Log = std::function<void(const std::string &line)>;

/// Writes all values. True if at least one was accepted; `error` is emptied and holds a text where
/// the camera could not be reached.
bool applyValues(const Camera &camera, const Values &values, const Log &log, std::wstring &error);

/// Resets `ranges` and fills in those that the camera tells. True if there is at least one.
bool queryRanges(const Camera &camera, Ranges &ranges, std::wstring &error);

} // namespace meridax::directshow
