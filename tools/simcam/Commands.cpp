#include "Commands.h"

#include "Controls.h"
#include "Geometry.h"
#include "Playback.h"
#include "Plug.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>

namespace meridax::simcam {

namespace {

State &stateOf(const std::string &dir, Arguments &arguments)
{
    const std::string node = chooseCamera(dir, takeOption(arguments, "--node"));
    State *state = mapState(dir, node);
    if (!state)
        throw UserError("no camera is plugged in at " + node);
    return *state;
}

/// "Exposure Time, Absolute" as "control.exposure_time_absolute".
std::string controlKey(const Control &control)
{
    std::string key = "control.";
    for (const char *c = control.name; *c; ++c) {
        const auto byte = static_cast<unsigned char>(*c);
        if (std::isalnum(byte))
            key += static_cast<char>(std::tolower(byte));
        else if (key.back() != '_')
            key += '_';
    }
    return key;
}

std::string fourcc(std::uint32_t format)
{
    std::string text;
    for (int shift = 0; shift < 32; shift += 8)
        text += static_cast<char>(format >> shift & 0xff);
    return text;
}

std::string number(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.4f", value);
    return text;
}

using Printer = std::function<void(const std::string &key, const std::string &value)>;

void printFormat(const State &state, const Printer &print)
{
    print("name", state.name);
    print("format", fourcc(state.pixelFormat));
    print("width", std::to_string(state.width));
    print("height", std::to_string(state.height));
    print("fps", std::to_string(state.framesPerSecond));
}

void printEverything(const State &state, const Printer &print)
{
    for (std::size_t i = 0; i < kParamCount; ++i) {
        const auto param = static_cast<Param>(i);
        print(info(param).name, formatValue(param, state.get(param)));
    }
    printFormat(state, print);
    for (const Control &control : controls())
        if (!control.isClass() && isOffered(state, control))
            print(controlKey(control), std::to_string(state.held[slotOf(control)]));
    print("play-folder", state.playGeneration ? state.playFolder : "none");
    print("streaming-process", std::to_string(state.owner));
    print("frames", std::to_string(state.frames));
    print("dropped", std::to_string(state.dropped));
    print("render-us", std::to_string(state.renderUs));
    print("opens", std::to_string(state.opens));
    print("control-calls", std::to_string(state.controlCalls));
    print("control-writes", std::to_string(state.controlWrites));
}

void printLine(const std::string &key, const std::string &value)
{
    std::printf("%s=%s\n", key.c_str(), value.c_str());
}

} // namespace

void plugCommand(const std::string &dir, Arguments arguments)
{
    const PlugOptions options = takePlugOptions(arguments);
    expectNoMore(arguments);
    std::printf("%s\n", plug(dir, options).c_str());
}

void unplugCommand(const std::string &dir, Arguments arguments)
{
    const std::string node = chooseCamera(dir, takeOption(arguments, "--node"));
    expectNoMore(arguments);
    unplug(dir, node);
}

void listCommand(const std::string &dir, Arguments arguments)
{
    expectNoMore(arguments);
    for (const std::string &node : pluggedCameras(dir))
        if (const State *state = mapState(dir, node))
            printLine(node, state->name);
}

void setCommand(const std::string &dir, Arguments arguments)
{
    State &state = stateOf(dir, arguments);
    if (arguments.empty())
        throw UserError("set: nothing to set");
    std::vector<Assignment> assignments;
    for (const std::string &text : arguments)
        assignments.push_back(parseAssignment(text));
    assign(state, assignments);
}

void presetCommand(const std::string &dir, Arguments arguments)
{
    State &state = stateOf(dir, arguments);
    if (arguments.size() != 1)
        throw UserError("preset: give its name");
    assign(state, presetAssignments(arguments.front()));
}

void getCommand(const std::string &dir, Arguments arguments)
{
    const State &state = stateOf(dir, arguments);
    if (arguments.empty()) {
        printEverything(state, printLine);
        return;
    }
    const std::string wanted = arguments.front();
    arguments.erase(arguments.begin());
    expectNoMore(arguments);
    bool isKnown = false;
    printEverything(state, [&](const std::string &key, const std::string &value) {
        if (key == wanted)
            isKnown = std::printf("%s\n", value.c_str()) > 0;
    });
    if (!isKnown)
        throw UserError("unknown key: " + wanted);
}

void truthCommand(const std::string &dir, Arguments arguments)
{
    const State &state = stateOf(dir, arguments);
    expectNoMore(arguments);
    const FrameSize size{state.width, state.height};
    const Turn turn = turnAt(state, monotonicMs());
    const Point center = centerOf(state, size);
    const Point mark = markPosition(state, size, turn.angle);

    printFormat(state, printLine);
    printLine("center_x", number(center.x));
    printLine("center_y", number(center.y));
    printLine("radius", number(double(state.get(Param::Radius)) * size.height));
    for (int k = kFirstFormOrder; k <= kLastFormOrder; ++k) {
        const auto at = [&](Param first) {
            return double(state.get(static_cast<Param>(int(first) + k - kFirstFormOrder)));
        };
        const std::string key = "form" + std::to_string(k);
        printLine(key + "_amplitude", number(at(Param::Form2) * size.scale()));
        printLine(key + "_phase", number(at(Param::Phase2)));
    }
    printLine("marks", formatValue(Param::Marks, state.get(Param::Marks)));
    printLine("mark_radius", number(double(state.get(Param::MarkRadius)) * size.height));
    printLine("angle", number(std::remainder(turn.angle, 360)));
    printLine("mark_x", number(mark.x));
    printLine("mark_y", number(mark.y));
    printLine("shown_x", number(double(state.shownX)));
    printLine("shown_y", number(double(state.shownY)));
    printLine("turns", std::to_string(turn.dwell));
    printLine("frames", std::to_string(state.frames));
}

void turnCommand(const std::string &dir, Arguments arguments)
{
    State &state = stateOf(dir, arguments);
    const std::string to = takeOption(arguments, "--to");
    const std::string by = takeOption(arguments, "--by");
    expectNoMore(arguments);
    if (to.empty() == by.empty())
        throw UserError("turn: give either --to DEG or --by DEG");
    const double angle = to.empty() ? turnAt(state, monotonicMs()).angle + parseNumber(by, "--by")
                                    : parseNumber(to, "--to");
    // Brought near zero, where single precision is far finer than a pixel.
    turnTo(state, std::remainder(angle, 360));
}

void autoTurnCommand(const std::string &dir, Arguments arguments)
{
    State &state = stateOf(dir, arguments);
    std::vector<Assignment> assignments;
    for (const char *option : {"dwell", "move"}) {
        const std::string value = takeOption(arguments, std::string("--") + option);
        if (!value.empty())
            assignments.push_back(parseAssignment(std::string("turn-") + option + '=' + value));
    }
    if (arguments.size() != 1)
        throw UserError("auto-turn: give the number of positions, or off");
    const std::string positions = arguments.front() == "off" ? "0" : arguments.front();
    assignments.push_back(parseAssignment("turn-positions=" + positions));
    assign(state, assignments);
}

void playCommand(const std::string &dir, Arguments arguments)
{
    State &state = stateOf(dir, arguments);
    if (arguments.size() != 1)
        throw UserError("play: give a folder, or none");
    state.playGeneration = 0;
    if (arguments.front() == "none")
        return;
    const std::string folder = std::filesystem::absolute(arguments.front()).string();
    if (folder.size() >= sizeof state.playFolder)
        throw UserError("play: path too long: " + folder);
    if (recordedFrames(folder).empty())
        throw UserError("play: no PNG or JPEG files in " + folder);
    std::strcpy(state.playFolder, folder.c_str());
    state.playGeneration = monotonicMs() | 1;
}

} // namespace meridax::simcam
