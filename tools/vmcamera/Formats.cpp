#include "Formats.h"

namespace meridax::vmcamera {

namespace {

constexpr unsigned kFast[] = {30, 15};
constexpr unsigned kLarge[] = {30};
// What USB 2 leaves to large uncompressed frames. For the smallest frames so that an emulated
// processor keeps up: else they wait in the driver and are older than what the controls say.
constexpr unsigned kSlow[] = {10, 5};

constexpr FrameMode kMjpeg[] = {
    {320, 240, kSlow},
    {640, 480, kFast},
    {1280, 720, kFast},
    {1920, 1080, kLarge},
};
constexpr FrameMode kYuyv[] = {
    {320, 240, kSlow},
    {640, 480, kFast},
    {1280, 720, kSlow},
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
