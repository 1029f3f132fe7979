#pragma once

#include "StateFile.h"

namespace meridax::simcam {

/// Waits as a call does that the camera does not answer: as long as the parameter `seconds` says,
/// or until that is lowered or the camera is pulled out. Nothing may be locked meanwhile. Returns
/// 0, or the negative errno that the call ends with.
int hang(const State &state, Param seconds);

} // namespace meridax::simcam
