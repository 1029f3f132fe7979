#include "UsbIp.h"

#include <algorithm>

namespace meridax::vmcamera {

namespace {

// Layout of Linux's Documentation/usb/usbip_protocol.rst: 48 bytes of header, numbers with the most
// significant byte first, then the data of the transfer.
constexpr std::size_t kHeaderBytes = 48;
constexpr std::size_t kSetupAt = 40;
enum Command : std::uint32_t { Submit = 1, Unlink = 2, SubmitReply = 3, UnlinkReply = 4 };
enum Word { CommandWord, SequenceWord, DeviceWord, DirectionWord, EndpointWord };
// From the sixth word on the meaning depends on the command.
enum SubmitWord { FlagsWord = 5, LengthWord };
enum UnlinkWord { UnlinkSequenceWord = 5 };
enum ReplyWord { StatusWord = 5, TransferredWord };

std::uint32_t word(const Bytes &bytes, std::size_t index)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | bytes[4 * index + i];
    return value;
}

void setWord(Bytes &bytes, std::size_t index, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        bytes[4 * index + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

Bytes reply(Command command, std::uint32_t sequence, int status)
{
    Bytes out(kHeaderBytes);
    setWord(out, CommandWord, command);
    setWord(out, SequenceWord, sequence);
    setWord(out, StatusWord, static_cast<std::uint32_t>(status));
    return out;
}

} // namespace

std::optional<HostMessage> takeMessage(Bytes &buffer)
{
    if (buffer.size() < kHeaderBytes)
        return std::nullopt;
    HostMessage message;
    message.sequence = word(buffer, SequenceWord);
    message.endpoint = word(buffer, EndpointWord);
    message.towardsHost = word(buffer, DirectionWord) == 1;
    std::copy_n(buffer.begin() + kSetupAt, message.setup.size(), message.setup.begin());

    std::size_t dataBytes = 0;
    switch (word(buffer, CommandWord)) {
    case Submit:
        message.kind = HostMessage::Kind::Submit;
        message.length = word(buffer, LengthWord);
        dataBytes = message.towardsHost ? 0 : message.length;
        break;
    case Unlink:
        message.kind = HostMessage::Kind::Unlink;
        message.unlinkSequence = word(buffer, UnlinkSequenceWord);
        break;
    default:
        break;
    }
    if (buffer.size() < kHeaderBytes + dataBytes)
        return std::nullopt;

    const auto dataBegin = buffer.begin() + kHeaderBytes;
    const auto end = dataBegin + static_cast<std::ptrdiff_t>(dataBytes);
    message.data.assign(dataBegin, end);
    buffer.erase(buffer.begin(), end);
    return message;
}

Bytes submitReply(std::uint32_t sequence, int status, std::size_t transferred, ByteView data)
{
    Bytes out = reply(SubmitReply, sequence, status);
    setWord(out, TransferredWord, static_cast<std::uint32_t>(transferred));
    append(out, data);
    return out;
}

Bytes unlinkReply(std::uint32_t sequence, int status)
{
    return reply(UnlinkReply, sequence, status);
}

} // namespace meridax::vmcamera
