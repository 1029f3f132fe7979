#pragma once

#include "Encoder.h"
#include "PixelNoise.h"
#include "Playback.h"
#include "RealScene.h"
#include "Scene.h"

#include <optional>
#include <span>
#include <vector>

namespace meridax::simcam {

/// Makes the frames of one device: scene or recorded frames, noise, encoding. Used by one thread.
///
/// Encoding is most of the cost, so a scene that stands still is encoded only a few times with
/// different noise, and these frames are then sent in turn.
class FrameSource
{
public:
    /// A frame in the format of `state`, valid until the next call. The noise depends on the number
    /// `frame` alone.
    std::span<const std::uint8_t> produce(State &state, std::uint32_t frame);

private:
    /// What the encoded picture depends on, apart from the noise.
    struct Content
    {
        std::uint32_t pixelFormat = 0;
        FrameSize size;
        SceneInputs scene;
        std::uint32_t playGeneration = 0; ///< 0: the scene
        unsigned playIndex = 0;

        bool operator==(const Content &) const = default;
    };

    Content contentOf(const State &state, FrameSize size, std::uint32_t frame);
    const Planes &pictureOf(const Content &content, std::uint32_t seed);
    const std::vector<std::uint8_t> &jpegOf(const Content &content, std::uint32_t frame);
    std::span<const std::uint8_t> damaged(const State &state,
                                          const std::vector<std::uint8_t> &jpeg);

    Scene m_scene;
    RealScene m_realScene;
    Playback m_playback;
    PixelNoise m_noise;
    Planes m_noisy;
    std::vector<std::uint8_t> m_bytes; ///< of a frame that is not sent as it was encoded

    Content m_encodedContent;
    std::vector<std::vector<std::uint8_t>> m_encoded;

    struct Frozen
    {
        Content content;
        std::uint32_t frame;
    };
    std::optional<Frozen> m_frozen;
};

} // namespace meridax::simcam
