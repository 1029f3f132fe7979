#include "Parameters.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace meridax::simcam {

namespace {

constexpr auto Real = ParamInfo::Real;
constexpr auto Integer = ParamInfo::Integer;
constexpr auto Switch = ParamInfo::Switch;
constexpr auto Errno = ParamInfo::Errno;

constexpr ParamInfo kParameters[] = {
    {"angle", Real, -1e6F, 1e6F, -45, false, "angle of the mark about the centre [deg]"},
    {"center-x", Real, -300, 300, 27.3F, false, "centre, right of the frame's middle [px at 720]"},
    {"center-y", Real, -300, 300, -18.6F, false, "centre, below the frame's middle [px at 720]"},
    {"radius", Real, 0, 0.6F, 0.3F, false, "radius of the mark's path [frame heights]"},
    {"mark-radius", Real, 0.005F, 0.2F, 0.03F, false, "radius of the mark [frame heights]"},
    {"mark-grey", Real, 0, 255, 18, false, "grey level of the mark"},
    {"marks", Integer, 0, 2, 1, false, "number of marks; the second is 120 deg further on"},
    {"form2", Real, -100, 100, 0, false, "form error of order 2, amplitude [px at 720]"},
    {"form3", Real, -100, 100, 0, false, "form error of order 3, amplitude [px at 720]"},
    {"form4", Real, -100, 100, 0, false, "form error of order 4, amplitude [px at 720]"},
    {"form5", Real, -100, 100, 0, false, "form error of order 5, amplitude [px at 720]"},
    {"form6", Real, -100, 100, 0, false, "form error of order 6, amplitude [px at 720]"},
    {"form7", Real, -100, 100, 0, false, "form error of order 7, amplitude [px at 720]"},
    {"phase2", Real, -360, 360, 0, false, "form error of order 2, phase [deg]"},
    {"phase3", Real, -360, 360, 0, false, "form error of order 3, phase [deg]"},
    {"phase4", Real, -360, 360, 0, false, "form error of order 4, phase [deg]"},
    {"phase5", Real, -360, 360, 0, false, "form error of order 5, phase [deg]"},
    {"phase6", Real, -360, 360, 0, false, "form error of order 6, phase [deg]"},
    {"phase7", Real, -360, 360, 0, false, "form error of order 7, phase [deg]"},
    {"dwell-noise", Real, 0, 50, 0, false,
     "position noise, new with every turn, sigma [px at 720]"},
    {"frame-noise", Real, 0, 50, 0, false,
     "position noise, new with every frame, sigma [px at 720]"},
    {"noise", Real, 0, 40, 2, false, "pixel noise, sigma [grey levels]"},
    {"defocus", Real, 0, 40, 0, false, "blur whatever the focus control says, sigma [px at 720]"},
    {"focus-best", Real, 0, 1023, 380, false, "value of the focus control that is sharp"},
    {"focus-blur", Real, 0, 200, 12, false, "blur a full focus range away, sigma [px at 720]"},
    {"scene", Integer, 0, 1, 0, false, "0 the lit end of a sleeve, 1 a surface nearer to reality"},
    {"ground-grey", Real, 0, 255, 110, false, "grey level of the ground in scene 1"},
    {"mark-axes", Real, 0.2F, 1, 1, false,
     "shorter axis of the mark over the longer one in scene 1"},
    {"light", Real, 0, 4, 1, false, "level of the light in scene 1"},
    {"light-fall", Real, 0, 0.9F, 0.15F, false,
     "loss of light over a frame height, turns with scene 1"},
    {"vignetting", Real, 0, 0.9F, 0.25F, false,
     "loss of light in the corners of the frame, scene 1"},
    {"grain", Real, 0, 30, 3, false, "grain of the sharp surface in scene 1, sigma [grey levels]"},
    {"dust", Integer, 0, 200, 12, false, "specks on the sensor, which do not turn, scene 1"},
    {"photon-noise", Real, 0, 40, 2, false,
     "noise of the light at grey level 128 in scene 1, sigma [grey levels]"},
    {"turn-positions", Integer, 0, 3600, 0, false, "positions of the automatic turn, 0 is off"},
    {"turn-dwell", Real, 0.05F, 3600, 3, false, "stay at each position of the automatic turn [s]"},
    {"turn-move", Real, 0, 60, 0.5F, false, "time of the way to the next position [s]"},
    {"play-frame", Integer, -1, 1e6F, -1, false,
     "number of the recorded frame to show, -1 all in order"},
    {"controls", Integer, 0, 4, 2, false,
     "0 none, 1 image controls only, 2 those of most cameras, 3 those of an odd one, 4 as 2 with a "
     "focus that begins at 1"},
    {"long-exposures", Switch, 0, 1, 0, false,
     "exposures are as long as asked, whatever the dynamic frame rate says"},
    {"forgets", Switch, 0, 1, 0, false,
     "all controls are at their defaults when a stream starts, and the driver does not know"},
    {"stall", Switch, 0, 1, 0, true, "streaming, but no frame arrives"},
    {"freeze", Switch, 0, 1, 0, true, "the same picture again and again"},
    {"frame-delay", Real, 0, 60, 0, true, "added to the time between two frames [s]"},
    {"dqbuf-errno", Errno, 0, 200, 0, true, "taking a frame fails with this error"},
    {"open-errno", Errno, 0, 200, 0, true, "opening the device fails with this error"},
    {"streamon-errno", Errno, 0, 200, 0, true, "starting the stream fails with this error"},
    {"truncate", Switch, 0, 1, 0, true, "MJPEG frames end in the middle"},
    {"stray-bytes", Integer, 0, 1000, 0, true, "stray bytes before the end of MJPEG frames"},
    {"error-frames", Switch, 0, 1, 0, true, "frames arrive empty and flagged as faulty"},
    {"no-userptr", Switch, 0, 1, 0, true, "only memory-mapped buffers are offered"},
    {"query-errno", Errno, 0, 200, 0, true,
     "asking for the range of a control fails with this error"},
    {"control-errno", Errno, 0, 200, 0, true, "setting a control fails with this error"},
    {"refuse-first", Integer, 0, 100, 0, true,
     "so many first values after a change of an automatic mode are refused"},
    {"open-hang", Real, 0, 600, 0, true, "opening the device takes so long [s]"},
    {"query-hang", Real, 0, 600, 0, true, "asking for the range of a control takes so long [s]"},
    {"control-hang", Real, 0, 600, 0, true, "reading or setting controls takes so long [s]"},
    {"hang-errno", Errno, 0, 200, 0, true, "what took so long ends with this error, 0 well"},
};
static_assert(std::size(kParameters) == kParamCount);

constexpr int kErrnoNames[] = {EIO,    EPROTO, ENODEV, ENOENT, EBUSY, EACCES, EPERM,
                               EAGAIN, EINVAL, EPIPE,  ENOMEM, ENXIO, ENOSPC, ETIMEDOUT};

std::optional<float> parseErrno(const std::string &text)
{
    for (const int e : kErrnoNames)
        if (text == strerrorname_np(e))
            return static_cast<float>(e);
    return {};
}

} // namespace

