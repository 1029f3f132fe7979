#pragma once

#include "Options.h"
#include "StateFile.h"

#include <string>
#include <vector>

namespace meridax::simcam {

constexpr char kDefaultName[] = "Meridax Simulated Camera";

/// Capture nodes that are plugged in below `dir`, in the order of their numbers.
std::vector<std::string> pluggedCameras(const std::string &dir);

/// The camera that a command is for: `wanted`, or the only one there is.
std::string chooseCamera(const std::string &dir, const std::string &wanted);

/// Plugs a camera in and returns its node. It is the one that was unplugged last, with the same
/// name and scene and all its failures gone, or else a new one; `options` come on top.
std::string plug(const std::string &dir, const PlugOptions &options);

/// Pulls the camera out: its nodes vanish, and descriptors that programs hold fail from now on.
void unplug(const std::string &dir, const std::string &node);

/// Sets parameters of a camera. A new angle counts as a turn.
void assign(State &state, const std::vector<Assignment> &assignments);

/// Turns the camera to `angle` degrees and ends the automatic turn.
void turnTo(State &state, double angle);

} // namespace meridax::simcam
