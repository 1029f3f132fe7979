#include "Plug.h"

#include "Controls.h"
#include "DeviceFormats.h"
#include "Geometry.h"
#include "Links.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace meridax::simcam {

namespace {

namespace fs = std::filesystem;

constexpr unsigned kMaxNodes = 64;

std::string nodeName(unsigned number)
{
    return "video" + std::to_string(number);
}

unsigned numberOf(const std::string &node)
{
    return static_cast<unsigned>(std::stoul(node.substr(std::strlen("video"))));
}

std::string unpluggedFile(const std::string &dir)
{
    return dir + "/unplugged.state";
}

bool isFree(const std::string &dir, unsigned number)
{
    return !fs::exists(nodeFile(dir, nodeName(number)));
}

[[noreturn]] void failWith(const std::string &what)
{
    throw UserError(what + ": " + std::strerror(errno));
}

/// A new state file with power-on values under its temporary name.
State *createState(const std::string &path, State::Kind kind)
{
    const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (fd < 0 || ::ftruncate(fd, sizeof(State)) < 0)
        failWith(path);
    void *memory = ::mmap(nullptr, sizeof(State), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
    ::close(fd);
    if (memory == MAP_FAILED)
        failWith(path);
    auto *state = static_cast<State *>(memory);
    state->kind = kind;
    setDefaults(*state);
    const Mode &mode = modes().front();
    state->pixelFormat = mode.pixelFormat;
    state->width = mode.width;
    state->height = mode.height;
    state->framesPerSecond = mode.rates.front();
    std::strncpy(state->name, kDefaultName, sizeof state->name - 1);
    state->magic = State::kMagic;
    return state;
}

/// Takes over what a camera keeps while it is unplugged: its name and what it looks at.
void inherit(State &state, const State &before)
{
    for (std::size_t i = 0; i < kParamCount; ++i)
        if (!parameters()[i].fault)
            state.param[i] = before.param[i].load();
    state.turns = before.turns.load();
    state.turnStartMs = before.turnStartMs.load();
    state.playGeneration = before.playGeneration.load();
    std::memcpy(state.name, before.name, sizeof state.name);
    std::memcpy(state.playFolder, before.playFolder, sizeof state.playFolder);
}

unsigned chooseNumber(const std::string &dir, const PlugOptions &options)
{
    const auto fits = [&](unsigned n) {
        return isFree(dir, n) && (!options.hasMetadataNode || isFree(dir, n + 1));
    };
    if (!options.node.empty()) {
        const unsigned number = numberOf(options.node);
        if (!isFree(dir, number))
            throw UserError(options.node + " is plugged in already");
        if (!fits(number))
            throw UserError(nodeName(number + 1) +
                            ", wanted for the metadata, is plugged in already");
        return number;
    }
    for (unsigned n = 0; n < kMaxNodes; ++n)
        if (fits(n))
            return n;
    throw UserError("no free node");
}

void publish(const std::string &dir, const std::string &temporary, const std::string &node)
{
    fs::rename(temporary, stateFile(dir, node));
    std::vector<std::string> cameras = pluggedCameras(dir);
    cameras.push_back(node);
    updateLinks(dir, cameras);
    if (::mkfifo(nodeFile(dir, node).c_str(), 0666) < 0)
        failWith(nodeFile(dir, node));
}

} // namespace

std::vector<std::string> pluggedCameras(const std::string &dir)
{
    std::vector<unsigned> numbers;
    std::error_code error;
    for (const auto &entry : fs::directory_iterator(dir + "/dev", error)) {
        const std::string node = entry.path().filename().string();
        const State *state = mapState(dir, node);
        if (state && state->kind == State::Capture)
            numbers.push_back(numberOf(node));
    }
    std::sort(numbers.begin(), numbers.end());
    std::vector<std::string> nodes;
    for (const unsigned n : numbers)
        nodes.push_back(nodeName(n));
    return nodes;
}

std::string chooseCamera(const std::string &dir, const std::string &wanted)
{
    const auto cameras = pluggedCameras(dir);
    if (!wanted.empty()) {
        if (std::find(cameras.begin(), cameras.end(), wanted) == cameras.end())
            throw UserError("no camera is plugged in at " + wanted);
        return wanted;
    }
    if (cameras.empty())
        throw UserError("no camera is plugged in");
    if (cameras.size() > 1)
        throw UserError("several cameras are plugged in: choose one with --node");
    return cameras.front();
}

std::string plug(const std::string &dir, const PlugOptions &options)
{
    std::error_code error;
    fs::create_directories(dir + "/dev", error);
    if (error)
        throw UserError(dir + ": " + error.message());
    const unsigned number = chooseNumber(dir, options);
    const std::string node = nodeName(number);
    const std::string temporary = dir + "/plug." + std::to_string(getpid());

    State *state = createState(temporary, State::Capture);
    const State *before = options.isNew ? nullptr : mapStateFile(unpluggedFile(dir));
    if (before)
        inherit(*state, *before);
    if (!options.name.empty()) {
        std::memset(state->name, 0, sizeof state->name);
        std::memcpy(state->name, options.name.data(), options.name.size());
    }
    assign(*state, options.scene);
    state->partner = options.hasMetadataNode ? number + 2 : 0;
    fs::remove(unpluggedFile(dir), error);

    // The metadata node is complete before the first one appears and programs start to look.
    if (options.hasMetadataNode) {
        const std::string second = temporary + ".metadata";
        State *metadata = createState(second, State::Metadata);
        std::memcpy(metadata->name, state->name, sizeof state->name);
        fs::rename(second, stateFile(dir, nodeName(number + 1)));
    }
    publish(dir, temporary, node);
    if (options.hasMetadataNode && ::mkfifo(nodeFile(dir, nodeName(number + 1)).c_str(), 0666) < 0)
        failWith(nodeFile(dir, nodeName(number + 1)));
    return node;
}

void unplug(const std::string &dir, const std::string &node)
{
    State *state = mapState(dir, node);
    if (!state)
        failWith(node);
    std::error_code error;
    state->dead = 1;
    if (state->partner) {
        const std::string metadata = nodeName(state->partner - 1);
        if (State *second = mapState(dir, metadata))
            second->dead = 1;
        fs::remove(nodeFile(dir, metadata), error);
        fs::remove(stateFile(dir, metadata), error);
    }
    fs::rename(stateFile(dir, node), unpluggedFile(dir), error);
    std::vector<std::string> others = pluggedCameras(dir);
    std::erase(others, node);
    updateLinks(dir, others);
    // Last, because this is what programs watch for.
    fs::remove(nodeFile(dir, node), error);
}

void turnTo(State &state, double angle)
{
    state.set(Param::Angle, static_cast<float>(angle));
    ++state.turns;
    state.set(Param::TurnPositions, 0);
}

void assign(State &state, const std::vector<Assignment> &assignments)
{
    for (const auto &[param, value] : assignments) {
        if (param == Param::Angle) {
            turnTo(state, double(value));
            continue;
        }
        if (param == Param::TurnPositions) {
            state.set(Param::Angle, static_cast<float>(turnAt(state, monotonicMs()).angle));
            state.turnStartMs = monotonicMs();
        }
        state.set(param, value);
    }
}

} // namespace meridax::simcam
