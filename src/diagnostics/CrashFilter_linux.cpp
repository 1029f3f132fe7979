#include "diagnostics/CrashFilter.h"

#include "diagnostics/CrashSignals.h"
#include "diagnostics/Immortal.h"
#include "diagnostics/LoadedModule.h"
#include "diagnostics/SignalStack.h"
#include "diagnostics/ThrowSite.h"

#include <cxxabi.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <ucontext.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>

// Whatever runs after a signal calls only what is safe in a signal handler: nothing that uses the
// heap or takes a lock that the interrupted code may hold.

namespace meridax::crash {

namespace {

constexpr int kFatalSignals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGTRAP};
constexpr unsigned kReportSeconds = 3; ///< a report that takes longer is given up

struct Prepared
{
    FilterSetup setup;
    std::string program; ///< file name, which the loader does not know
    std::terminate_handler terminate = nullptr;
};

/// Set before the first handler is, and never destroyed: other threads may crash at any time.
const Prepared *prepared = nullptr;

/// The thread that writes the report; 0 while all is well.
std::atomic<pid_t> reportingThread = 0;
std::atomic<int> reportedSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free && sizeof(pid_t) == sizeof(int));

void restoreDefault(int signal)
{
    struct sigaction action{};
    action.sa_handler = SIG_DFL;
    sigaction(signal, &action, nullptr);
}

void unblock(int signal)
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, signal);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

void onReportHangs(int)
{
    const int signal = reportedSignal;
    restoreDefault(signal);
    unblock(signal);
    raise(signal);
}

void limitReportTime()
{
    struct sigaction action{};
    action.sa_handler = onReportHangs;
    action.sa_flags = SA_ONSTACK;
    sigaction(SIGALRM, &action, nullptr);
    unblock(SIGALRM);
    alarm(kReportSeconds);
}

/// True for the first thread that calls, false when it calls again: then the report itself has
/// failed. All other threads stay here until the process ends.
bool claimReport(int signal)
{
    const pid_t self = gettid();
    pid_t owner = 0;
    if (reportingThread.compare_exchange_strong(owner, self)) {
        reportedSignal = signal;
        limitReportTime();
        return true;
    }
    if (owner == self)
        return false;
    while (true)
        pause();
}

void writeAll(std::intptr_t handle, const char *data, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = write(static_cast<int>(handle), data, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return;
        data += written;
        size -= static_cast<std::size_t>(written);
    }
}

void writeModuleOf(const ReportFile &file, std::uintptr_t address)
{
    const LoadedModule module = findLoadedModule(address);
    const char *path = module.path;
    if (path && !*path)
        path = prepared->program.c_str();
    const char *const slash = path ? std::strrchr(path, '/') : nullptr;
    writeModule(file, slash ? slash + 1 : path, address - module.base);
}

void writeReport(std::uint32_t code, std::uintptr_t address)
{
    const FilterSetup &setup = prepared->setup;
    const int descriptor =
        open(setup.file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return;
    fchmod(descriptor, S_IRUSR | S_IWUSR); // the file of an earlier crash keeps its rights
    const ReportFile file{.handle = descriptor, .write = writeAll};
    const auto now = std::chrono::system_clock::now();
    writeOrigin(file, std::chrono::floor<std::chrono::milliseconds>(now), code, address);
    writeModuleOf(file, address);
    writeBuild(file, setup.version.c_str(), setup.commit.c_str(), setup.buildTime.c_str());
    writeLog(file, setup.logWriter);
    fsync(descriptor);
    close(descriptor);
}

std::uintptr_t instructionPointer(const ucontext_t &context)
{
#if defined(__x86_64__)
    return static_cast<std::uintptr_t>(context.uc_mcontext.gregs[REG_RIP]);
#elif defined(__aarch64__)
    return context.uc_mcontext.pc;
#else
    return 0;
#endif
}

bool isStackOverflow(int signal, const siginfo_t &info)
{
    return signal == SIGSEGV && info.si_code > 0 &&
           isInStackGuard(reinterpret_cast<std::uintptr_t>(info.si_addr));
}

void onSignal(int signal, siginfo_t *info, void *context)
{
    if (claimReport(signal)) {
        writeReport(exceptionCode(signal, info->si_code, isStackOverflow(signal, *info)),
                    instructionPointer(*static_cast<const ucontext_t *>(context)));
    }
    restoreDefault(signal);
    raise(signal); // takes effect on return, in the state of the fault, as a core dump should
}

/// Without an exception this is a call of std::terminate() by itself, which ends in abort().
[[noreturn]] void onTerminate()
{
    if (abi::__cxa_current_exception_type()) {
        const auto runtime = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
        if (claimReport(SIGABRT))
            writeReport(kCppException, findThrowSite(runtime));
        restoreDefault(SIGABRT);
    }
    if (prepared->terminate)
        prepared->terminate();
    std::abort();
}

void installHandlers()
{
    struct sigaction action{};
    action.sa_sigaction = onSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    // A fault while one of these is blocked ends the process at once: no fault in the handler is
    // handled again.
    for (const int signal : kFatalSignals)
        sigaddset(&action.sa_mask, signal);
    for (const int signal : kFatalSignals)
        sigaction(signal, &action, nullptr);
}

} // namespace

void installFilter(const FilterSetup &setup)
{
    std::error_code unknown;
    auto *const made = immortal<Prepared>();
    made->setup = setup;
    made->program = std::filesystem::read_symlink("/proc/self/exe", unknown).filename().string();
    made->terminate = std::get_terminate();
    prepared = made;
    coverThread();
    std::set_terminate(onTerminate);
    installHandlers();
}

void coverThread()
{
    provideSignalStack();
}

const char *filterInstalledText()
{
    return "[CrashHandler] installiert (Linux sigaction) —";
}

} // namespace meridax::crash
