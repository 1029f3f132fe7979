#include "Playback.h"

#include "ImageFile.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace meridax::simcam {

namespace {

struct Rgb
{
    float r = 0, g = 0, b = 0;
};

/// Colour of `image` at (x, y), bilinear; black outside.
Rgb sample(const RgbImage &image, double x, double y)
{
    if (x < -0.5 || y < -0.5 || x > image.width - 0.5 || y > image.height - 0.5)
        return {};
    const double cx = std::clamp(x, 0.0, double(image.width - 1));
    const double cy = std::clamp(y, 0.0, double(image.height - 1));
    const auto x0 = static_cast<unsigned>(cx);
    const auto y0 = static_cast<unsigned>(cy);
    const unsigned x1 = std::min(x0 + 1, image.width - 1);
    const unsigned y1 = std::min(y0 + 1, image.height - 1);
    const auto fx = static_cast<float>(cx - x0);
    const auto fy = static_cast<float>(cy - y0);
    const auto channel = [&](std::size_t c) {
        const auto at = [&](std::size_t px, std::size_t py) {
            return float(image.pixels[3 * (py * image.width + px) + c]);
        };
        return std::lerp(std::lerp(at(x0, y0), at(x1, y0), fx),
                         std::lerp(at(x0, y1), at(x1, y1), fx), fy);
    };
    return {channel(0), channel(1), channel(2)};
}

std::uint8_t toByte(float value)
{
    return static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
}

/// `image` as planes of `size`, in BT.601 full range.
void fit(const RgbImage &image, Planes &planes)
{
    const FrameSize size = planes.size;
    const double zoom =
        std::max(double(image.width) / size.width, double(image.height) / size.height);
    const double left = (image.width - size.width * zoom) / 2 + (zoom - 1) / 2;
    const double top = (image.height - size.height * zoom) / 2 + (zoom - 1) / 2;
    std::size_t i = 0;
    for (unsigned y = 0; y < size.height; ++y) {
        for (unsigned x = 0; x < size.width; ++x, ++i) {
            const Rgb c = sample(image, left + x * zoom, top + y * zoom);
            planes.y[i] = toByte(0.299F * c.r + 0.587F * c.g + 0.114F * c.b);
            if (i % 2 == 0) {
                planes.u[i / 2] = toByte(128 - 0.168736F * c.r - 0.331264F * c.g + 0.5F * c.b);
                planes.v[i / 2] = toByte(128 + 0.5F * c.r - 0.418688F * c.g - 0.081312F * c.b);
            }
        }
    }
}

} // namespace

std::vector<std::string> recordedFrames(const std::string &folder)
{
    std::vector<std::string> files;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(folder, error))
        if (isImageName(entry.path().filename().string()))
            files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    return files;
}

bool Playback::select(const State &state)
{
    const std::uint32_t generation = state.playGeneration;
    if (generation != m_generation) {
        m_generation = generation;
        m_files = generation ? recordedFrames(state.playFolder) : std::vector<std::string>();
        m_position = 0;
        m_loaded = -1;
    }
    return !m_files.empty();
}

unsigned Playback::next(const State &state)
{
    const auto count = static_cast<unsigned>(m_files.size());
    const int wanted = static_cast<int>(state.get(Param::PlayFrame));
    if (wanted >= 0)
        return std::min(static_cast<unsigned>(wanted), count - 1);
    return m_position++ % count;
}

const Planes &Playback::frame(unsigned index, FrameSize size)
{
    if (int(index) == m_loaded && m_planes.size == size)
        return m_planes;
    m_loaded = static_cast<int>(index);
    m_planes.resize(size);
    const RgbImage image = readImage(m_files[index]);
    if (image.pixels.empty()) {
        std::fill(m_planes.y.begin(), m_planes.y.end(), 0);
        std::fill(m_planes.u.begin(), m_planes.u.end(), 128);
        std::fill(m_planes.v.begin(), m_planes.v.end(), 128);
    } else {
        fit(image, m_planes);
    }
    return m_planes;
}

} // namespace meridax::simcam
