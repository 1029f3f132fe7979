#include "VideoDevice.h"

#include "Descriptors.h"

#include <utility>

namespace meridax::vmcamera {

namespace {

constexpr unsigned kTypeMask = 0x60; // standard, class or vendor
constexpr unsigned kStandard = 0x00;
constexpr unsigned kClass = 0x20;
constexpr unsigned kRecipientMask = 0x1f;
constexpr unsigned kToInterface = 0x01;
constexpr unsigned kToEndpoint = 0x02;

// Standard requests of USB 2.0.
constexpr unsigned kGetStatus = 0;
constexpr unsigned kClearFeature = 1;
constexpr unsigned kGetDescriptor = 6;
constexpr unsigned kGetConfiguration = 8;
constexpr unsigned kSetConfiguration = 9;
constexpr unsigned kGetInterface = 10;
constexpr unsigned kSetInterface = 11;

constexpr unsigned kMayGetAndSet = 3;

} // namespace

SetupPacket parseSetup(std::span<const std::uint8_t, 8> bytes)
{
    const auto word = [&bytes](std::size_t at) {
        return static_cast<std::uint16_t>(littleEndian(bytes.subspan(at, 2)));
    };
    return {bytes[0], bytes[1], word(2), word(4), word(6)};
}

VideoDevice::VideoDevice(std::string product, std::string serial)
    : m_product(std::move(product))
    , m_serial(std::move(serial))
{
}

void VideoDevice::disconnect()
{
    m_stream.reset();
    m_probe = {};
}

std::optional<Bytes> VideoDevice::handle(const SetupPacket &setup, ByteView data)
{
    const unsigned type = setup.type & kTypeMask;
    const unsigned interface = setup.index & 0xff;
    std::optional<Bytes> answer;
    if (type == kStandard)
        answer = standardRequest(setup);
    else if (type == kClass && (setup.type & kRecipientMask) == kToInterface)
        answer = interface == kStreamInterface ? streamRequest(setup, data)
                                               : controlRequest(setup, data);
    if (answer && answer->size() > setup.length)
        answer->resize(setup.length);
    return answer;
}

std::optional<Bytes> VideoDevice::standardRequest(const SetupPacket &setup)
{
    switch (setup.request) {
    case kGetStatus:
        return Bytes{0, 0};
    case kGetDescriptor:
        return descriptorRequest(setup);
    case kGetConfiguration:
        return Bytes{1};
    case kGetInterface:
        return Bytes{0};
    case kClearFeature:
        // A bulk stream has no request of its own to end it: hosts clear the endpoint's halt.
        if ((setup.type & kRecipientMask) == kToEndpoint &&
            setup.index == (kTowardsHost | kStreamEndpoint))
            m_stream.reset();
        return Bytes{};
    case kSetConfiguration:
    case kSetInterface:
        return Bytes{};
    default:
        return std::nullopt;
    }
}

std::optional<Bytes> VideoDevice::descriptorRequest(const SetupPacket &setup) const
{
    constexpr unsigned kDevice = 1;
    constexpr unsigned kConfiguration = 2;
    constexpr unsigned kString = 3;
    switch (setup.value >> 8) {
    case kDevice:
        return deviceDescriptor();
    case kConfiguration:
        return configurationDescriptor();
    case kString:
        break;
    default:
        return std::nullopt;
    }
    switch (static_cast<StringId>(setup.value & 0xff)) {
    case StringId::Languages:
        return languagesDescriptor();
    case StringId::Maker:
        return stringDescriptor("Meridax");
    case StringId::Product:
        return stringDescriptor(m_product);
    case StringId::Serial:
        return stringDescriptor(m_serial);
    }
    return std::nullopt;
}

std::optional<Bytes> VideoDevice::controlRequest(const SetupPacket &setup, ByteView data)
{
    constexpr unsigned kInterfaceItself = 0;
    constexpr unsigned kErrorCode = 2;
    const auto entity = static_cast<std::uint8_t>(setup.index >> 8);
    const auto selector = static_cast<std::uint8_t>(setup.value >> 8);
    const auto request = static_cast<Request>(setup.request);
    if (entity == kInterfaceItself && selector == kErrorCode && request == Request::GetCurrent)
        return Bytes{static_cast<std::uint8_t>(m_controls.lastError())};
    return m_controls.request(request, entity, selector, data);
}

std::optional<Bytes> VideoDevice::streamRequest(const SetupPacket &setup, ByteView data)
{
    constexpr unsigned kProbe = 1;
    constexpr unsigned kCommit = 2;
    const unsigned selector = setup.value >> 8;
    if (selector != kProbe && selector != kCommit)
        return std::nullopt;
    switch (static_cast<Request>(setup.request)) {
    case Request::SetCurrent: {
        const std::optional<StreamChoice> wanted = decodeChoice(data);
        if (!wanted)
            return std::nullopt;
        m_probe = negotiate(*wanted);
        if (selector == kCommit)
            m_stream = m_probe;
        return Bytes{};
    }
    case Request::GetCurrent:
    case Request::GetMinimum:
    case Request::GetMaximum:
        return encodeChoice(m_probe);
    case Request::GetDefault:
        return encodeChoice({});
    case Request::GetInfo:
        return Bytes{kMayGetAndSet};
    case Request::GetLength:
        return Bytes{kChoiceBytes, 0};
    case Request::GetResolution:
        break;
    }
    return std::nullopt;
}

} // namespace meridax::vmcamera
