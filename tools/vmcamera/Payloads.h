#pragma once

#include "Bytes.h"

namespace meridax::vmcamera {

/// Cuts `frame` into pieces of at most `maxBytes`, each with the two-byte header of the video
/// class in front. `frameId` is a bit that changes from frame to frame; the last piece carries
/// the end-of-frame mark.
std::vector<Bytes> payloads(ByteView frame, bool frameId, std::size_t maxBytes);

} // namespace meridax::vmcamera
