#include "Log.h"

#include "RawCalls.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace meridax::simcam {

void log(const char *format, ...)
{
    static const char *const path = std::getenv("SIMCAM_LOG");
    if (!path)
        return;
    const int savedErrno = errno;
    static const int fd = std::strcmp(path, "stderr") == 0
                              ? STDERR_FILENO
                              : raw::open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    char line[512];
    constexpr int kLast = sizeof line - 1;
    int n = std::snprintf(line, kLast, "%ld.%03ld %d ", long(t.tv_sec), t.tv_nsec / 1000000,
                          int(getpid()));
    va_list arguments;
    va_start(arguments, format);
    n += std::vsnprintf(line + n, size_t(kLast - n), format, arguments);
    va_end(arguments);
    n = std::min(n, kLast - 1);
    line[n++] = '\n';
    [[maybe_unused]] const auto written = ::write(fd, line, size_t(n));
    errno = savedErrno;
}

} // namespace meridax::simcam
