#include "FrameSource.h"

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
    const Planes &clean =
        content.scene.isReal ? m_realScene.draw(content.scene) : m_scene.draw(content.scene);
    if (content.scene.noise.isNone())
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
    const bool hasNoise = !content.playGeneration && !content.scene.noise.isNone();
    const std::size_t wanted = hasNoise && !m_frozen ? variants(content.size) : 1;
    if (m_encoded.size() < wanted) {
        const Planes &picture = pictureOf(content, frame);
        encodeJpeg(picture, m_encoded.emplace_back());
        return m_encoded.back();
    }
    return m_encoded[frame % wanted];
}

/// `jpeg` with what `state` says is wrong with it.
std::span<const std::uint8_t> FrameSource::damaged(const State &state,
                                                   const std::vector<std::uint8_t> &jpeg)
{
    constexpr std::ptrdiff_t kEndMarker = 2; // bytes
    const auto stray = static_cast<std::size_t>(state.get(Param::StrayBytes));
    if (stray == 0 && !state.isOn(Param::Truncate))
        return jpeg;
    m_bytes = jpeg;
    m_bytes.insert(m_bytes.end() - kEndMarker, stray, 0);
    if (state.isOn(Param::Truncate))
        m_bytes.resize(m_bytes.size() / 2);
    return m_bytes;
}

std::span<const std::uint8_t> FrameSource::produce(State &state, std::uint32_t frame)
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

    if (content.pixelFormat != V4L2_PIX_FMT_YUYV)
        return damaged(state, jpegOf(content, number));
    packYuyv(pictureOf(content, number), m_bytes);
    return m_bytes;
}

} // namespace meridax::simcam
