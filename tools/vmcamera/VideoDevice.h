#pragma once

#include "Bytes.h"
#include "Controls.h"
#include "Negotiation.h"

#include <array>
#include <optional>
#include <string>

namespace meridax::vmcamera {

/// The eight bytes that begin every request on the control pipe.
struct SetupPacket
{
    std::uint8_t type;
    std::uint8_t request;
    std::uint16_t value;
    std::uint16_t index;
    std::uint16_t length;

    bool towardsHost() const { return (type & 0x80) != 0; }
};

SetupPacket parseSetup(std::span<const std::uint8_t, 8> bytes);

/// The camera as its control pipe shows it: descriptors, the negotiation of a stream, controls.
/// Knows neither time nor transport.
class VideoDevice
{
public:
    VideoDevice(std::string product, std::string serial);

    /// Answers one request; `data` is what the host sends along. Nothing means a stall, by which a
    /// device refuses. An answer is cut to the length that the host asked for.
    std::optional<Bytes> handle(const SetupPacket &setup, ByteView data);

    /// The stream the host has committed to; nothing while it is stopped.
    const std::optional<StreamChoice> &stream() const { return m_stream; }
    /// A host that is gone leaves no stream behind; the values stay, as the camera keeps them.
    void disconnect();

    const ControlValues &controls() const { return m_controls; }

private:
    std::optional<Bytes> standardRequest(const SetupPacket &setup);
    std::optional<Bytes> descriptorRequest(const SetupPacket &setup) const;
    std::optional<Bytes> controlRequest(const SetupPacket &setup, ByteView data);
    std::optional<Bytes> streamRequest(const SetupPacket &setup, ByteView data);

    std::string m_product;
    std::string m_serial;
    ControlValues m_controls;
    StreamChoice m_probe;
    std::optional<StreamChoice> m_stream;
};

} // namespace meridax::vmcamera
