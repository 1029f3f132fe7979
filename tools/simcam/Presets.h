#pragma once

#include "Parameters.h"

#include <span>
#include <string_view>
#include <vector>

namespace meridax::simcam {

/// A picture with a name, of the scene nearer to reality.
struct Preset
{
    const char *name;
    const char *help;
    std::span<const Assignment> values;
};

std::span<const Preset> presets();

/// The preset called `name`; null if there is none.
const Preset *findPreset(std::string_view name);

/// All that a preset sets: its values, and the defaults of whatever else shapes the picture.
std::vector<Assignment> assignmentsOf(const Preset &preset);

} // namespace meridax::simcam
