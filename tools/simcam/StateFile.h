#pragma once

#include "Parameters.h"

#include <atomic>
#include <cstdint>
#include <string>
#include <sys/types.h>

namespace meridax::simcam {

/// The state of one simulated device node: a file mapped by every process that opens the node and
/// by the command line tool. Only lock-free 32-bit atomics, so that a killed process leaves nothing
/// locked behind; `name` and `playFolder` change only while nobody reads them (see Commands.cpp).
struct State
{
    static constexpr std::uint32_t kMagic = 0x53494d35;
    static constexpr unsigned kMaxControls = 32;
    enum Kind : std::uint32_t { Capture, Metadata };

    std::atomic<std::uint32_t> magic;
    std::atomic<std::uint32_t> kind;
    std::atomic<std::uint32_t> dead; ///< unplugged: every call on every descriptor fails, for ever
    std::atomic<std::uint32_t> partner; ///< number of the metadata node plus one, 0 none

    std::atomic<float> param[kParamCount];
    std::atomic<std::uint32_t> turns;       ///< number of turns so far; seeds the dwell noise
    std::atomic<std::uint32_t> turnStartMs; ///< monotonic clock at the start of the automatic turn
    std::atomic<std::uint32_t> playGeneration; ///< 0 shows the scene; raised with each new folder

    // The device as all its openers see it.
    std::atomic<std::uint32_t> width, height, pixelFormat, framesPerSecond;
    std::atomic<std::int32_t> owner;                 ///< process that holds the buffers, 0 none
    std::atomic<std::int32_t> control[kMaxControls]; ///< in the driver's memory
    std::atomic<std::int32_t> held[kMaxControls];    ///< in the camera
    std::atomic<std::uint32_t> refusals;             ///< so many next values are refused

    // Statistics, written by the library.
    std::atomic<std::uint32_t> frames, dropped, renderUs, opens;
    std::atomic<std::uint32_t> controlCalls,
        controlWrites;                 ///< requests for controls; those that set
    std::atomic<float> shownX, shownY; ///< mark in the last frame with all its noise [px]

    char name[32];
    char playFolder[1024];

    float get(Param p) const { return param[static_cast<unsigned>(p)].load(); }
    bool isOn(Param p) const { return get(p) != 0; }
    void set(Param p, float value) { param[static_cast<unsigned>(p)].store(value); }
};
static_assert(std::atomic<std::uint32_t>::is_always_lock_free);
static_assert(std::atomic<float>::is_always_lock_free);

/// Maps the state of node `node` ("video0") in directory `dir`; null if there is none. The inode
/// tells two cameras apart that followed each other at the same node.
State *mapState(const std::string &dir, const std::string &node, ino_t *inode = nullptr);

/// Maps the state file `path`; null with errno set if that is not possible.
State *mapStateFile(const std::string &path, ino_t *inode = nullptr);

/// Milliseconds of the monotonic clock, which all processes share; wraps after 49 days.
std::uint32_t monotonicMs();

/// Paths in the directory of the simulated devices.
std::string nodeFile(const std::string &dir, const std::string &node);
std::string stateFile(const std::string &dir, const std::string &node);
/// What stands for /dev/v4l.
std::string linkFolder(const std::string &dir);

} // namespace meridax::simcam
