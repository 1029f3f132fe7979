#pragma once

#include <cstdint>
#include <linux/videodev2.h>
#include <span>

namespace meridax::simcam {

/// One pixel format at one size with its frame rates, fastest first, as the bandwidth of USB 2
/// leaves them.
struct Mode
{
    std::uint32_t pixelFormat;
    unsigned width;
    unsigned height;
    std::span<const unsigned> rates; ///< frames per second
};

/// Sizes of all modes; every pixel format has every size.
std::span<const Mode> modes();

bool isSupported(std::uint32_t pixelFormat);

/// The `index`-th mode of a pixel format, or null.
const Mode *modeAt(std::uint32_t pixelFormat, unsigned index);

/// The mode of exactly this format and size, or null.
const Mode *findMode(std::uint32_t pixelFormat, unsigned width, unsigned height);

/// What a driver makes of a wish: the format if known, else MJPEG, and the size nearest in area.
const Mode &nearestMode(const v4l2_pix_format &wish);

/// The rate of `mode` nearest to `wish` frames per second.
unsigned nearestRate(const Mode &mode, double wish);

/// Length of one buffer: of a frame in YUYV, an upper bound in MJPEG.
std::uint32_t bufferLength(unsigned width, unsigned height);

/// Fills in everything that a driver answers about `mode`.
void describe(const Mode &mode, v4l2_pix_format &pix);

} // namespace meridax::simcam
