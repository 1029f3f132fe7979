#include "Descriptors.h"

#include "Controls.h"
#include "Formats.h"

namespace meridax::vmcamera {

namespace {

// Descriptor types of USB 2.0 and of the video class.
constexpr unsigned kDevice = 0x01;
constexpr unsigned kConfiguration = 0x02;
constexpr unsigned kString = 0x03;
constexpr unsigned kInterface = 0x04;
constexpr unsigned kEndpoint = 0x05;
constexpr unsigned kAssociation = 0x0b;
constexpr unsigned kClassInterface = 0x24;

// Class codes.
constexpr unsigned kMiscellaneous = 0xef;
constexpr unsigned kVideo = 0x0e;
constexpr unsigned kVideoControl = 1;
constexpr unsigned kVideoStreaming = 2;
constexpr unsigned kVideoCollection = 3;

// A vendor and product number set aside for tests within one's own walls.
constexpr unsigned kTestVendor = 0x1209;
constexpr unsigned kTestProduct = 0x0001;

constexpr unsigned kHighSpeedBulkPacket = 512;
constexpr unsigned kUsb20 = 0x0200;
constexpr unsigned kVideoClass10 = 0x0100;
constexpr unsigned kDeviceRelease = 0x0100;
constexpr unsigned kBusPowered = 0x80;
constexpr unsigned kMilliampere500 = 250; // in units of 2 mA
constexpr unsigned kClockHz = 48'000'000;

constexpr unsigned kCameraTerminalType = 0x0201;
constexpr unsigned kUsbTerminalType = 0x0101;
constexpr unsigned kCameraId = static_cast<unsigned>(Entity::CameraTerminal);
constexpr unsigned kPictureId = static_cast<unsigned>(Entity::ProcessingUnit);
constexpr unsigned kOutputId = 3;

// "YUY2" as the video class names uncompressed formats.
constexpr std::uint8_t kYuy2Guid[] = {'Y',  'U',  'Y',  '2',  0x00, 0x00, 0x10, 0x00,
                                      0x80, 0x00, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71};

Bytes joined(std::initializer_list<Bytes> parts)
{
    Bytes out;
    for (const Bytes &part : parts)
        append(out, part);
    return out;
}

/// Length, type and `fields`: the form of every descriptor.
Bytes descriptor(unsigned type, std::initializer_list<Field> fields)
{
    Bytes out;
    append(out, {u8(0), u8(type)});
    append(out, fields);
    out[0] = static_cast<std::uint8_t>(out.size());
    return out;
}

/// A class-specific header, whose last field before `rest` is the length with all that follows.
Bytes headerWithTotal(std::initializer_list<Field> before, std::initializer_list<Field> after,
                      const Bytes &following)
{
    Bytes tail;
    append(tail, after);
    Bytes out;
    append(out, {u8(0), u8(kClassInterface)});
    append(out, before);
    const std::size_t own = out.size() + 2 + tail.size();
    append(out, {u16(own + following.size())});
    append(out, tail);
    out[0] = static_cast<std::uint8_t>(own);
    append(out, following);
    return out;
}

Bytes interface(unsigned number, unsigned endpoints, unsigned subclass)
{
    return descriptor(kInterface,
                      {u8(number), u8(0), u8(endpoints), u8(kVideo), u8(subclass), u8(0), u8(0)});
}

/// Camera terminal -> processing unit -> USB.
Bytes controlTopology()
{
    constexpr unsigned kHeader = 0x01;
    constexpr unsigned kInputTerminal = 0x02;
    constexpr unsigned kOutputTerminal = 0x03;
    constexpr unsigned kProcessingUnit = 0x05;
    const Bytes entities = joined({
        descriptor(kClassInterface, {u8(kInputTerminal), u8(kCameraId), u16(kCameraTerminalType),
                                     u8(0), u8(0), u16(0), u16(0), u16(0), // no optical zoom
                                     u8(3), u24(controlBits(Entity::CameraTerminal))}),
        descriptor(kClassInterface, {u8(kProcessingUnit), u8(kPictureId), u8(kCameraId), u16(0),
                                     u8(2), u16(controlBits(Entity::ProcessingUnit)), u8(0)}),
        descriptor(kClassInterface, {u8(kOutputTerminal), u8(kOutputId), u16(kUsbTerminalType),
                                     u8(0), u8(kPictureId), u8(0)}),
    });
    return headerWithTotal({u8(kHeader), u16(kVideoClass10)},
                           {u32(kClockHz), u8(1), u8(kStreamInterface)}, entities);
}

Bytes formatDescriptor(const VideoFormat &format, unsigned number)
{
    constexpr unsigned kUncompressed = 0x04;
    constexpr unsigned kMjpegFormat = 0x06;
    constexpr unsigned kBitsPerPixel = 16;
    const std::size_t modes = format.modes.size();
    if (format.coding == Coding::Mjpeg) {
        return descriptor(kClassInterface, {u8(kMjpegFormat), u8(number), u8(modes), u8(1), u8(1),
                                            u8(0), u8(0), u8(0), u8(0)});
    }
    Bytes out = descriptor(kClassInterface, {u8(kUncompressed), u8(number), u8(modes)});
    append(out, kYuy2Guid);
    append(out, {u8(kBitsPerPixel), u8(1), u8(0), u8(0), u8(0), u8(0)});
    out[0] = static_cast<std::uint8_t>(out.size());
    return out;
}

Bytes modeDescriptor(Coding coding, const FrameMode &mode, unsigned number)
{
    constexpr unsigned kUncompressedFrame = 0x05;
    constexpr unsigned kMjpegFrame = 0x07;
    const auto bitsPerSecond = [&mode](unsigned fps) { return u32(8ULL * mode.maxBytes() * fps); };
    const auto rates = mode.framesPerSecond;
    Bytes out =
        descriptor(kClassInterface,
                   {u8(coding == Coding::Mjpeg ? kMjpegFrame : kUncompressedFrame), u8(number),
                    u8(0), u16(mode.width), u16(mode.height), bitsPerSecond(rates.back()),
                    bitsPerSecond(rates.front()), u32(mode.maxBytes()),
                    u32(frameInterval(rates.front())), u8(rates.size())});
    for (const unsigned fps : rates)
        append(out, {u32(frameInterval(fps))});
    out[0] = static_cast<std::uint8_t>(out.size());
    return out;
}

Bytes streamFormats()
{
    constexpr unsigned kInputHeader = 0x01;
    constexpr unsigned kColours = 0x0d;
    Bytes formats;
    unsigned formatNumber = 0;
    for (const VideoFormat &format : videoFormats()) {
        append(formats, formatDescriptor(format, ++formatNumber));
        unsigned modeNumber = 0;
        for (const FrameMode &mode : format.modes)
            append(formats, modeDescriptor(format.coding, mode, ++modeNumber));
        // BT.709 primaries and transfer, BT.601 matrix.
        append(formats, descriptor(kClassInterface, {u8(kColours), u8(1), u8(1), u8(4)}));
    }
    return headerWithTotal({u8(kInputHeader), u8(formatNumber)},
                           {u8(kTowardsHost | kStreamEndpoint), u8(0), u8(kOutputId), u8(0), u8(0),
                            u8(0), u8(1), u8(0), u8(0)},
                           formats);
}

} // namespace

Bytes deviceDescriptor()
{
    const auto string = [](StringId id) { return u8(static_cast<unsigned>(id)); };
    return descriptor(kDevice,
                      {u16(kUsb20), u8(kMiscellaneous), u8(2), u8(1), u8(64), u16(kTestVendor),
                       u16(kTestProduct), u16(kDeviceRelease), string(StringId::Maker),
                       string(StringId::Product), string(StringId::Serial), u8(1)});
}

Bytes configurationDescriptor()
{
    constexpr unsigned kInterfaces = 2;
    constexpr unsigned kBulk = 2;
    const Bytes interfaces = joined({
        descriptor(kAssociation, {u8(kControlInterface), u8(kInterfaces), u8(kVideo),
                                  u8(kVideoCollection), u8(0), u8(0)}),
        interface(kControlInterface, 0, kVideoControl),
        controlTopology(),
        interface(kStreamInterface, 1, kVideoStreaming),
        streamFormats(),
        descriptor(kEndpoint, {u8(kTowardsHost | kStreamEndpoint), u8(kBulk),
                               u16(kHighSpeedBulkPacket), u8(0)}),
    });
    Bytes out = descriptor(kConfiguration, {u16(0), u8(kInterfaces), u8(1), u8(0), u8(kBusPowered),
                                            u8(kMilliampere500)});
    const std::size_t total = out.size() + interfaces.size();
    out[2] = static_cast<std::uint8_t>(total);
    out[3] = static_cast<std::uint8_t>(total >> 8);
    append(out, interfaces);
    return out;
}

Bytes stringDescriptor(std::string_view text)
{
    Bytes out;
    append(out, {u8(2 + 2 * text.size()), u8(kString)});
    for (const char c : text)
        append(out, {u16(static_cast<unsigned char>(c))});
    return out;
}

Bytes languagesDescriptor()
{
    constexpr unsigned kUsEnglish = 0x0409;
    return descriptor(kString, {u16(kUsEnglish)});
}

} // namespace meridax::vmcamera
