#include "Formats.h"

namespace meridax::vmcamera {

namespace {

constexpr unsigned kFast[] = {30, 15};
constexpr unsigned kLarge[] = {30};
// What USB 2 leaves to large uncompressed frames, and what an emulated processor keeps up with.
constexpr unsigned kCalm[] = {10, 5};

constexpr FrameMode kMjpeg[] = {
    {320, 240, kCalm},
    {640, 480, kFast},
    {1280, 720, kFast},
    {1920, 1080, kLarge},
};
constexpr FrameMode kYuyv[] = {
    {320, 240, kCalm},
    {640, 480, kFast},
    {1280, 720, kCalm},
};
constexpr VideoFormat kFormats[] = {
    {Coding::Mjpeg, kMjpeg},
    {Coding::Yuyv, kYuyv},
};

} // namespace

std::span<const VideoFormat> videoFormats()
{
    return kFormats;
}

} // namespace meridax::vmcamera
