#pragma once

#include "Planes.h"
#include "StateFile.h"

#include <string>
#include <vector>

namespace meridax::simcam {

/// The recorded frames in `folder`: its PNG and JPEG files in the order of their names.
std::vector<std::string> recordedFrames(const std::string &folder);

/// Shows recorded frames in place of the scene. A frame of another size than the camera's is scaled
/// to fit, with black bars where the shapes differ.
class Playback
{
public:
    /// Starts over with the folder of `state` if it has changed. True while there are frames.
    bool select(const State &state);

    /// Number of the frame to show as the next one.
    unsigned next(const State &state);

    /// Frame `index` at `size`; grey-black if its file cannot be read. Valid until the next call.
    const Planes &frame(unsigned index, FrameSize size);

private:
    std::uint32_t m_generation = 0;
    std::vector<std::string> m_files;
    unsigned m_position = 0;
    int m_loaded = -1; ///< index of the frame in m_planes
    Planes m_planes;
};

} // namespace meridax::simcam
