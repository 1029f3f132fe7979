#include "vmcamera/Descriptors.h"
#include "vmcamera/Payloads.h"
#include "vmcamera/UsbIp.h"
#include "vmcamera/VideoDevice.h"

#include <QTest>

using namespace meridax::vmcamera;

namespace {

constexpr std::uint8_t kToDevice = 0x21;   // class request to an interface
constexpr std::uint8_t kFromDevice = 0xa1; // the same, with an answer

std::optional<Bytes> ask(VideoDevice &device, Request request, const char *control,
                         const Bytes &data = {})
{
    const Control *const c = findControl(control);
    const bool sets = request == Request::SetCurrent;
    return device.handle(
        {.type = sets ? kToDevice : kFromDevice,
         .request = static_cast<std::uint8_t>(request),
         .value = static_cast<std::uint16_t>(c->selector << 8),
         .index = static_cast<std::uint16_t>(static_cast<unsigned>(c->entity) << 8),
         .length = static_cast<std::uint16_t>(c->width)},
        data);
}

bool set(VideoDevice &device, const char *control, int value)
{
    Bytes data;
    append(data, {Field{static_cast<std::uint32_t>(value), findControl(control)->width}});
    return ask(device, Request::SetCurrent, control, data).has_value();
}

/// Probe or commit, as `selector` says.
bool choose(VideoDevice &device, std::uint8_t selector, const StreamChoice &choice)
{
    return device
        .handle({.type = kToDevice,
                 .request = static_cast<std::uint8_t>(Request::SetCurrent),
                 .value = static_cast<std::uint16_t>(selector << 8),
                 .index = kStreamInterface,
                 .length = kChoiceBytes},
                encodeChoice(choice))
        .has_value();
}

Bytes bigEndianWords(std::initializer_list<std::uint32_t> words)
{
    Bytes out;
    for (const std::uint32_t word : words) {
        for (int shift = 24; shift >= 0; shift -= 8)
            out.push_back(static_cast<std::uint8_t>(word >> shift));
    }
    return out;
}

} // namespace

class TestVmCamera : public QObject
{
    Q_OBJECT

private slots:
    void descriptorsAreWellFormed();
    void negotiationFindsTheNearestStream_data();
    void negotiationFindsTheNearestStream();
    void streamBeginsWithCommitAndEndsWithTheEndpoint();
    void controlsKeepTheirRanges_data();
    void controlsKeepTheirRanges();
    void automaticModeTakesTheControlOver();
    void refusalsAreExplained();
    void payloadsCarryTheWholeFrame_data();
    void payloadsCarryTheWholeFrame();
    void messagesArriveInPieces();
};

// The driver walks the descriptors by their lengths and believes the totals in the headers.
void TestVmCamera::descriptorsAreWellFormed()
{
    constexpr std::uint8_t kClassInterface = 0x24;
    constexpr std::uint8_t kInterface = 0x04;
    QCOMPARE(deviceDescriptor().size(), std::size_t(18));

    const Bytes all = configurationDescriptor();
    QCOMPARE(littleEndian(ByteView(all).subspan(2, 2)), std::uint32_t(all.size()));
    std::size_t classBytes = 0;
    std::size_t classTotal = 0;
    std::size_t modes = 0;
    std::uint8_t subclass = 0;
    std::size_t at = 0;
    for (; at < all.size(); at += all[at]) {
        QVERIFY(all[at] >= 2);
        const ByteView one = ByteView(all).subspan(at, all[at]);
        if (one[1] == kInterface) {
            QCOMPARE(classBytes, classTotal);
            classBytes = classTotal = 0;
            subclass = one[6];
        } else if (one[1] == kClassInterface) {
            if (one[2] == 1)
                classTotal = littleEndian(one.subspan(subclass == 1 ? 5 : 4, 2));
            classBytes += one.size();
            if (subclass == 2 && (one[2] == 5 || one[2] == 7)) {
                ++modes;
                QCOMPARE(one.size(), std::size_t(26) + 4U * one[25]);
            }
        }
    }
    QCOMPARE(at, all.size());
    QCOMPARE(classBytes, classTotal);
    std::size_t expectedModes = 0;
    for (const VideoFormat &format : videoFormats())
        expectedModes += format.modes.size();
    QCOMPARE(modes, expectedModes);
    QCOMPARE(controls().size(), std::size_t(16));
}

