#include "Camera.h"

#include "Payloads.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <format>
#include <iterator>
#include <utility>

namespace meridax::vmcamera {

namespace {

using namespace std::chrono_literals;

/// Later than this a frame is left out rather than sent in a hurry.
constexpr auto kLateLimit = 200ms;
constexpr auto kIdle = 1000ms;
/// How soon to look again for a transfer to put the due frame into.
constexpr auto kSoon = 5ms;

/// Value of the focus control at which the picture is sharp, and how far from it nothing is left.
constexpr int kBestFocus = 120;
constexpr double kFocusRange = 125.0;

/// The lines are what tests wait for, so each is out at once.
void log(const std::string &line)
{
    std::puts(line.c_str());
    std::fflush(stdout);
}

PictureValues pictureValues(const ControlValues &controls)
{
    PictureValues values;
    values.brightness = controls.value("brightness");
    if (!controls.isAutomatic(*findControl("focus"))) {
        const int away = std::abs(controls.value("focus") - kBestFocus);
        values.focus = std::max(0.0, 1.0 - away / kFocusRange);
    }
    return values;
}

} // namespace

Camera::Camera(std::string product, std::string serial, unsigned port)
    : m_port(port)
    , m_device(std::move(product), std::move(serial))
{
}

void Camera::command(std::string_view line)
{
    if (line == "plug")
        plug();
    else if (line == "unplug")
        unplug();
    else if (line == "freeze")
        m_frozen = true;
    else if (line == "thaw")
        m_frozen = false;
    else
        log(std::format("unknown command '{}'", line));
}

void Camera::plug()
{
    m_port.plug();
    log("plugged");
}

void Camera::unplug()
{
    if (!m_port.isPlugged())
        return;
    m_port.unplug();
    m_device.disconnect();
    m_received.clear();
    m_waiting.clear();
    m_payloads.clear();
    m_frozen = false;
    log("unplugged");
}

void Camera::receive()
{
    if (!m_port.receive(m_received)) {
        unplug();
        return;
    }
    // An answer that cannot be delivered ends in unplug(), which empties the buffer.
    while (const std::optional<HostMessage> message = takeMessage(m_received))
        answer(*message);
}

void Camera::answer(const HostMessage &message)
{
    if (message.kind == HostMessage::Kind::Unlink)
        answerUnlink(message);
    else if (message.kind == HostMessage::Kind::Unknown)
        log(std::format("unknown message {}", message.sequence));
    else if (message.endpoint == 0)
        answerControl(message);
    else if (message.towardsHost)
        m_waiting.push_back({message.sequence, message.length});
    else
        send(submitReply(message.sequence, -EPIPE, 0, {}));
}

void Camera::answerControl(const HostMessage &message)
{
    const SetupPacket setup = parseSetup(message.setup);
    const std::optional<StreamChoice> before = m_device.stream();
    const std::optional<Bytes> data = m_device.handle(setup, message.data);
    logControl(setup, data.has_value());
    if (m_device.stream() != before)
        onStreamChanged();
    if (!data)
        send(submitReply(message.sequence, -EPIPE, 0, {}));
    else if (setup.towardsHost())
        send(submitReply(message.sequence, 0, data->size(), *data));
    else
        send(submitReply(message.sequence, 0, message.length, {}));
}

void Camera::logControl(const SetupPacket &setup, bool accepted) const
{
    const Control *const control = m_device.controls().lastSet();
    const bool isControl = (setup.index >> 8) != 0 && (setup.index & 0xff) == 0;
    if (isControl && accepted && control &&
        setup.request == static_cast<std::uint8_t>(Request::SetCurrent))
        log(std::format("{} = {}", control->name, m_device.controls().value(control->name)));
}

void Camera::answerUnlink(const HostMessage &message)
{
    const auto found =
        std::ranges::find(m_waiting, message.unlinkSequence, &WaitingTransfer::sequence);
    const bool waiting = found != m_waiting.end();
    if (waiting)
        m_waiting.erase(found);
    send(unlinkReply(message.sequence, waiting ? -ECONNRESET : 0));
}

void Camera::onStreamChanged()
{
    m_payloads.clear();
    m_frameDue = Clock::now();
    if (!m_device.stream()) {
        log(std::format("stream off after {} frames", m_frames));
        return;
    }
    const StreamChoice &stream = *m_device.stream();
    m_frames = 0;
    log(std::format("stream {} {}x{}",
                    stream.videoFormat().coding == Coding::Mjpeg ? "MJPEG" : "YUYV",
                    stream.frameMode().width, stream.frameMode().height));
}

bool Camera::canMakeFrame() const
{
    return m_device.stream() && !m_frozen && m_payloads.empty();
}

std::chrono::milliseconds Camera::untilDue(Clock::time_point now) const
{
    if (!canMakeFrame())
        return kIdle;
    if (m_waiting.empty())
        return kSoon;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_frameDue - now);
    return std::clamp<std::chrono::milliseconds>(left, 0ms, kIdle);
}

void Camera::sendDue(Clock::time_point now)
{
    if (canMakeFrame() && !m_waiting.empty() && now >= m_frameDue) {
        nextFrame();
        m_frameDue += std::chrono::nanoseconds(100) * m_device.stream()->interval;
        if (m_frameDue < now - kLateLimit)
            m_frameDue = now;
    }
    fillTransfers();
}

void Camera::nextFrame()
{
    const StreamChoice &stream = *m_device.stream();
    const Bytes &frame = m_picture.frame(stream.videoFormat().coding, stream.frameMode(),
                                         pictureValues(m_device.controls()), m_frames);
    std::ranges::move(payloads(frame, m_frames % 2 != 0, kMaxPayload),
                      std::back_inserter(m_payloads));
    ++m_frames;
}

void Camera::fillTransfers()
{
    while (!m_waiting.empty() && !m_payloads.empty()) {
        const WaitingTransfer transfer = m_waiting.front();
        Bytes payload = std::move(m_payloads.front());
        m_waiting.pop_front();
        m_payloads.pop_front();
        if (payload.size() > transfer.length)
            payload.resize(transfer.length);
        send(submitReply(transfer.sequence, 0, payload.size(), payload));
    }
}

void Camera::send(const Bytes &message)
{
    if (m_port.isPlugged() && !m_port.send(message))
        unplug();
}

} // namespace meridax::vmcamera
