#include "StateFile.h"

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace meridax::simcam {

State *mapStateFile(const std::string &path, ino_t *inode)
{
    const int fd = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    if (fd < 0)
        return nullptr;
    struct stat st{};
    const bool complete = ::fstat(fd, &st) == 0 && st.st_size == off_t(sizeof(State));
    void *memory = complete
                       ? ::mmap(nullptr, sizeof(State), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0)
                       : MAP_FAILED;
    ::close(fd);
    if (memory == MAP_FAILED) {
        errno = ENODEV;
        return nullptr;
    }
    auto *state = static_cast<State *>(memory);
    if (state->magic != State::kMagic) {
        ::munmap(memory, sizeof(State));
        errno = ENODEV;
        return nullptr;
    }
    if (inode)
        *inode = st.st_ino;
    return state;
}

State *mapState(const std::string &dir, const std::string &node, ino_t *inode)
{
    return mapStateFile(stateFile(dir, node), inode);
}

std::uint32_t monotonicMs()
{
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<std::uint32_t>(t.tv_sec * 1000 + t.tv_nsec / 1000000);
}

std::string nodeFile(const std::string &dir, const std::string &node)
{
    return dir + "/dev/" + node;
}

std::string stateFile(const std::string &dir, const std::string &node)
{
    return dir + '/' + node + ".state";
}

std::string linkFolder(const std::string &dir)
{
    return dir + "/v4l";
}

} // namespace meridax::simcam
