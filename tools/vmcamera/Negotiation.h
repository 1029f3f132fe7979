#pragma once

#include "Bytes.h"
#include "Formats.h"

#include <optional>

namespace meridax::vmcamera {

/// What a host asks for, or gets, when it negotiates a stream.
struct StreamChoice
{
    unsigned hint = 1;               ///< bit 0: the interval is the host's fixed wish
    unsigned format = 1;             ///< number of the format, from 1
    unsigned mode = 1;               ///< number of the picture size in that format, from 1
    std::uint32_t interval = 333333; ///< time between two frames [100 ns]

    bool operator==(const StreamChoice &) const = default;

    const VideoFormat &videoFormat() const { return videoFormats()[format - 1]; }
    const FrameMode &frameMode() const { return videoFormat().modes[mode - 1]; }
};

/// Largest piece of a frame, header included, that goes into one transfer [bytes]. It is what the
/// kernel's driver makes its transfers, so that each carries one whole piece.
constexpr std::uint32_t kMaxPayload = 16384;

/// Bytes of the probe and commit structure in version 1.0 of the video class.
constexpr std::size_t kChoiceBytes = 26;

/// The nearest stream the camera has: unknown numbers become the first ones, the interval becomes
/// the nearest of the mode.
StreamChoice negotiate(StreamChoice wanted);

/// The structure that probe and commit carry. Reading needs the numbers at its beginning only.
Bytes encodeChoice(const StreamChoice &choice);
std::optional<StreamChoice> decodeChoice(ByteView bytes);

} // namespace meridax::vmcamera
