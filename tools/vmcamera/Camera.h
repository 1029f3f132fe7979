#pragma once

#include "TestPicture.h"
#include "UsbIp.h"
#include "VideoDevice.h"
#include "VirtualPort.h"

#include <chrono>
#include <deque>
#include <string_view>

namespace meridax::vmcamera {

/// The camera at its port: answers the host, and fills the transfers that the host has waiting
/// with frames at the rate the host chose. Runs in one thread.
class Camera
{
public:
    using Clock = std::chrono::steady_clock;

    Camera(std::string product, std::string serial, unsigned port);

    /// Does what a line of the command pipe says: plug, unplug, freeze or thaw. Throws
    /// std::system_error when the kernel does not take the camera.
    void command(std::string_view line);

    int descriptor() const { return m_port.descriptor(); }
    /// Reads and answers what the host sent.
    void receive();
    /// Sends a frame when it is due.
    void sendDue(Clock::time_point now);
    /// Until sendDue has something to do.
    std::chrono::milliseconds untilDue(Clock::time_point now) const;

private:
    struct WaitingTransfer
    {
        std::uint32_t sequence;
        std::uint32_t length;
    };

    void plug();
    void unplug();
    void answer(const HostMessage &message);
    void answerControl(const HostMessage &message);
    void answerUnlink(const HostMessage &message);
    void logControl(const SetupPacket &setup, bool accepted) const;
    void onStreamChanged();
    void nextFrame();
    void fillTransfers();
    void send(const Bytes &message);
    bool canMakeFrame() const;

    VirtualPort m_port;
    VideoDevice m_device;
    TestPicture m_picture;
    Bytes m_received;
    std::deque<WaitingTransfer> m_waiting;
    std::deque<Bytes> m_payloads; ///< what is left of the frame under way
    Clock::time_point m_frameDue;
    unsigned m_frames = 0; ///< since the stream began
    bool m_frozen = false;
};

} // namespace meridax::vmcamera
