#include "DeviceFormats.h"

#include <cmath>
#include <cstdlib>

namespace meridax::simcam {

namespace {

constexpr unsigned kFast[] = {30, 15, 5};
constexpr unsigned kMedium[] = {15, 5};
constexpr unsigned kTen[] = {10, 5};
constexpr unsigned kFive[] = {5};
constexpr unsigned kTwo[] = {2};

constexpr Mode kModes[] = {
    {V4L2_PIX_FMT_MJPEG, 640, 480, kFast},   {V4L2_PIX_FMT_MJPEG, 1280, 720, kFast},
    {V4L2_PIX_FMT_MJPEG, 1920, 1080, kFast}, {V4L2_PIX_FMT_MJPEG, 3264, 2448, kMedium},
    {V4L2_PIX_FMT_YUYV, 640, 480, kFast},    {V4L2_PIX_FMT_YUYV, 1280, 720, kTen},
    {V4L2_PIX_FMT_YUYV, 1920, 1080, kFive},  {V4L2_PIX_FMT_YUYV, 3264, 2448, kTwo},
};

} // namespace

std::span<const Mode> modes()
{
    return kModes;
}

bool isSupported(std::uint32_t pixelFormat)
{
    return modeAt(pixelFormat, 0) != nullptr;
}

const Mode *modeAt(std::uint32_t pixelFormat, unsigned index)
{
    for (const Mode &mode : kModes)
        if (mode.pixelFormat == pixelFormat && index-- == 0)
            return &mode;
    return nullptr;
}

const Mode *findMode(std::uint32_t pixelFormat, unsigned width, unsigned height)
{
    for (const Mode &mode : kModes)
        if (mode.pixelFormat == pixelFormat && mode.width == width && mode.height == height)
            return &mode;
    return nullptr;
}

const Mode &nearestMode(const v4l2_pix_format &wish)
{
    const std::uint32_t format =
        isSupported(wish.pixelformat) ? wish.pixelformat : V4L2_PIX_FMT_MJPEG;
    const long long area = static_cast<long long>(wish.width) * wish.height;
    const Mode *best = nullptr;
    long long bestDistance = 0;
    for (const Mode &mode : kModes) {
        const long long distance =
            std::llabs(static_cast<long long>(mode.width) * mode.height - area);
        if (mode.pixelFormat == format && (!best || distance < bestDistance)) {
            best = &mode;
            bestDistance = distance;
        }
    }
    return *best;
}

unsigned nearestRate(const Mode &mode, double wish)
{
    unsigned best = mode.rates.front();
    for (const unsigned rate : mode.rates)
        if (std::fabs(rate - wish) < std::fabs(best - wish))
            best = rate;
    return best;
}

std::uint32_t bufferLength(unsigned width, unsigned height)
{
    return 2 * width * height;
}

void describe(const Mode &mode, v4l2_pix_format &pix)
{
    pix.width = mode.width;
    pix.height = mode.height;
    pix.pixelformat = mode.pixelFormat;
    pix.field = V4L2_FIELD_NONE;
    pix.bytesperline = mode.pixelFormat == V4L2_PIX_FMT_YUYV ? 2 * mode.width : 0;
    pix.sizeimage = bufferLength(mode.width, mode.height);
    pix.colorspace = V4L2_COLORSPACE_SRGB;
    pix.priv = V4L2_PIX_FMT_PRIV_MAGIC;
    pix.flags = 0;
    pix.ycbcr_enc = V4L2_YCBCR_ENC_601;
    pix.quantization = V4L2_QUANTIZATION_DEFAULT;
    pix.xfer_func = V4L2_XFER_FUNC_SRGB;
}

} // namespace meridax::simcam
