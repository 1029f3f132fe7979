#pragma once

#include "Geometry.h"

#include <cstdint>
#include <vector>

namespace meridax::simcam {

/// A picture as three planes, 4:2:2, full range.
struct Planes
{
    FrameSize size;
    std::vector<std::uint8_t> y;
    std::vector<std::uint8_t> u; ///< half as wide as y
    std::vector<std::uint8_t> v;

    void resize(FrameSize newSize)
    {
        size = newSize;
        y.resize(std::size_t(size.width) * size.height);
        u.resize(y.size() / 2);
        v.resize(y.size() / 2);
    }
};

} // namespace meridax::simcam
