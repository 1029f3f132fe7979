#include "Payloads.h"

#include <algorithm>

namespace meridax::vmcamera {

namespace {

constexpr std::size_t kHeaderBytes = 2;
constexpr unsigned kFrameId = 0x01;
constexpr unsigned kEndOfFrame = 0x02;
constexpr unsigned kEndOfHeader = 0x80;

} // namespace

std::vector<Bytes> payloads(ByteView frame, bool frameId, std::size_t maxBytes)
{
    std::vector<Bytes> pieces;
    while (!frame.empty()) {
        const std::size_t size = std::min(frame.size(), maxBytes - kHeaderBytes);
        const bool last = size == frame.size();
        Bytes piece;
        piece.reserve(kHeaderBytes + size);
        append(piece, {u8(kHeaderBytes),
                       u8(kEndOfHeader | (frameId ? kFrameId : 0) | (last ? kEndOfFrame : 0))});
        append(piece, frame.first(size));
        frame = frame.subspan(size);
        pieces.push_back(std::move(piece));
    }
    return pieces;
}

} // namespace meridax::vmcamera
