#include "Options.h"

#include "Presets.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace meridax::simcam {

namespace {

constexpr std::size_t kLongestName = 31;

Assignment assignment(const std::string &key, const std::string &value)
{
    const auto param = findParam(key);
    if (!param)
        throw UserError("unknown parameter: " + key);
    std::string error;
    const auto number = parseValue(*param, value, error);
    if (!number)
        throw UserError(error);
    return {*param, *number};
}

void checkNode(const std::string &node)
{
    const std::size_t prefix = std::strlen("video");
    const bool hasNumber = node.size() > prefix && node.size() <= prefix + 3 &&
                           node.find_first_not_of("0123456789", prefix) == std::string::npos;
    if (node.compare(0, prefix, "video") != 0 || !hasNumber)
        throw UserError("not a node name like video0: " + node);
}

} // namespace

std::string takeOption(Arguments &arguments, const std::string &name)
{
    for (auto i = arguments.begin(); i != arguments.end(); ++i) {
        if (i->compare(0, name.size() + 1, name + '=') == 0) {
            const std::string value = i->substr(name.size() + 1);
            arguments.erase(i);
            return value;
        }
        if (*i != name)
            continue;
        if (i + 1 == arguments.end())
            throw UserError("missing value after " + name);
        const std::string value = *(i + 1);
        arguments.erase(i, i + 2);
        return value;
    }
    return {};
}

bool takeFlag(Arguments &arguments, const std::string &name)
{
    return std::erase(arguments, name) > 0;
}

PlugOptions takePlugOptions(Arguments &arguments)
{
    PlugOptions options;
    options.node = takeOption(arguments, "--node");
    if (!options.node.empty())
        checkNode(options.node);
    options.name = takeOption(arguments, "--name");
    if (options.name.size() > kLongestName)
        throw UserError("name longer than 31 bytes: " + options.name);
    options.hasMetadataNode = !takeFlag(arguments, "--no-metadata");
    options.isNew = takeFlag(arguments, "--new");
    if (const std::string preset = takeOption(arguments, "--preset"); !preset.empty())
        options.scene = presetAssignments(preset);
    for (const ParamInfo &parameter : parameters()) {
        const std::string value = takeOption(arguments, std::string("--") + parameter.name);
        if (!value.empty())
            options.scene.push_back(assignment(parameter.name, value));
    }
    return options;
}

std::vector<Assignment> presetAssignments(const std::string &name)
{
    const Preset *preset = findPreset(name);
    if (!preset)
        throw UserError("unknown preset: " + name);
    return assignmentsOf(*preset);
}

Assignment parseAssignment(const std::string &text)
{
    const auto equals = text.find('=');
    if (equals == std::string::npos)
        throw UserError("not of the form key=value: " + text);
    return assignment(text.substr(0, equals), text.substr(equals + 1));
}

void expectNoMore(const Arguments &arguments)
{
    if (!arguments.empty())
        throw UserError("unexpected argument: " + arguments.front());
}

double parseNumber(const std::string &text, const std::string &what)
{
    char *end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(number))
        throw UserError(what + ": not a number: \"" + text + '"');
    return number;
}

} // namespace meridax::simcam
