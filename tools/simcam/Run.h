#pragma once

#include "Options.h"

#include <string>

namespace meridax::simcam {

/// Runs a program with a simulated camera and returns its exit status, or 128 plus the number of
/// the signal that ended it. `arguments` are the options of `plug`, then "--" and the program. With
/// an empty `dir` a fresh directory is made and removed afterwards.
int runCommand(std::string dir, Arguments arguments);

} // namespace meridax::simcam
