#pragma once

#include "Bytes.h"

namespace meridax::vmcamera {

/// A port of the kernel's virtual USB host controller, and the socket to it while something is
/// plugged in. Needs the module vhci-hcd and root rights.
class VirtualPort
{
public:
    explicit VirtualPort(unsigned number)
        : m_number(number)
    {
    }
    ~VirtualPort() { unplug(); }
    VirtualPort(const VirtualPort &) = delete;
    VirtualPort &operator=(const VirtualPort &) = delete;

    /// Plugs a high-speed device in. Throws std::system_error when the kernel does not take it.
    void plug();
    /// Pulls it out, as a hand does: without a word to the host.
    void unplug();

    bool isPlugged() const { return m_socket >= 0; }
    /// To be polled; -1 while unplugged.
    int descriptor() const { return m_socket; }

    /// Appends what the host sent. False when it has closed the port.
    bool receive(Bytes &buffer);
    /// Sends the whole message, waiting where necessary. False when the host does not take it.
    bool send(ByteView message);

private:
    unsigned m_number;
    int m_socket = -1;
};

} // namespace meridax::vmcamera
