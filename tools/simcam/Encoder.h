#pragma once

#include "Planes.h"

#include <vector>

namespace meridax::simcam {

/// Appends `planes` as a baseline JPEG, 4:2:2, full range, to the emptied `out`.
void encodeJpeg(const Planes &planes, std::vector<std::uint8_t> &out);

/// Puts `planes` into `out` as packed YUYV in limited range, as USB cameras send it.
void packYuyv(const Planes &planes, std::vector<std::uint8_t> &out);

} // namespace meridax::simcam
