#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace meridax::simcam {

/// A picture of three bytes a pixel: red, green, blue.
struct RgbImage
{
    unsigned width = 0;
    unsigned height = 0;
    std::vector<std::uint8_t> pixels;
};

/// True for the file names of pictures that readImage() knows.
bool isImageName(const std::string &name);

/// Reads a PNG or JPEG file; the image is empty if that is not possible.
RgbImage readImage(const std::string &path);

} // namespace meridax::simcam
