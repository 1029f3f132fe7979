#include "Negotiation.h"

#include <algorithm>

namespace meridax::vmcamera {

namespace {

/// Length of the numbers that a host chooses by.
constexpr std::size_t kWishBytes = 8;

unsigned inRange(unsigned number, std::size_t count)
{
    return number >= 1 && number <= count ? number : 1;
}

} // namespace

StreamChoice negotiate(StreamChoice wanted)
{
    StreamChoice choice = wanted;
    choice.format = inRange(wanted.format, videoFormats().size());
    choice.mode = inRange(wanted.mode, choice.videoFormat().modes.size());

    const auto distance = [&wanted](unsigned framesPerSecond) {
        const std::int64_t offered = frameInterval(framesPerSecond);
        return std::abs(offered - std::int64_t{wanted.interval});
    };
    choice.interval =
        frameInterval(*std::ranges::min_element(choice.frameMode().framesPerSecond, {}, distance));
    return choice;
}

Bytes encodeChoice(const StreamChoice &choice)
{
    Bytes out;
    append(out, {u16(choice.hint), u8(choice.format), u8(choice.mode), u32(choice.interval)});
    // Key frame rate, P frame rate, compression quality, compression window, delay: none.
    append(out, {u16(0), u16(0), u16(0), u16(0), u16(0)});
    append(out, {u32(choice.frameMode().maxBytes()), u32(kMaxPayload)});
    return out;
}

std::optional<StreamChoice> decodeChoice(ByteView bytes)
{
    if (bytes.size() < kWishBytes)
        return std::nullopt;
    return StreamChoice{.hint = littleEndian(bytes.subspan(0, 2)),
                        .format = bytes[2],
                        .mode = bytes[3],
                        .interval = littleEndian(bytes.subspan(4, 4))};
}

} // namespace meridax::vmcamera
