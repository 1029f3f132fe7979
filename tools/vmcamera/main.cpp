// vmcamera: a USB camera in user space, for the kernel's own camera driver.

#include "Camera.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using namespace meridax::vmcamera;

namespace {

constexpr const char *kUsage =
    "usage: vmcamera --commands FIFO [--name NAME] [--serial TEXT] [--port NUMBER]\n"
    "\n"
    "A USB camera in user space at a port of the module vhci-hcd. Lines on the FIFO, which is "
    "made\n"
    "when it is missing: plug, unplug, freeze, thaw, quit. It starts unplugged and tells on its\n"
    "standard output what happens.\n";

struct Options
{
    std::string commands;
    std::string name = "Virtual Test Webcam";
    std::string serial = "0001";
    unsigned port = 0;
};

Options parseOptions(int argc, char **argv)
{
    Options options;
    for (int i = 1; i < argc; i += 2) {
        const std::string key = argv[i];
        if (i + 1 == argc)
            throw std::invalid_argument(key + " needs a value");
        const std::string value = argv[i + 1];
        if (key == "--commands")
            options.commands = value;
        else if (key == "--name")
            options.name = value.substr(0, 126);
        else if (key == "--serial")
            options.serial = value.substr(0, 126);
        else if (key == "--port")
            options.port = static_cast<unsigned>(std::stoul(value));
        else
            throw std::invalid_argument("unknown option " + key);
    }
    if (options.commands.empty())
        throw std::invalid_argument("--commands is missing");
    return options;
}

/// Open for both, so that it never reports an end when a writer goes.
int openFifo(const std::string &path)
{
    ::mkfifo(path.c_str(), 0600);
    const int fifo = ::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (fifo < 0)
        throw std::runtime_error(path + ": " + std::strerror(errno));
    return fifo;
}

/// Reads what has come and does each whole line. False after "quit".
bool runCommands(Camera &camera, int fifo, std::string &pending)
{
    std::array<char, 512> chunk;
    const ssize_t count = ::read(fifo, chunk.data(), chunk.size());
    if (count > 0)
        pending.append(chunk.data(), static_cast<std::size_t>(count));
    for (std::size_t end = 0; (end = pending.find('\n')) != std::string::npos;) {
        const std::string line = pending.substr(0, end);
        pending.erase(0, end + 1);
        if (line == "quit")
            return false;
        camera.command(line);
    }
    return true;
}

void serve(Camera &camera, int fifo)
{
    std::string pending;
    while (true) {
        std::array<pollfd, 2> files{pollfd{camera.descriptor(), POLLIN, 0},
                                    pollfd{fifo, POLLIN, 0}};
        const auto wait = camera.untilDue(Camera::Clock::now());
        ::poll(files.data(), files.size(), static_cast<int>(wait.count()));
        if ((files[0].revents & (POLLIN | POLLHUP)) != 0)
            camera.receive();
        if ((files[1].revents & POLLIN) != 0 && !runCommands(camera, fifo, pending))
            return;
        camera.sendDue(Camera::Clock::now());
    }
}

} // namespace

int main(int argc, char **argv)
try {
    const Options options = parseOptions(argc, argv);
    Camera camera(options.name, options.serial, options.port);
    serve(camera, openFifo(options.commands));
    return EXIT_SUCCESS;
} catch (const std::invalid_argument &error) {
    std::fprintf(stderr, "vmcamera: %s\n%s", error.what(), kUsage);
    return 2;
} catch (const std::exception &error) {
    std::fprintf(stderr, "vmcamera: %s\n", error.what());
    return EXIT_FAILURE;
}
