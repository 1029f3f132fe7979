#include "VirtualPort.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace meridax::vmcamera {

namespace {

constexpr const char *kAttachFile = "/sys/devices/platform/vhci_hcd.0/attach";
constexpr unsigned kHighSpeed = 3;
constexpr unsigned kBus = 1;
constexpr int kSocketBytes = 1 << 20;
constexpr int kSendTimeoutMs = 5000;

std::system_error lastError(const char *what)
{
    return {errno, std::generic_category(), what};
}

/// Hands the kernel its end of the socket.
void attach(unsigned port, int socket)
{
    const int file = ::open(kAttachFile, O_WRONLY | O_CLOEXEC);
    if (file < 0)
        throw lastError(kAttachFile);
    const unsigned deviceId = kBus << 16 | (port + 2);
    const std::string line = std::to_string(port) + ' ' + std::to_string(socket) + ' ' +
                             std::to_string(deviceId) + ' ' + std::to_string(kHighSpeed);
    const ssize_t written = ::write(file, line.data(), line.size());
    const std::system_error error = lastError(kAttachFile);
    ::close(file);
    if (written != static_cast<ssize_t>(line.size()))
        throw error;
}

} // namespace

void VirtualPort::plug()
{
    if (isPlugged())
        return;
    std::array<int, 2> ends;
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        throw lastError("socketpair");
    for (const int end : ends)
        ::setsockopt(end, SOL_SOCKET, SO_SNDBUF, &kSocketBytes, sizeof kSocketBytes);
    try {
        attach(m_number, ends[1]);
    } catch (...) {
        ::close(ends[0]);
        ::close(ends[1]);
        throw;
    }
    ::close(ends[1]); // the kernel has a reference of its own
    m_socket = ends[0];
}

void VirtualPort::unplug()
{
    if (isPlugged())
        ::close(m_socket);
    m_socket = -1;
}

bool VirtualPort::receive(Bytes &buffer)
{
    std::array<std::uint8_t, 65536> chunk;
    const ssize_t count = ::recv(m_socket, chunk.data(), chunk.size(), MSG_DONTWAIT);
    if (count > 0)
        append(buffer, ByteView(chunk.data(), static_cast<std::size_t>(count)));
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

bool VirtualPort::send(ByteView message)
{
    while (!message.empty()) {
        const ssize_t sent =
            ::send(m_socket, message.data(), message.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent >= 0) {
            message = message.subspan(static_cast<std::size_t>(sent));
        } else if (errno == EAGAIN) {
            pollfd writable{m_socket, POLLOUT, 0};
            if (::poll(&writable, 1, kSendTimeoutMs) == 0)
                return false;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace meridax::vmcamera
