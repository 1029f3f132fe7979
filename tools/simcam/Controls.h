#pragma once

#include "StateFile.h"

#include <linux/videodev2.h>
#include <span>

namespace meridax::simcam {

/// One hardware control as V4L2 describes it.
struct Control
{
    std::uint32_t id;
    std::uint32_t type;
    const char *name;
    int min;
    int max;
    int defaultValue;
    const char *const *menu = nullptr;
    std::uint32_t menuMask = 0;    ///< bit i: menu entry i exists
    std::uint32_t refusedMask = 0; ///< bit i: it does, but cannot be chosen
    std::uint32_t master = 0;      ///< control whose automatic mode takes this one over
    int masterManual = 0;          ///< value of the master that leaves this control to the user
    unsigned cameras = 0;          ///< bit i: offered where the parameter `controls` is i
    std::uint32_t flags = 0;       ///< V4L2_CTRL_FLAG_* that never change

    bool isClass() const { return type == V4L2_CTRL_TYPE_CTRL_CLASS; }
    bool is64Bit() const { return type == V4L2_CTRL_TYPE_INTEGER64; }
};

/// All controls of all kinds of cameras, ascending by id as walking them one by one needs. Those
/// of one id belong to different cameras.
std::span<const Control> controls();
/// True if the camera has this control.
bool isOffered(const State &state, const Control &control);
/// The camera's control of that id, null if it has none.
const Control *findControl(const State &state, std::uint32_t id);

/// Slot of `control` in State::control.
unsigned slotOf(const Control &control);

/// Gives all parameters and controls their values of a new camera.
void setDefaults(State &state);

/// V4L2_CTRL_FLAG_* of the control in the present state.
std::uint32_t controlFlags(const State &state, const Control &control);

/// Brings `value` into range as a driver does; 0, or a negative errno for a value it refuses.
int validate(const Control &control, std::int32_t &value);

/// What the controls make of the picture.
struct Picture
{
    double exposure;   ///< factor of the light, 1 at the automatic exposure
    double gain;       ///< factor of the signal and its noise
    double contrast;   ///< slope about mid-grey
    double brightness; ///< added [grey levels]
    double gamma;      ///< 1 leaves the tones alone
    double saturation; ///< factor of the colours
    double hue;        ///< rotation of the colours [deg]
    double warmth;     ///< -1 blue to 1 yellow, 0 neutral
    int softness;      ///< steps of the sharpness control below its middle, else 0
    int sharpness;     ///< steps above it, else 0
    double blur;       ///< of focus and defocus, sigma [px at 720]

    bool operator==(const Picture &) const = default;
};
Picture pictureOf(const State &state);

/// The camera forgets what was set in it. What the driver remembers stays.
void forgetControls(State &state);

/// Shortest time between two frames that the exposure leaves [s].
double exposureTime(const State &state);

} // namespace meridax::simcam
