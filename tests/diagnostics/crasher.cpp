// crasher WAY: dies in that way, with log and crash handler in place as in the program.
//
// Its own write() and fsync() come before those of the C library, in this program and in the
// libraries it uses. So a fault can be put into the logger, while it holds its lock, and into the
// crash handler.

#include "diagnostics/CrashHandler.h"
#include "diagnostics/LogManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLoggingCategory>

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cfenv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <latch>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>

using namespace meridax;

namespace {

using Action = void (*)();
constexpr char kTrigger[] = "[crasher] trigger";
std::atomic<Action> onTrigger = nullptr; ///< called when the logger writes the trigger
std::atomic<Action> onSync = nullptr;    ///< called when the crash handler has written all

[[gnu::noinline, gnu::no_sanitize("undefined")]] void writeToNowhere()
{
    volatile std::uintptr_t address = 16;
    *reinterpret_cast<volatile int *>(address) = 1;
}

[[gnu::no_sanitize("undefined")]] void jumpToNowhere()
{
    volatile std::uintptr_t address = 0x1000;
    reinterpret_cast<Action>(address)();
}

[[gnu::no_sanitize("undefined")]] void divideByZero()
{
    volatile int zero = 0;
    volatile int result = 7 / zero;
    (void)result;
}

[[gnu::no_sanitize("undefined")]] void divideFloatByZero()
{
    feenableexcept(FE_DIVBYZERO);
    volatile double zero = 0.0;
    volatile double result = 1.0 / zero;
    (void)result;
}

void throwUncaught()
{
    throw std::runtime_error("nobody catches this");
}

void throwThroughNoexcept() noexcept
{
    throwUncaught();
}

// NOLINTNEXTLINE(misc-no-recursion)
[[gnu::noinline, gnu::no_sanitize("address", "thread", "undefined")]] int recurse(int depth)
{
    volatile char frame[256];
    frame[depth % 256] = 1;
    frame[1] = 0;
    return depth < 0 ? frame[0] : recurse(depth + 1) + frame[1];
}

void overflowTheStack()
{
    recurse(0);
}

void readBeyondTheFile()
{
    std::FILE *const file = std::tmpfile();
    const void *const page =
        mmap(nullptr, 4096, PROT_READ, MAP_SHARED, fileno(file), 0); // of an empty file
    const volatile char value = *static_cast<const volatile char *>(page);
    (void)value;
}

void hang()
{
    while (true)
        pause();
}

void logTheTrigger()
{
    qInfo() << kTrigger;
}

void inThread(Action action)
{
    std::thread([action] {
        CrashHandler::coverThread();
        action();
    }).join();
}

void inTwoThreads()
{
    static std::latch together(2);
    const Action crash = [] {
        together.arrive_and_wait();
        writeToNowhere();
    };
    std::thread(crash).detach();
    inThread(crash);
}

/// The logger holds its lock in another thread when the fault comes.
void whileLoggerIsStuck()
{
    static std::latch stuck(1);
    onTrigger = [] {
        stuck.count_down();
        hang();
    };
    std::thread(logTheTrigger).detach();
    stuck.wait();
    writeToNowhere();
}

/// As of a library that complains of every frame.
void flood()
{
    static const QLoggingCategory library("qt.library");
    for (int i = 0; i < 1000; ++i)
        qCWarning(library, "frame %d is damaged", i);
}

const std::map<std::string, Action> kWays = {
    {"null-write", writeToNowhere},
    {"jump", jumpToNowhere},
    {"division", divideByZero},
    {"float-division", divideFloatByZero},
    {"bus", readBeyondTheFile},
    {"illegal", [] { raise(SIGILL); }},
    {"trap", [] { raise(SIGTRAP); }},
    {"abort", [] { std::abort(); }},
    {"fatal-message", [] { qFatal("[crasher] fatal"); }},
    {"exception", throwUncaught},
    {"noexcept", throwThroughNoexcept},
    {"terminate", [] { std::terminate(); }},
    {"stack-overflow", overflowTheStack},
    {"thread", [] { inThread(writeToNowhere); }},
    {"thread-exception", [] { inThread(throwUncaught); }},
    {"thread-stack-overflow", [] { inThread(overflowTheStack); }},
    {"uncovered-thread", [] { std::thread(writeToNowhere).join(); }},
    {"two-threads", inTwoThreads},
    {"in-logger",
     [] {
         onTrigger = writeToNowhere;
         logTheTrigger();
     }},
    {"logger-stuck", whileLoggerIsStuck},
    {"in-handler",
     [] {
         onSync = writeToNowhere;
         std::abort();
     }},
    {"abort-in-handler",
     [] {
         onSync = [] { std::abort(); };
         writeToNowhere();
     }},
    {"hanging-handler",
     [] {
         onSync = hang;
         writeToNowhere();
     }},
    {"flood",
     [] {
         flood();
         writeToNowhere();
     }},
    {"end-in-flood", flood},
    {"wait",
     [] {
         std::puts("ready");
         std::fflush(stdout);
         hang();
     }},
};

} // namespace

extern "C" ssize_t write(int file, const void *data, std::size_t size)
{
    const Action action = onTrigger;
    if (action && size > 0 && memmem(data, size, kTrigger, sizeof kTrigger - 1)) {
        onTrigger = nullptr;
        action();
    }
    return syscall(SYS_write, file, data, size);
}

extern "C" int fsync(int file)
{
    if (const Action action = onSync)
        action();
    return static_cast<int>(syscall(SYS_fsync, file));
}

int main(int argc, char *argv[])
{
    const rlimit noCore{};
    setrlimit(RLIMIT_CORE, &noCore);
    const auto way = kWays.find(argc > 1 ? argv[1] : "");
    if (way == kWays.end())
        return 2;
    QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
    const bool hasLog = argc < 3 || std::strcmp(argv[2], "--no-log") != 0;
    if (hasLog)
        LogManager::install();
    CrashHandler::install();
    for (int i = 1; hasLog && i <= 60; ++i)
        qInfo().noquote() << "[crasher] Zeile" << i << "– ä 日本 😀 someone@example.org";
    way->second();
    return 0;
}
