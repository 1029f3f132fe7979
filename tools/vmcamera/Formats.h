#pragma once

#include <cstdint>
#include <span>

namespace meridax::vmcamera {

enum class Coding { Mjpeg, Yuyv };

/// One picture size of a format and its frame rates, the highest first.
struct FrameMode
{
    unsigned width;
    unsigned height;
    std::span<const unsigned> framesPerSecond;

    /// Room for one frame: uncompressed, four pixels in eight bytes.
    std::uint32_t maxBytes() const { return width * height * 2; }
};

struct VideoFormat
{
    Coding coding;
    std::span<const FrameMode> modes;
};

/// All formats. The protocol counts them, and the modes of each, from 1.
std::span<const VideoFormat> videoFormats();

/// Time between two frames in the unit of the protocol, 100 ns.
constexpr std::uint32_t frameInterval(unsigned framesPerSecond)
{
    return 10'000'000 / framesPerSecond;
}

} // namespace meridax::vmcamera
