#include "diagnostics/CrashFilter.h"

#include "diagnostics/Immortal.h"

#include <windows.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace meridax::crash {

namespace {

/// What one C++ run-time library throws by; uncaught, it stands for any C++ exception.
constexpr DWORD kOtherCppException = 0x20474343;
constexpr ULONG kStackLeftForFilter = 65536;
constexpr UINT kAbortExitCode = 3; ///< as of abort() itself

/// Set before the filter is, and never destroyed: other threads may crash at any time.
const FilterSetup *prepared = nullptr;

void writeAll(std::intptr_t handle, const char *data, std::size_t size)
{
    DWORD written = 0;
    WriteFile(reinterpret_cast<HANDLE>(handle), data, static_cast<DWORD>(size), &written, nullptr);
}

std::chrono::sys_time<std::chrono::milliseconds> systemTime()
{
    SYSTEMTIME now;
    GetSystemTime(&now);
    using namespace std::chrono;
    return sys_days(year(now.wYear) / month(now.wMonth) / day(now.wDay)) + hours(now.wHour) +
           minutes(now.wMinute) + seconds(now.wSecond) + milliseconds(now.wMilliseconds);
}

void writeModuleOf(const ReportFile &file, const void *address)
{
    HMODULE module = nullptr;
    std::array<char, MAX_PATH> path{};
    if (!GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<LPCSTR>(address), &module) ||
        GetModuleFileNameA(module, path.data(), static_cast<DWORD>(path.size())) == 0) {
        writeModule(file, nullptr, 0);
        return;
    }
    path.back() = '\0'; // a path that was cut has no end on old systems
    const char *const backslash = std::strrchr(path.data(), '\\');
    writeModule(file, backslash ? backslash + 1 : path.data(),
                reinterpret_cast<std::uintptr_t>(address) -
                    reinterpret_cast<std::uintptr_t>(module));
}

void writeReport(std::uint32_t code, const void *address)
{
    // No sharing: of two threads that crash at once, one gets the file.
    const HANDLE handle = CreateFileW(prepared->file.c_str(), GENERIC_WRITE, 0, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return;
    const ReportFile file{.handle = reinterpret_cast<std::intptr_t>(handle), .write = writeAll};
    writeOrigin(file, systemTime(), code, reinterpret_cast<std::uintptr_t>(address));
    writeModuleOf(file, address);
    writeBuild(file, prepared->version.c_str(), prepared->commit.c_str(),
               prepared->buildTime.c_str());
    writeLog(file, prepared->logWriter);
    FlushFileBuffers(handle);
    CloseHandle(handle);
}

LONG WINAPI onException(EXCEPTION_POINTERS *pointers)
{
    const EXCEPTION_RECORD &record = *pointers->ExceptionRecord;
    const bool isCpp = record.ExceptionCode == kOtherCppException;
    writeReport(isCpp ? kCppException : record.ExceptionCode, record.ExceptionAddress);
    return EXCEPTION_EXECUTE_HANDLER; // ends the process without the system's own dialog
}

/// The way out of abort() and std::terminate(), which go past the filter.
[[noreturn]] void reportAndEnd(std::uint32_t code)
{
    void *caller = nullptr;
    CaptureStackBackTrace(2, 1, &caller, nullptr);
    writeReport(code, caller);
    TerminateProcess(GetCurrentProcess(), kAbortExitCode);
    std::_Exit(kAbortExitCode);
}

[[noreturn]] void onTerminate()
{
    reportAndEnd(std::current_exception() ? kCppException : SIGABRT);
}

void onAbort(int)
{
    reportAndEnd(SIGABRT);
}

} // namespace

void installFilter(const FilterSetup &setup)
{
    prepared = immortal<FilterSetup>(setup);
    coverThread();
    std::signal(SIGABRT, onAbort);
    SetUnhandledExceptionFilter(onException);
}

void coverThread()
{
    ULONG left = kStackLeftForFilter;
    SetThreadStackGuarantee(&left);
    if (prepared)
        std::set_terminate(onTerminate); // some run-time libraries keep one for each thread
}

const char *filterInstalledText()
{
    return "[CrashHandler] installiert (Win SetUnhandledExceptionFilter) —";
}

} // namespace meridax::crash
