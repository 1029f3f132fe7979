#pragma once

#include "Parameters.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace meridax::simcam {

/// Something the user asked for that cannot be; its text is one line for the user.
class UserError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

using Arguments = std::vector<std::string>;

/// Where and what to plug in.
struct PlugOptions
{
    std::string node; ///< "video0"; empty takes the first free one
    std::string name; ///< empty: as before the unplugging, else the default name
    bool hasMetadataNode = true;
    bool isNew = false; ///< a new camera even if one was unplugged before
    std::vector<Assignment> scene;
};

/// Takes the option `name` with its value out of `arguments`; empty if it is not there. Knows
/// "--name value" and "--name=value".
std::string takeOption(Arguments &arguments, const std::string &name);

/// Takes the flag `name` out of `arguments`; true if it was there.
bool takeFlag(Arguments &arguments, const std::string &name);

/// Takes everything that `plug` knows out of `arguments`: --node, --name, --no-metadata, --new,
/// --preset and every parameter of the scene as an option, which is stronger than the preset.
PlugOptions takePlugOptions(Arguments &arguments);

/// What the preset called `name` sets.
std::vector<Assignment> presetAssignments(const std::string &name);

/// "key=value" as a parameter and its value.
Assignment parseAssignment(const std::string &text);

/// Raises a UserError that names the first argument left over, if there is one.
void expectNoMore(const Arguments &arguments);

/// `text` as a number of any size.
double parseNumber(const std::string &text, const std::string &what);

} // namespace meridax::simcam
