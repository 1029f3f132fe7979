#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace meridax::simcam {

/// What can be set from outside on a running simulated camera. Each is one slot of the state file.
///
/// Lengths "at 720" are pixels of a frame 720 rows high; in other frames they scale with the frame
/// height. Angles are degrees, 0 points right and positive turns clockwise on the screen.
enum class Param : unsigned {
    Angle,
    CenterX,
    CenterY,
    Radius,
    MarkRadius,
    MarkGrey,
    Marks,
    Form2,
    Form3,
    Form4,
    Form5,
    Form6,
    Form7,
    Phase2,
    Phase3,
    Phase4,
    Phase5,
    Phase6,
    Phase7,
    DwellNoise,
    FrameNoise,
    PixelNoise,
    Defocus,
    FocusBest,
    FocusBlur,
    SceneKind,
    GroundGrey,
    MarkAxes,
    Light,
    LightFall,
    Vignetting,
    Grain,
    Dust,
    PhotonNoise,
    TurnPositions,
    TurnDwell,
    TurnMove,
    PlayFrame,
    Controls,
    LongExposures,
    Forgets,
    Stall,
    Freeze,
    FrameDelay,
    DqbufErrno,
    OpenErrno,
    StreamonErrno,
    Truncate,
    StrayBytes,
    ErrorFrames,
    NoUserptr,
    QueryErrno,
    ControlErrno,
    RefuseFirst,
    OpenHang,
    QueryHang,
    ControlHang,
    HangErrno,
    Count
};

constexpr std::size_t kParamCount = static_cast<std::size_t>(Param::Count);
constexpr int kFirstFormOrder = 2;
constexpr int kLastFormOrder = 7;

/// Name, limits and meaning of one parameter.
struct ParamInfo
{
    enum Kind { Real, Integer, Switch, Errno };

    const char *name;
    Kind kind;
    float min;
    float max;
    float defaultValue;
    bool fault; ///< a failure of the device: gone after it is plugged in again
    const char *help;
};

/// A parameter and its value.
using Assignment = std::pair<Param, float>;

/// All parameters in the order of Param.
std::span<const ParamInfo> parameters();

inline const ParamInfo &info(Param p)
{
    return parameters()[static_cast<std::size_t>(p)];
}

/// The parameter called `name`, or nothing.
std::optional<Param> findParam(std::string_view name);

/// Reads `text` as a value of `p`. On failure the result is empty and `error` holds one line.
std::optional<float> parseValue(Param p, const std::string &text, std::string &error);

/// `value` as the text that parseValue() reads back.
std::string formatValue(Param p, float value);

} // namespace meridax::simcam
