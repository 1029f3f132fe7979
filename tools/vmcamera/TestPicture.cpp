#include "TestPicture.h"

#include "simcam/Encoder.h"

#include <algorithm>

namespace meridax::vmcamera {

namespace {

constexpr int kBarGrey = 235;
constexpr unsigned kBarPart = 40; ///< width of the bar as a part of the picture's width
constexpr unsigned kBarHeightPart = 4;
constexpr unsigned kSquare = 8; ///< edge of the pattern's squares, px
constexpr double kPatternContrast = 40.0;
constexpr std::uint8_t kNeutral = 128;

} // namespace

const Bytes &TestPicture::frame(Coding coding, const FrameMode &mode, const PictureValues &values,
                                unsigned number)
{
    const Content content{coding, mode.width, mode.height, values};
    if (content != m_content) {
        m_content = content;
        for (Bytes &frame : m_frames)
            frame.clear();
    }
    Bytes &frame = m_frames[number % kPlaces];
    if (frame.empty()) {
        draw(content, number % kPlaces);
        if (coding == Coding::Mjpeg) {
            simcam::encodeJpeg(m_planes, frame);
        } else {
            frame.resize(mode.maxBytes());
            simcam::packYuyv(m_planes, frame);
        }
    }
    return frame;
}

void TestPicture::draw(const Content &content, unsigned place)
{
    m_planes.resize({content.width, content.height});
    const unsigned barBegin = place * content.width / kPlaces;
    const unsigned barEnd = barBegin + content.width / kBarPart;
    const unsigned barHeight = content.height / kBarHeightPart;
    const int pattern = static_cast<int>(kPatternContrast * content.values.focus);
    for (unsigned y = 0; y < content.height; ++y) {
        std::uint8_t *const row = &m_planes.y[std::size_t(y) * content.width];
        for (unsigned x = 0; x < content.width; ++x) {
            const bool light = ((x / kSquare + y / kSquare) & 1) != 0;
            const int ramp = 60 + static_cast<int>(130 * x / content.width);
            const int grey = ramp + content.values.brightness + (light ? pattern : -pattern);
            row[x] = static_cast<std::uint8_t>(
                y < barHeight && x >= barBegin && x < barEnd ? kBarGrey : std::clamp(grey, 0, 255));
        }
    }
    std::ranges::fill(m_planes.u, kNeutral);
    std::ranges::fill(m_planes.v, kNeutral);
}

} // namespace meridax::vmcamera