void TestVmCamera::negotiationFindsTheNearestStream_data()
{
    QTest::addColumn<unsigned>("format");
    QTest::addColumn<unsigned>("mode");
    QTest::addColumn<unsigned>("interval");
    QTest::addColumn<unsigned>("expectedMode");
    QTest::addColumn<unsigned>("expectedInterval");
    QTest::newRow("as asked") << 1U << 2U << 333333U << 2U << 333333U;
    QTest::newRow("slower than any") << 1U << 2U << 9999999U << 2U << 666666U;
    QTest::newRow("faster than any") << 2U << 3U << 1U << 3U << 1000000U;
    QTest::newRow("interval 0") << 1U << 4U << 0U << 4U << 333333U;
    QTest::newRow("unknown mode") << 1U << 9U << 333333U << 1U << 1000000U;
    QTest::newRow("unknown format") << 0U << 2U << 666666U << 2U << 666666U;
}

void TestVmCamera::negotiationFindsTheNearestStream()
{
    QFETCH(const unsigned, format);
    QFETCH(const unsigned, mode);
    QFETCH(const unsigned, interval);
    const StreamChoice choice = negotiate({.format = format, .mode = mode, .interval = interval});
    QTEST(choice.mode, "expectedMode");
    QTEST(choice.interval, "expectedInterval");
    QCOMPARE(decodeChoice(encodeChoice(choice)), choice);
    QCOMPARE(encodeChoice(choice).size(), kChoiceBytes);
}

void TestVmCamera::streamBeginsWithCommitAndEndsWithTheEndpoint()
{
    constexpr std::uint8_t kProbe = 1;
    constexpr std::uint8_t kCommit = 2;
    VideoDevice device("Name", "1");
    const StreamChoice wanted{.format = 2, .mode = 2, .interval = 666666};
    QVERIFY(choose(device, kProbe, wanted));
    QVERIFY(!device.stream());
    QVERIFY(choose(device, kCommit, wanted));
    QCOMPARE(device.stream(), std::optional(wanted));

    const SetupPacket clearHalt{.type = 0x02,
                                .request = 1,
                                .value = 0,
                                .index = kTowardsHost | kStreamEndpoint,
                                .length = 0};
    QVERIFY(device.handle(clearHalt, {}));
    QVERIFY(!device.stream());
}

void TestVmCamera::controlsKeepTheirRanges_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("taken");
    QTest::newRow("lowest, negative") << QByteArray("brightness") << -64 << true;
    QTest::newRow("below") << QByteArray("brightness") << -65 << false;
    QTest::newRow("highest") << QByteArray("gamma") << 500 << true;
    QTest::newRow("above") << QByteArray("gamma") << 501 << false;
    QTest::newRow("a mode") << QByteArray("exposure-mode") << 1 << true;
    QTest::newRow("a mode that is missing") << QByteArray("exposure-mode") << 4 << false;
    QTest::newRow("two modes at once") << QByteArray("exposure-mode") << 9 << false;
}

void TestVmCamera::controlsKeepTheirRanges()
{
    QFETCH(const QByteArray, control);
    QFETCH(const int, value);
    VideoDevice device("Name", "1");
    const int before = device.controls().value(control.constData());
    QTEST(set(device, control.constData(), value), "taken");
    QFETCH(const bool, taken);
    QCOMPARE(device.controls().value(control.constData()), taken ? value : before);
}

void TestVmCamera::automaticModeTakesTheControlOver()
{
    VideoDevice device("Name", "1");
    QVERIFY(!set(device, "focus", 100));
    QCOMPARE(device.controls().lastError(), RequestError::WrongState);
    QVERIFY(set(device, "focus-auto", 0));
    QVERIFY(set(device, "focus", 100));
    QVERIFY(set(device, "focus-auto", 1));
    QVERIFY(!set(device, "focus", 50));
    QCOMPARE(device.controls().value("focus"), 100);
}

