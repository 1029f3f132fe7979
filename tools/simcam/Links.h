#pragma once

#include <string>
#include <vector>

namespace meridax::simcam {

/// Makes the links that udev would make in /dev/v4l for the cameras `nodes`: by-id, from the name,
/// which of several cameras of one name leads to the last one, and by-path, from the number of the
/// node. What is not theirs is removed.
void updateLinks(const std::string &dir, const std::vector<std::string> &nodes);

} // namespace meridax::simcam
