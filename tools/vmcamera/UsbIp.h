#pragma once

#include "Bytes.h"

#include <array>
#include <optional>

namespace meridax::vmcamera {

/// A message of the kernel's virtual host controller: a transfer to do, or one to forget.
struct HostMessage
{
    enum class Kind { Submit, Unlink, Unknown };

    Kind kind = Kind::Unknown;
    std::uint32_t sequence = 0;
    std::uint32_t endpoint = 0;
    bool towardsHost = false;
    std::uint32_t length = 0;            ///< of the transfer [bytes]
    std::uint32_t unlinkSequence = 0;    ///< the transfer to forget
    std::array<std::uint8_t, 8> setup{}; ///< on endpoint 0
    Bytes data;                          ///< what goes to the device
};

/// Takes the first message out of `buffer`; nothing while it is not complete.
std::optional<HostMessage> takeMessage(Bytes &buffer);

/// The transfer `sequence` is done: `status` 0 with `data` for the host, or a negative errno.
/// `transferred` counts the bytes in either direction.
Bytes submitReply(std::uint32_t sequence, int status, std::size_t transferred, ByteView data);

/// Answer to an Unlink: -ECONNRESET when the transfer was still waiting, 0 when it was done.
Bytes unlinkReply(std::uint32_t sequence, int status);

} // namespace meridax::vmcamera
