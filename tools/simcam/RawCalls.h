#pragma once

#include <cstdarg>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

/// System calls that pass by the symbols of libc, which the library replaces by its own.
namespace meridax::simcam::raw {

inline int openAt(int dir, const char *path, int flags, mode_t mode)
{
    return static_cast<int>(::syscall(SYS_openat, dir, path, flags, mode));
}

inline int open(const char *path, int flags, mode_t mode = 0)
{
    return openAt(AT_FDCWD, path, flags, mode);
}

inline int close(int fd)
{
    return static_cast<int>(::syscall(SYS_close, fd));
}

inline void *mmap(void *address, size_t length, int protection, int flags, int fd, off_t offset)
{
    return reinterpret_cast<void *>(
        ::syscall(SYS_mmap, address, length, protection, flags, fd, offset));
}

inline bool exists(const char *path)
{
    return ::syscall(SYS_faccessat, AT_FDCWD, path, F_OK) == 0;
}

} // namespace meridax::simcam::raw
