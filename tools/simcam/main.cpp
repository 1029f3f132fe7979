// Plugs, drives and unplugs simulated cameras, and runs programs with them.

#include "Commands.h"
#include "Presets.h"
#include "Run.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

using namespace meridax::simcam;

namespace {

constexpr char kHelp[] =
    "Usage: simcam [--dir DIR] VERB ...\n"
    "A simulated USB camera for programs that use Video4Linux. The state of all cameras is in\n"
    "DIR, by default $SIMCAM_DIR.\n"
    "\n"
    "  run [--preload FILE]... [--unplugged] [PLUG OPTIONS] -- PROGRAM ARGUMENTS\n"
    "                        run a program with a camera, in a fresh directory unless --dir is\n"
    "                        given; FILE is preloaded first (libasan); --unplugged starts\n"
    "                        without a camera\n"
    "  plug [--node videoN] [--name NAME] [--no-metadata] [--new] [--preset NAME]\n"
    "       [--PARAMETER VALUE]...\n"
    "                        plug the camera in: the one unplugged last if there is one and\n"
    "                        --new is not given, else a new one\n"
    "  unplug                pull it out\n"
    "  list                  the cameras that are plugged in\n"
    "  set PARAMETER=VALUE...\n"
    "  preset NAME           a picture with a name; plug and run know --preset NAME, too\n"
    "  get [KEY]             one value, or all as key=value lines\n"
    "  truth                 centre, radius, form error, angle and mark, in pixels of the\n"
    "                        present format\n"
    "  turn --to DEG | --by DEG\n"
    "  auto-turn POSITIONS|off [--dwell SECONDS] [--move SECONDS]\n"
    "                        stay at -45 - i * 360 / POSITIONS degrees in turn, for ever\n"
    "  play FOLDER|none      show the PNG and JPEG files of a folder in place of the scene\n"
    "\n"
    "With several cameras each verb needs --node videoN. Lengths \"at 720\" are pixels of a frame\n"
    "720 rows high and scale with the height. Angles: 0 points right, positive is clockwise.\n"
    "\n"
    "Parameters:\n";

void printHelp()
{
    std::fputs(kHelp, stdout);
    for (const ParamInfo &p : parameters())
        std::printf("  %-15s %s, default %g\n", p.name, p.help, double(p.defaultValue));
    std::puts("\nPresets, all of scene 1:");
    for (const Preset &p : presets())
        std::printf("  %-15s %s\n", p.name, p.help);
}

struct Verb
{
    const char *name;
    void (*run)(const std::string &dir, Arguments arguments);
};

constexpr Verb kVerbs[] = {
    {"plug", plugCommand}, {"unplug", unplugCommand},
    {"list", listCommand}, {"set", setCommand},
    {"get", getCommand},   {"truth", truthCommand},
    {"turn", turnCommand}, {"auto-turn", autoTurnCommand},
    {"play", playCommand}, {"preset", presetCommand},
};

/// The options before the program that `run` starts; its own arguments are none of ours.
std::string takeDir(Arguments &arguments)
{
    Arguments own;
    while (!arguments.empty() && arguments.front() != "--") {
        own.push_back(arguments.front());
        arguments.erase(arguments.begin());
    }
    const std::string dir = takeOption(own, "--dir");
    arguments.insert(arguments.begin(), own.begin(), own.end());
    return dir;
}

int execute(Arguments arguments)
{
    std::string dir = takeDir(arguments);
    if (arguments.empty())
        throw UserError("no verb; try --help");
    const std::string verb = arguments.front();
    arguments.erase(arguments.begin());
    if (verb == "--help" || verb == "-h" || verb == "help") {
        printHelp();
        return 0;
    }
    if (verb == "run")
        return runCommand(dir, arguments);
    for (const Verb &known : kVerbs) {
        if (verb != known.name)
            continue;
        const char *fromEnvironment = std::getenv("SIMCAM_DIR");
        if (dir.empty() && fromEnvironment)
            dir = fromEnvironment;
        if (dir.empty())
            throw UserError("no directory: give --dir or set SIMCAM_DIR");
        known.run(dir, arguments);
        return 0;
    }
    throw UserError("unknown verb: " + verb + "; try --help");
}

} // namespace

int main(int argc, char **argv)
{
    try {
        return execute(Arguments(argv + 1, argv + argc));
    } catch (const std::exception &e) {
        std::fprintf(stderr, "simcam: %s\n", e.what());
        return 2;
    }
}
