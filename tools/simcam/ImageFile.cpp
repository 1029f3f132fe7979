#include "ImageFile.h"

#include <algorithm>
#include <cctype>
#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <memory>
#include <png.h>

namespace meridax::simcam {

namespace {

std::string suffixOf(const std::string &name)
{
    const auto dot = name.rfind('.');
    std::string suffix = dot == std::string::npos ? "" : name.substr(dot + 1);
    std::transform(suffix.begin(), suffix.end(), suffix.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return suffix;
}

RgbImage readPng(const std::string &path)
{
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str()))
        return {};
    png.format = PNG_FORMAT_RGB;
    RgbImage image{png.width, png.height, std::vector<std::uint8_t>(PNG_IMAGE_SIZE(png))};
    if (!png_image_finish_read(&png, nullptr, image.pixels.data(), 0, nullptr))
        return {};
    return image;
}

struct JpegErrors
{
    jpeg_error_mgr manager;
    std::jmp_buf escape;
};

void leave(j_common_ptr c)
{
    std::longjmp(reinterpret_cast<JpegErrors *>(c->err)->escape, 1);
}

/// Decodes into `image`, which the caller owns because longjmp runs no destructors.
bool decodeJpeg(std::FILE *file, RgbImage &image)
{
    jpeg_decompress_struct c;
    JpegErrors errors;
    c.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = leave;
    errors.manager.emit_message = [](j_common_ptr, int) {};
    if (setjmp(errors.escape)) {
        jpeg_destroy_decompress(&c);
        return false;
    }
    jpeg_create_decompress(&c);
    jpeg_stdio_src(&c, file);
    jpeg_read_header(&c, TRUE);
    c.out_color_space = JCS_RGB;
    jpeg_start_decompress(&c);
    image.width = c.output_width;
    image.height = c.output_height;
    image.pixels.resize(std::size_t(3) * image.width * image.height);
    while (c.output_scanline < c.output_height) {
        JSAMPROW row = image.pixels.data() + std::size_t(3) * image.width * c.output_scanline;
        jpeg_read_scanlines(&c, &row, 1);
    }
    jpeg_finish_decompress(&c);
    jpeg_destroy_decompress(&c);
    return true;
}

RgbImage readJpeg(const std::string &path)
{
    struct Closer
    {
        void operator()(std::FILE *f) const { std::fclose(f); }
    };
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rbe"));
    RgbImage image;
    if (!file || !decodeJpeg(file.get(), image))
        return {};
    return image;
}

} // namespace

bool isImageName(const std::string &name)
{
    const std::string suffix = suffixOf(name);
    return suffix == "png" || suffix == "jpg" || suffix == "jpeg";
}

RgbImage readImage(const std::string &path)
{
    return suffixOf(path) == "png" ? readPng(path) : readJpeg(path);
}

} // namespace meridax::simcam