void TestVmCamera::refusalsAreExplained()
{
    VideoDevice device("Name", "1");
    const SetupPacket lastError{.type = kFromDevice,
                                .request = 0x81,
                                .value = 0x0200,
                                .index = kControlInterface,
                                .length = 1};
    const auto refused = [&](std::uint16_t entityIndex, std::uint16_t selector) {
        return !device.handle({.type = kFromDevice,
                               .request = 0x81,
                               .value = selector,
                               .index = entityIndex,
                               .length = 2},
                              {});
    };
    QVERIFY(refused(0x0900, 0x0200));
    QCOMPARE(device.handle(lastError, {}), Bytes{5}); // no such unit
    QVERIFY(refused(0x0200, 0x7f00));
    QCOMPARE(device.handle(lastError, {}), Bytes{6}); // no such control
    QVERIFY(!ask(device, Request::SetCurrent, "gain", Bytes{1}));
    QCOMPARE(device.handle(lastError, {}), Bytes{7}); // too short
}

void TestVmCamera::payloadsCarryTheWholeFrame_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<int>("pieces");
    QTest::newRow("one byte") << 1 << 1;
    QTest::newRow("just one piece") << 98 << 1;
    QTest::newRow("one byte more") << 99 << 2;
    QTest::newRow("many") << 1000 << 11;
}

void TestVmCamera::payloadsCarryTheWholeFrame()
{
    QFETCH(const int, bytes);
    Bytes frame(static_cast<std::size_t>(bytes));
    for (std::size_t i = 0; i < frame.size(); ++i)
        frame[i] = static_cast<std::uint8_t>(i);
    const std::vector<Bytes> pieces = payloads(frame, true, 100);
    QTEST(int(pieces.size()), "pieces");
    Bytes joined;
    for (const Bytes &piece : pieces) {
        QVERIFY(piece.size() <= 100);
        QCOMPARE(piece[0], std::uint8_t(2));
        QCOMPARE(piece[1], std::uint8_t(&piece == &pieces.back() ? 0x83 : 0x81));
        append(joined, ByteView(piece).subspan(2));
    }
    QCOMPARE(joined, frame);
}

void TestVmCamera::messagesArriveInPieces()
{
    // A transfer of three bytes to the device, and an unlink right behind it.
    Bytes stream = bigEndianWords({1, 7, 0x10002, 0, 0, 0, 3, 0, 0, 0});
    append(stream, Bytes{0x21, 1, 0, 2, 0, 2, 3, 0});
    append(stream, Bytes{10, 11, 12});
    const std::size_t firstBytes = stream.size();
    append(stream, bigEndianWords({2, 8, 0x10002, 1, 0, 5, 0, 0, 0, 0, 0, 0}));

    Bytes buffer(stream.begin(), stream.begin() + static_cast<std::ptrdiff_t>(firstBytes) - 1);
    QVERIFY(!takeMessage(buffer));
    buffer = stream;
    const auto submit = takeMessage(buffer);
    QVERIFY(submit && submit->kind == HostMessage::Kind::Submit);
    QCOMPARE(submit->sequence, 7U);
    QCOMPARE(submit->data, (Bytes{10, 11, 12}));
    QCOMPARE(parseSetup(submit->setup).value, std::uint16_t(0x0200));
    const auto unlink = takeMessage(buffer);
    QVERIFY(unlink && unlink->kind == HostMessage::Kind::Unlink);
    QCOMPARE(unlink->unlinkSequence, 5U);
    QVERIFY(buffer.empty());

    const Bytes reply = submitReply(7, -32, 0, {});
    QCOMPARE(Bytes(reply.begin(), reply.begin() + 24),
             bigEndianWords({3, 7, 0, 0, 0, std::uint32_t(-32)}));
}

QTEST_APPLESS_MAIN(TestVmCamera)
#include "tst_vmcamera.moc"
