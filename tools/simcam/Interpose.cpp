// The symbols of libc that the preloaded library replaces: descriptors.

#include "Interpose.h"

#include "Ioctl.h"
#include "RawCalls.h"
#include "Registry.h"

#include <cerrno>
#include <cstdarg>

using namespace meridax::simcam;

namespace {

int openOr(const char *path, int flags, int dir, mode_t mode)
{
    if (const char *node = nodeName(path))
        return openNode(node, flags);
    return raw::openAt(dir, path, flags, mode);
}

void *mapOr(void *address, size_t length, int protection, int flags, int fd, off_t offset)
{
    Handle *handle = handleOf(fd);
    if (!handle)
        return raw::mmap(address, length, protection, flags, fd, offset);
    const auto lock = handle->device->lock();
    return handle->device->map(address, length, protection, flags, offset);
}

} // namespace

// A mode follows only if the call may create a file.
#define READ_MODE(flags)                                                                           \
    mode_t mode = 0;                                                                               \
    if ((flags) & (O_CREAT | __O_TMPFILE)) {                                                       \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        mode = va_arg(arguments, mode_t);                                                          \
        va_end(arguments);                                                                         \
    }

EXPORTED int open(const char *path, int flags, ...)
{
    READ_MODE(flags)
    return openOr(path, flags, AT_FDCWD, mode);
}

EXPORTED int open64(const char *path, int flags, ...)
{
    READ_MODE(flags)
    return openOr(path, flags | O_LARGEFILE, AT_FDCWD, mode);
}

EXPORTED int openat(int dir, const char *path, int flags, ...)
{
    READ_MODE(flags)
    return openOr(path, flags, dir, mode);
}

EXPORTED int openat64(int dir, const char *path, int flags, ...)
{
    READ_MODE(flags)
    return openOr(path, flags | O_LARGEFILE, dir, mode);
}

EXPORTED int __open_2(const char *path, int flags)
{
    return openOr(path, flags, AT_FDCWD, 0);
}

EXPORTED int __open64_2(const char *path, int flags)
{
    return openOr(path, flags | O_LARGEFILE, AT_FDCWD, 0);
}

EXPORTED int close(int fd)
{
    return handleOf(fd) ? closeHandle(fd) : raw::close(fd);
}

EXPORTED int ioctl(int fd, unsigned long request, ...)
{
    va_list arguments;
    va_start(arguments, request);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    Handle *handle = handleOf(fd);
    if (!handle)
        return static_cast<int>(::syscall(SYS_ioctl, fd, request, argument));
    const int result = answerIoctl(handle, static_cast<unsigned>(request), argument);
    if (result >= 0)
        return result;
    errno = -result;
    return -1;
}

EXPORTED void *mmap(void *address, size_t length, int protection, int flags, int fd, off_t offset)
{
    return mapOr(address, length, protection, flags, fd, offset);
}

EXPORTED void *mmap64(void *address, size_t length, int protection, int flags, int fd,
                      off64_t offset)
{
    return mapOr(address, length, protection, flags, fd, offset);
}
