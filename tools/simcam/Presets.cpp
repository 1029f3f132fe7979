#include "Presets.h"

#include <array>

namespace meridax::simcam {

namespace {

/// Everything that a preset gives a value.
constexpr Param kPictureParams[] = {
    Param::MarkRadius, Param::MarkGrey, Param::PixelNoise, Param::Defocus,
    Param::GroundGrey, Param::MarkAxes, Param::Light,      Param::LightFall,
    Param::Vignetting, Param::Grain,    Param::Dust,       Param::PhotonNoise,
};

constexpr std::array kClear{
    Assignment{Param::MarkRadius, 0.05F}, Assignment{Param::Defocus, 1.5F},
    Assignment{Param::GroundGrey, 150},   Assignment{Param::PixelNoise, 0.7F},
    Assignment{Param::PhotonNoise, 0.7F}, Assignment{Param::Grain, 1}};
constexpr std::array kFlicker{Assignment{Param::PixelNoise, 2},
                              Assignment{Param::PhotonNoise, 2.5F}};
constexpr std::array kBlurred{Assignment{Param::MarkGrey, 62}, Assignment{Param::Defocus, 5},
                              Assignment{Param::PixelNoise, 1}, Assignment{Param::PhotonNoise, 1},
                              Assignment{Param::Grain, 2}};
constexpr std::array kOblique{Assignment{Param::MarkAxes, 0.82F},
                              Assignment{Param::MarkRadius, 0.05F},
                              Assignment{Param::PixelNoise, 0.7F},
                              Assignment{Param::PhotonNoise, 0.7F}, Assignment{Param::Grain, 1}};
constexpr std::array kSmall{Assignment{Param::MarkRadius, 0.0088F},
                            Assignment{Param::PixelNoise, 0.7F},
                            Assignment{Param::PhotonNoise, 0.7F}, Assignment{Param::Grain, 1}};
constexpr std::array kNoisy{Assignment{Param::MarkGrey, 50}, Assignment{Param::PixelNoise, 5},
                            Assignment{Param::PhotonNoise, 5}};
constexpr std::array kDim{Assignment{Param::Light, 0.4F}, Assignment{Param::PixelNoise, 1.5F}};

constexpr Preset kPresets[] = {
    {"clear", "a large sharp mark that every detector finds", kClear},
    {"flicker", "a mark that is found in one frame and not in the next", kFlicker},
    {"blurred", "a faint mark out of focus: not round enough", kBlurred},
    {"oblique", "a mark seen at an angle: an ellipse", kOblique},
    {"small", "a mark of 130 square pixels", kSmall},
    {"noisy", "a mark with a ragged outline, in much noise", kNoisy},
    {"dim", "too little light", kDim},
};

} // namespace

std::span<const Preset> presets()
{
    return kPresets;
}

const Preset *findPreset(std::string_view name)
{
    for (const Preset &preset : kPresets)
        if (name == preset.name)
            return &preset;
    return nullptr;
}

std::vector<Assignment> assignmentsOf(const Preset &preset)
{
    std::vector<Assignment> all{{Param::SceneKind, 1.0F}};
    for (const Param param : kPictureParams)
        all.emplace_back(param, info(param).defaultValue);
    all.insert(all.end(), preset.values.begin(), preset.values.end());
    return all;
}

} // namespace meridax::simcam
