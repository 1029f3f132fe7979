#pragma once

#include "Planes.h"

#include <span>
#include <vector>

namespace meridax::simcam {

/// Appends `planes` as a baseline JPEG, 4:2:2, full range, to the emptied `out`.
void encodeJpeg(const Planes &planes, std::vector<std::uint8_t> &out);

/// Writes `planes` as packed YUYV in limited range, as USB cameras send it. Returns the bytes
/// written: all of them, or none if `out` is too short.
std::size_t packYuyv(const Planes &planes, std::span<std::uint8_t> out);

} // namespace meridax::simcam
