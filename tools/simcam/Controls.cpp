#include "Controls.h"

#include <algorithm>
#include <cerrno>
#include <cmath>

namespace meridax::simcam {

namespace {

constexpr int kNominalExposure = 333; // in units of 100 us; the automatic exposure arrives here
constexpr int kFocusMax = 1023;
constexpr int kNeutralSharpness = 3;

const char *const kExposureMenu[] = {"Auto Mode", "Manual Mode", "Shutter Priority Mode",
                                     "Aperture Priority Mode"};
const char *const kPowerLineMenu[] = {"Disabled", "50 Hz", "60 Hz"};

constexpr std::uint32_t kInteger = V4L2_CTRL_TYPE_INTEGER;
constexpr std::uint32_t kInteger64 = V4L2_CTRL_TYPE_INTEGER64;
constexpr std::uint32_t kBoolean = V4L2_CTRL_TYPE_BOOLEAN;
constexpr std::uint32_t kMenu = V4L2_CTRL_TYPE_MENU;
constexpr std::uint32_t kClass = V4L2_CTRL_TYPE_CTRL_CLASS;

// Kinds of cameras by the values of the parameter `controls`.
constexpr unsigned kSimple = 1U << 1;
constexpr unsigned kFocusFromZero = 1U << 2;
constexpr unsigned kOdd = 1U << 3;
constexpr unsigned kFocusFromOne = 1U << 4;
constexpr unsigned kCommon = kFocusFromZero | kFocusFromOne;

/// `control` with an automatic mode that is ruled by `master`.
constexpr Control ruledBy(std::uint32_t master, int manual, Control control)
{
    control.master = master;
    control.masterManual = manual;
    return control;
}

constexpr Control menu(const char *const *entries, std::uint32_t mask, Control control)
{
    control.menu = entries;
    control.menuMask = mask;
    return control;
}

/// The menu `control` with entries that are refused when chosen.
constexpr Control refusing(std::uint32_t mask, Control control)
{
    control.refusedMask = mask;
    return control;
}

constexpr Control on(unsigned cameras, Control control, std::uint32_t flags = 0)
{
    control.cameras = cameras;
    control.flags = flags;
    return control;
}

constexpr Control kControls[] = {
    on(kSimple | kCommon | kOdd, {V4L2_CID_USER_CLASS, kClass, "User Controls", 0, 0, 0}),
    on(kSimple | kCommon, {V4L2_CID_BRIGHTNESS, kInteger, "Brightness", -64, 64, 0}),
    on(kOdd, ruledBy(V4L2_CID_AUTOBRIGHTNESS, 0,
                     {V4L2_CID_BRIGHTNESS, kInteger, "Brightness", -64, 64, 0})),
    on(kSimple | kCommon, {V4L2_CID_CONTRAST, kInteger, "Contrast", 0, 64, 32}),
    on(kOdd, {V4L2_CID_CONTRAST, kInteger64, "Contrast", 0, 64, 32}),
    on(kSimple | kCommon, {V4L2_CID_SATURATION, kInteger, "Saturation", 0, 128, 64}),
    on(kOdd, {V4L2_CID_SATURATION, kInteger, "Saturation", 0, 128, 64}, V4L2_CTRL_FLAG_READ_ONLY),
    on(kSimple | kCommon | kOdd, {V4L2_CID_HUE, kInteger, "Hue", -40, 40, 0}),
    on(kCommon | kOdd,
       {V4L2_CID_AUTO_WHITE_BALANCE, kBoolean, "White Balance, Automatic", 0, 1, 1}),
    on(kCommon, {V4L2_CID_GAMMA, kInteger, "Gamma", 72, 500, 100}),
    on(kOdd, {V4L2_CID_GAMMA, kInteger, "Gamma", 72, 500, 100}, V4L2_CTRL_FLAG_DISABLED),
    on(kOdd, {V4L2_CID_AUTOGAIN, kBoolean, "Gain, Automatic", 0, 1, 1}),
    on(kCommon, {V4L2_CID_GAIN, kInteger, "Gain", 0, 100, 0}),
    on(kOdd, ruledBy(V4L2_CID_AUTOGAIN, 0, {V4L2_CID_GAIN, kInteger, "Gain", 0, 100, 0})),
    on(kCommon | kOdd,
       menu(kPowerLineMenu, 0b111,
            {V4L2_CID_POWER_LINE_FREQUENCY, kMenu, "Power Line Frequency", 0, 2, 1})),
    on(kCommon | kOdd, ruledBy(V4L2_CID_AUTO_WHITE_BALANCE, 0,
                               {V4L2_CID_WHITE_BALANCE_TEMPERATURE, kInteger,
                                "White Balance Temperature", 2800, 6500, 4600})),
    on(kCommon, {V4L2_CID_SHARPNESS, kInteger, "Sharpness", 0, 6, kNeutralSharpness}),
    on(kCommon, {V4L2_CID_BACKLIGHT_COMPENSATION, kInteger, "Backlight Compensation", 0, 2, 1}),
    on(kOdd, {V4L2_CID_AUTOBRIGHTNESS, kBoolean, "Brightness, Automatic", 0, 1, 1}),
    on(kCommon | kOdd, {V4L2_CID_CAMERA_CLASS, kClass, "Camera Controls", 0, 0, 0}),
    on(kCommon, menu(kExposureMenu, 0b1010,
                     {V4L2_CID_EXPOSURE_AUTO, kMenu, "Auto Exposure", 0, 3,
                      V4L2_EXPOSURE_APERTURE_PRIORITY})),
    on(kOdd, refusing(0b1000, menu(kExposureMenu, 0b1111,
                                   {V4L2_CID_EXPOSURE_AUTO, kMenu, "Auto Exposure", 0, 3,
                                    V4L2_EXPOSURE_AUTO}))),
    on(kCommon | kOdd, ruledBy(V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_MANUAL,
                               {V4L2_CID_EXPOSURE_ABSOLUTE, kInteger, "Exposure Time, Absolute", 1,
                                5000, kNominalExposure})),
    on(kCommon,
       {V4L2_CID_EXPOSURE_AUTO_PRIORITY, kBoolean, "Exposure, Dynamic Framerate", 0, 1, 0}),
    on(kFocusFromZero | kOdd,
       ruledBy(V4L2_CID_FOCUS_AUTO, 0,
               {V4L2_CID_FOCUS_ABSOLUTE, kInteger, "Focus, Absolute", 0, kFocusMax, 0})),
    on(kFocusFromOne,
       ruledBy(V4L2_CID_FOCUS_AUTO, 0,
               {V4L2_CID_FOCUS_ABSOLUTE, kInteger, "Focus, Absolute", 1, kFocusMax, 1})),
    on(kCommon | kOdd, {V4L2_CID_FOCUS_AUTO, kBoolean, "Focus, Automatic Continuous", 0, 1, 1}),
};
static_assert(std::size(kControls) <= State::kMaxControls);

/// What the camera holds of a control; of one that it does not have the default.
int valueOf(const State &state, std::uint32_t id)
{
    const Control *control = findControl(state, id);
    if (!control)
        control = std::find_if(std::begin(kControls), std::end(kControls),
                               [&](const Control &c) { return c.id == id; });
    return state.held[slotOf(*control)];
}

bool isManualExposure(const State &state)
{
    return valueOf(state, V4L2_CID_EXPOSURE_AUTO) == V4L2_EXPOSURE_MANUAL;
}

} // namespace

std::span<const Control> controls()
{
    return kControls;
}

bool isOffered(const State &state, const Control &control)
{
    return control.cameras >> static_cast<unsigned>(state.get(Param::Controls)) & 1;
}

const Control *findControl(const State &state, std::uint32_t id)
{
    for (const Control &c : kControls)
        if (c.id == id && isOffered(state, c))
            return &c;
    return nullptr;
}

unsigned slotOf(const Control &control)
{
    return static_cast<unsigned>(&control - kControls);
}

void setDefaults(State &state)
{
    for (std::size_t i = 0; i < kParamCount; ++i)
        state.param[i] = parameters()[i].defaultValue;
    for (const Control &control : kControls)
        state.control[slotOf(control)] = state.held[slotOf(control)] = control.defaultValue;
}

std::uint32_t controlFlags(const State &state, const Control &control)
{
    std::uint32_t flags = control.flags;
    if (control.isClass())
        flags |= V4L2_CTRL_FLAG_READ_ONLY | V4L2_CTRL_FLAG_WRITE_ONLY;
    for (const Control &other : kControls)
        if (other.master == control.id && isOffered(state, other))
            flags |= V4L2_CTRL_FLAG_UPDATE;
    if (control.master &&
        state.control[slotOf(*findControl(state, control.master))] != control.masterManual)
        flags |= V4L2_CTRL_FLAG_INACTIVE;
    return flags;
}

int validate(const Control &control, std::int32_t &value)
{
    switch (control.type) {
    case kBoolean:
        value = value ? 1 : 0;
        return 0;
    case kMenu:
        if (value < control.min || value > control.max)
            return -ERANGE;
        return (control.menuMask & ~control.refusedMask) >> value & 1 ? 0 : -EINVAL;
    default:
        value = std::clamp(value, control.min, control.max);
        return 0;
    }
}

Picture pictureOf(const State &state)
{
    const auto value = [&](std::uint32_t id) { return double(valueOf(state, id)); };
    Picture p{};
    p.exposure = isManualExposure(state) ? exposureTime(state) / (kNominalExposure * 1e-4) : 1;
    p.exposure *= 1 + 0.05 * (value(V4L2_CID_BACKLIGHT_COMPENSATION) - 1);
    p.gain = 1 + value(V4L2_CID_GAIN) / 50;
    p.contrast = value(V4L2_CID_CONTRAST) / 32;
    p.brightness = value(V4L2_CID_BRIGHTNESS);
    p.gamma = value(V4L2_CID_GAMMA) / 100;
    p.saturation = value(V4L2_CID_SATURATION) / 64;
    p.hue = value(V4L2_CID_HUE);
    p.warmth = value(V4L2_CID_AUTO_WHITE_BALANCE) != 0
                   ? 0
                   : (value(V4L2_CID_WHITE_BALANCE_TEMPERATURE) - 4600) / 1900;
    const int sharpness = valueOf(state, V4L2_CID_SHARPNESS) - kNeutralSharpness;
    p.softness = std::max(0, -sharpness);
    p.sharpness = std::max(0, sharpness);
    double blur = state.get(Param::Defocus);
    if (value(V4L2_CID_FOCUS_AUTO) == 0) {
        const double away = value(V4L2_CID_FOCUS_ABSOLUTE) - double(state.get(Param::FocusBest));
        blur = std::hypot(blur, away / kFocusMax * double(state.get(Param::FocusBlur)));
    }
    p.blur = blur;
    return p;
}

void forgetControls(State &state)
{
    for (const Control &control : kControls)
        state.held[slotOf(control)] = control.defaultValue;
}

double exposureTime(const State &state)
{
    if (!isManualExposure(state))
        return 0;
    const double wanted = valueOf(state, V4L2_CID_EXPOSURE_ABSOLUTE) * 1e-4;
    const bool maySlowDown =
        state.isOn(Param::LongExposures) || valueOf(state, V4L2_CID_EXPOSURE_AUTO_PRIORITY) != 0;
    return maySlowDown ? wanted : std::min(wanted, kNominalExposure * 1e-4);
}

} // namespace meridax::simcam
