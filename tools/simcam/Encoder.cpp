#include "Encoder.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>

namespace meridax::simcam {

namespace {

constexpr int kQuality = 90;
constexpr unsigned kBlockRows = 8;

} // namespace

void encodeJpeg(const Planes &planes, std::vector<std::uint8_t> &out)
{
    const unsigned width = planes.size.width;
    const unsigned height = planes.size.height;
    out.resize(std::size_t(2) * width * height);
    unsigned char *data = out.data();
    unsigned long length = out.size();

    jpeg_compress_struct c;
    jpeg_error_mgr errors;
    c.err = jpeg_std_error(&errors);
    jpeg_create_compress(&c);
    jpeg_mem_dest(&c, &data, &length);
    c.image_width = width;
    c.image_height = height;
    c.input_components = 3;
    c.in_color_space = JCS_YCbCr;
    jpeg_set_defaults(&c);
    jpeg_set_quality(&c, kQuality, TRUE);
    c.dct_method = JDCT_IFAST;
    c.raw_data_in = TRUE;
    c.comp_info[0].h_samp_factor = 2;
    c.comp_info[0].v_samp_factor = 1;
    jpeg_start_compress(&c, TRUE);
    while (c.next_scanline < height) {
        std::array<std::array<JSAMPROW, kBlockRows>, 3> rows;
        for (unsigned k = 0; k < kBlockRows; ++k) {
            const std::size_t line = std::min(c.next_scanline + k, height - 1);
            // libjpeg only reads the rows although its type does not say so.
            rows[0][k] = const_cast<JSAMPROW>(planes.y.data() + line * width);
            rows[1][k] = const_cast<JSAMPROW>(planes.u.data() + line * width / 2);
            rows[2][k] = const_cast<JSAMPROW>(planes.v.data() + line * width / 2);
        }
        JSAMPARRAY arrays[3] = {rows[0].data(), rows[1].data(), rows[2].data()};
        jpeg_write_raw_data(&c, arrays, kBlockRows);
    }
    jpeg_finish_compress(&c);
    jpeg_destroy_compress(&c);
    if (data != out.data()) { // outgrew the buffer; libjpeg made one of its own
        out.assign(data, data + length);
        std::free(data);
    }
    out.resize(length);
}

void packYuyv(const Planes &planes, std::vector<std::uint8_t> &out)
{
    out.resize(2 * planes.y.size());
    const std::uint8_t *y = planes.y.data();
    const std::uint8_t *u = planes.u.data();
    const std::uint8_t *v = planes.v.data();
    std::uint8_t *p = out.data();
    const std::size_t pairs = planes.y.size() / 2;
    const auto luma = [](unsigned value) {
        return static_cast<std::uint8_t>(16 + (value * 56284 + 32768) / 65536); // 219 / 255
    };
    const auto chroma = [](unsigned value) {
        return static_cast<std::uint8_t>(16 + (value * 57569 + 28900) / 65536); // 224 / 255
    };
    for (std::size_t i = 0; i < pairs; ++i) {
        p[4 * i] = luma(y[2 * i]);
        p[4 * i + 1] = chroma(u[i]);
        p[4 * i + 2] = luma(y[2 * i + 1]);
        p[4 * i + 3] = chroma(v[i]);
    }
}

} // namespace meridax::simcam
