// The symbols of libc that the preloaded library replaces: paths and what is said about them.

#include "Interpose.h"
#include "RawCalls.h"
#include "Registry.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace meridax::simcam;

namespace {

constexpr unsigned kVideoMajor = 81;

/// Another number with each device that is plugged in at the node.
ino_t stampOf(int number)
{
    const std::string file = nodeFile(simulationDir(), "video" + std::to_string(number));
    struct statx st{};
    ::syscall(SYS_statx, AT_FDCWD, file.c_str(), 0, STATX_BASIC_STATS, &st);
    return st.stx_ino * 1000003 + st.stx_ctime.tv_nsec;
}

/// What stat says of node number `number`: a character device. Both stat types have one layout.
template <typename Stat>
void describeNode(int number, Stat &st)
{
    st = {};
    st.st_mode = S_IFCHR | 0660;
    st.st_nlink = 1;
    st.st_ino = stampOf(number);
    st.st_rdev = makedev(kVideoMajor, unsigned(number));
    st.st_blksize = 4096;
}

template <typename Stat, typename Next>
int statOr(const char *path, Stat *st, Next next)
{
    const char *node = nodeName(path);
    if (!node)
        return next(path, st);
    if (!isPlugged(node)) {
        errno = ENOENT;
        return -1;
    }
    describeNode(std::atoi(node + std::strlen("video")), *st);
    return 0;
}

template <typename Stat, typename Next>
int fstatOr(int fd, Stat *st, Next next)
{
    const Handle *handle = handleOf(fd);
    if (!handle)
        return next(fd, st);
    describeNode(handle->device->nodeNumber(), *st);
    return 0;
}

/// The entry of sysfs that tells what kind of device number 81:N is, which v4l2-ctl asks for.
FILE *openUevent(const char *path)
{
    unsigned number = 0;
    char name[8] = "";
    if (!path || !simulationDir() ||
        std::sscanf(path, "/sys/dev/char/81:%u/%7s", &number, name) != 2 ||
        std::strcmp(name, "uevent") != 0)
        return nullptr;
    char text[64];
    const int length =
        std::snprintf(text, sizeof text, "MAJOR=81\nMINOR=%u\nDEVNAME=video%u\n", number, number);
    const int fd = memfd_create("uevent", MFD_CLOEXEC);
    if (fd < 0 || ::write(fd, text, size_t(length)) != length || ::lseek(fd, 0, SEEK_SET) != 0)
        return nullptr;
    return ::fdopen(fd, "r");
}

} // namespace

#define NEXT(function) static auto *const next = nextSymbol<decltype(function)>(#function)

EXPORTED int stat(const char *path, struct stat *st)
{
    NEXT(stat);
    return statOr(path, st, next);
}

EXPORTED int lstat(const char *path, struct stat *st)
{
    NEXT(lstat);
    return statOr(path, st, next);
}

EXPORTED int stat64(const char *path, struct stat64 *st)
{
    NEXT(stat64);
    return statOr(path, st, next);
}

EXPORTED int lstat64(const char *path, struct stat64 *st)
{
    NEXT(lstat64);
    return statOr(path, st, next);
}

EXPORTED int fstat(int fd, struct stat *st)
{
    NEXT(fstat);
    return fstatOr(fd, st, next);
}

EXPORTED int fstat64(int fd, struct stat64 *st)
{
    NEXT(fstat64);
    return fstatOr(fd, st, next);
}

EXPORTED int statx(int dir, const char *path, int flags, unsigned mask, struct statx *st)
{
    const char *node = nodeName(path);
    if (!node)
        return static_cast<int>(::syscall(SYS_statx, dir, path, flags, mask, st));
    const std::string file = nodeFile(simulationDir(), node);
    const int result = static_cast<int>(::syscall(SYS_statx, dir, file.c_str(), flags, mask, st));
    if (result == 0) {
        st->stx_mode = S_IFCHR | 0660;
        st->stx_rdev_major = kVideoMajor;
        st->stx_rdev_minor = static_cast<unsigned>(std::atoi(node + std::strlen("video")));
    }
    return result;
}

EXPORTED int access(const char *path, int mode)
{
    const char *node = nodeName(path);
    if (!node)
        return static_cast<int>(::syscall(SYS_faccessat, AT_FDCWD, path, mode));
    if (isPlugged(node))
        return 0;
    errno = ENOENT;
    return -1;
}

EXPORTED DIR *opendir(const char *path)
{
    NEXT(opendir);
    return next(redirected(path).c_str());
}

EXPORTED ssize_t readlink(const char *path, char *buffer, size_t size)
{
    return static_cast<ssize_t>(
        ::syscall(SYS_readlinkat, AT_FDCWD, redirected(path).c_str(), buffer, size));
}

EXPORTED int inotify_add_watch(int fd, const char *path, uint32_t mask)
{
    NEXT(inotify_add_watch);
    return next(fd, redirected(path).c_str(), mask);
}

EXPORTED FILE *fopen(const char *path, const char *mode)
{
    NEXT(fopen);
    FILE *file = openUevent(path);
    return file ? file : next(path, mode);
}

EXPORTED FILE *fopen64(const char *path, const char *mode)
{
    NEXT(fopen64);
    FILE *file = openUevent(path);
    return file ? file : next(path, mode);
}