std::span<const ParamInfo> parameters()
{
    return kParameters;
}

std::optional<Param> findParam(std::string_view name)
{
    for (std::size_t i = 0; i < kParamCount; ++i)
        if (name == kParameters[i].name)
            return static_cast<Param>(i);
    return {};
}

std::optional<float> parseValue(Param p, const std::string &text, std::string &error)
{
    const ParamInfo &what = info(p);
    if (what.kind == ParamInfo::Errno)
        if (const auto e = parseErrno(text))
            return e;
    char *end = nullptr;
    const float value = std::strtof(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(value)) {
        error = std::string(what.name) + ": not a number: \"" + text + '"';
        return {};
    }
    if (what.kind != ParamInfo::Real && value != std::floor(value)) {
        error = std::string(what.name) + ": not a whole number: " + text;
        return {};
    }
    if (value < what.min || value > what.max) {
        char range[80];
        std::snprintf(range, sizeof range, " is not between %g and %g", double(what.min),
                      double(what.max));
        error = std::string(what.name) + ": " + text + range;
        return {};
    }
    return value;
}

std::string formatValue(Param p, float value)
{
    const int number = static_cast<int>(value);
    if (info(p).kind == ParamInfo::Errno && number != 0 && strerrorname_np(number))
        return strerrorname_np(number);
    char text[40];
    std::snprintf(text, sizeof text, "%.9g", double(value));
    return text;
}

} // namespace meridax::simcam
