#include "Registry.h"

#include "Hang.h"
#include "Log.h"
#include "RawCalls.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string_view>
#include <sys/eventfd.h>

namespace meridax::simcam {

namespace {

constexpr int kMaxDescriptors = 4096;
constinit std::atomic<Handle *> g_handles[kMaxDescriptors]{};

/// Never destroyed: a generator thread may outlive the static destructors of the program.
struct Devices
{
    std::mutex mutex; ///< guards byNode and the changes of g_handles
    std::map<std::string, std::shared_ptr<Device>> byNode;
};

Devices &devices()
{
    static Devices &instance = *new Devices;
    return instance;
}

/// The device at `node`: the one opened before, unless another was plugged in since then.
std::shared_ptr<Device> deviceAt(const char *node)
{
    ino_t inode = 0;
    State *state = mapState(simulationDir(), node, &inode);
    if (!state)
        return nullptr;
    auto &device = devices().byNode[node];
    if (device && device->inode() == inode && !device->isGone())
        ::munmap(state, sizeof(State));
    else
        device = std::make_shared<Device>(node, state, inode);
    return device;
}

int fail(int error)
{
    errno = error;
    return -1;
}

} // namespace

const char *simulationDir()
{
    static const char *const dir = std::getenv("SIMCAM_DIR");
    return dir && *dir ? dir : nullptr;
}

const char *nodeName(const char *path)
{
    constexpr char kPrefix[] = "/dev/video";
    constexpr std::size_t kLength = sizeof kPrefix - 1;
    if (!path || std::strncmp(path, kPrefix, kLength) != 0 || !simulationDir())
        return nullptr;
    const char *digits = path + kLength;
    const bool isNumber = *digits && std::strspn(digits, "0123456789") == std::strlen(digits);
    return isNumber ? path + std::strlen("/dev/") : nullptr;
}

bool isPlugged(const char *node)
{
    return raw::exists(nodeFile(simulationDir(), node).c_str());
}

std::string redirected(const char *path)
{
    const std::string_view asked = path ? path : "";
    if (!simulationDir())
        return std::string(asked);
    if (asked == "/dev" || asked == "/dev/")
        return std::string(simulationDir()) + "/dev";
    constexpr std::string_view kLinks = "/dev/v4l";
    if (asked.starts_with(kLinks))
        return linkFolder(simulationDir()) + std::string(asked.substr(kLinks.size()));
    return std::string(asked);
}

Handle *handleOf(int fd)
{
    return fd >= 0 && fd < kMaxDescriptors ? g_handles[fd].load(std::memory_order_acquire)
                                           : nullptr;
}

int openNode(const char *node, int flags)
{
    std::unique_lock guard(devices().mutex);
    if (!isPlugged(node))
        return fail(ENOENT);
    const auto device = deviceAt(node);
    if (!device || device->isGone())
        return fail(ENODEV);
    guard.unlock();
    if (const int error = hang(device->state(), Param::OpenHang))
        return fail(-error);
    guard.lock();
    if (const int error = static_cast<int>(device->state().get(Param::OpenErrno)))
        return fail(error);
    const int fd = ::eventfd(0, (flags & O_NONBLOCK ? EFD_NONBLOCK : 0) |
                                    (flags & O_CLOEXEC ? EFD_CLOEXEC : 0));
    if (fd < 0)
        return -1;
    if (fd >= kMaxDescriptors) {
        raw::close(fd);
        return fail(EMFILE);
    }
    auto *handle = new Handle{device, fd, V4L2_PRIORITY_INTERACTIVE, {}, {}, 0};
    const auto lock = device->lock();
    device->attach(handle);
    g_handles[fd].store(handle, std::memory_order_release);
    log("open /dev/%s -> %d", node, fd);
    return fd;
}

int closeHandle(int fd)
{
    const std::lock_guard guard(devices().mutex);
    const std::unique_ptr<Handle> handle(g_handles[fd].exchange(nullptr));
    if (handle) {
        auto lock = handle->device->lock();
        handle->device->detach(handle.get(), lock);
        log("close %d", fd);
    }
    return raw::close(fd);
}

} // namespace meridax::simcam
