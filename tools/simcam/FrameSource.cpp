#include "FrameSource.h"

#include <algorithm>
#include <linux/videodev2.h>

namespace meridax::simcam {

namespace {

/// Frames with different noise that stand for a scene that does not change. Large frames get few:
/// their noise averages out over more pixels, and their encoding alone could not keep up.
std::size_t variants(FrameSize size)
{
    return size.height > 1080 ? 4 : 16;
}

} // namespace

FrameSource::Content FrameSource::contentOf(const State &state, FrameSize size, std::uint32_t frame)
{
    Content content;
    content.pixelFormat = state.pixelFormat;
    content.size = size;
    if (m_playback.select(state)) {
        content.playGeneration = state.playGeneration;
        content.playIndex = m_playback.next(state);
    } else {
        content.scene = sceneInputs(state, size, frame, monotonicMs());
    }
    return content;
}

const Planes &FrameSource::pictureOf(const Content &content, std::uint32_t seed)
{
    if (content.playGeneration)
        return m_playback.frame(content.playIndex, content.size);
    const Planes &clean = m_scene.draw(content.scene);
    if (content.scene.noise <= 0)
        return clean;
    m_noisy = clean;
    m_noise.add(m_noisy.y, clean.size.width, content.scene.noise, seed);
    return m_noisy;
}

const std::vector<std::uint8_t> &FrameSource::jpegOf(const Content &content, std::uint32_t frame)
{
    if (!(content == m_encodedContent)) {
        m_encodedContent = content;
        m_encoded.clear();
    }
    const bool hasNoise = !content.playGeneration && content.scene.noise > 0;
    const std::size_t wanted = hasNoise && !m_frozen ? variants(content.size) : 1;
    if (m_encoded.size() < wanted) {
        const Planes &picture = pictureOf(content, frame);
        encodeJpeg(picture, m_encoded.emplace_back());
        return m_encoded.back();
    }
    return m_encoded[frame % wanted];
}

std::size_t FrameSource::produce(State &state, std::uint32_t frame, std::span<std::uint8_t> out)
{
    const FrameSize size{state.width, state.height};
    if (!state.isOn(Param::Freeze)) {
        m_frozen.reset();
    } else if (!m_frozen || !(m_frozen->content.size == size) ||
               m_frozen->content.pixelFormat != state.pixelFormat) {
        m_frozen = Frozen{contentOf(state, size, frame), frame};
        m_encoded.clear();
    }
    const Content content = m_frozen ? m_frozen->content : contentOf(state, size, frame);
    const std::uint32_t number = m_frozen ? m_frozen->frame : frame;
    state.shownX = static_cast<float>(content.scene.mark[0].x);
    state.shownY = static_cast<float>(content.scene.mark[0].y);

    if (content.pixelFormat == V4L2_PIX_FMT_YUYV)
        return packYuyv(pictureOf(content, number), out);
    const auto &jpeg = jpegOf(content, number);
    const std::size_t length = std::min(jpeg.size(), out.size());
    std::copy_n(jpeg.begin(), length, out.begin());
    if (!state.isOn(Param::Truncate))
        return length;
    std::fill_n(out.begin() + std::ptrdiff_t(length / 2), length - length / 2, 0);
    return length / 2;
}

} // namespace meridax::simcam
