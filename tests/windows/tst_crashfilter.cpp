// The crash filter: this program starts itself once for each way to crash, and reads the report. A
// stack overflow is not among them: Wine keeps no stack back for the filter.

#include "diagnostics/CrashFilter.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <stdexcept>
#include <string>
#include <thread>

using namespace meridax;

namespace {

using Action = void (*)();

void writeToNowhere()
{
    volatile std::uintptr_t address = 16;
    *reinterpret_cast<volatile int *>(address) = 1;
}

void jumpToNowhere()
{
    volatile std::uintptr_t address = 0x1000;
    reinterpret_cast<Action>(address)();
}

void throwUncaught()
{
    throw std::runtime_error("nobody catches this");
}

void inThread(Action action)
{
    std::thread([action] {
        crash::coverThread();
        action();
    }).join();
}

const std::map<std::string, Action> kWays = {
    {"access", writeToNowhere},
    {"access in thread", [] { inThread(writeToNowhere); }},
    {"jump", jumpToNowhere},
    {"exception", throwUncaught},
    {"exception in thread", [] { inThread(throwUncaught); }},
    {"abort", [] { std::abort(); }},
};

bool writeLines(const crash::ReportFile &file)
{
    file.write(file.handle, "first\nl\xC3\xA4st", 11);
    return true;
}

int die(const std::string &way, const std::filesystem::path &report, bool hasLog)
{
    crash::installFilter({.file = report,
                          .version = "1.0.6",
                          .commit = "b1d5b6d",
                          .buildTime = "2026-08-20T22:34:18Z",
                          .logWriter = hasLog ? writeLines : nullptr});
    kWays.at(way)();
    return 0;
}

/// The exit code of this program, started to crash in that way.
DWORD exitCodeOf(const std::string &way, const std::string &option)
{
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string command = '"' + std::string(program) + "\" \"" + way + "\" " + option;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        return 0;
    WaitForSingleObject(process.hProcess, 60000);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

std::filesystem::path reportPath()
{
    return std::filesystem::temp_directory_path() / L"Ordner \u03a9" / L"crash.txt";
}

std::string readReport()
{
    std::ifstream file(reportPath(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

const struct Expectation
{
    const char *way;
    const char *code;   ///< pattern
    const char *module; ///< pattern
    DWORD exitCode;     ///< 0 for any
} kExpectations[] = {
    {"access", "0xC0000005 \\(ACCESS_VIOLATION\\)", "tst_crashfilter\\.exe\\+0x[0-9A-F]+",
     0xC0000005},
    {"access in thread", "0xC0000005 \\(ACCESS_VIOLATION\\)", "tst_crashfilter\\.exe\\+0x[0-9A-F]+",
     0xC0000005},
    {"jump", "0xC0000005 \\(ACCESS_VIOLATION\\)", "<unbekannt>", 0xC0000005},
    {"exception", "0xE06D7363 \\(C\\+\\+_EXCEPTION\\)", ".+\\+0x[0-9A-F]+", 0},
    {"exception in thread", "0xE06D7363 \\(C\\+\\+_EXCEPTION\\)", ".+\\+0x[0-9A-F]+", 0},
    {"abort", "0x00000016 \\(UNKNOWN\\)", ".+\\+0x[0-9A-F]+", 3},
};

bool meets(const Expectation &expected, bool hasLog)
{
    std::filesystem::remove(reportPath());
    const DWORD exitCode = exitCodeOf(expected.way, hasLog ? "log" : "");
    const std::string report = readReport();
    const std::regex pattern(
        std::string(
            "=== Meridax Crash Report ===\r\n"
            "Timestamp:     2[0-9]{3}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}"
            "Z\r\n"
            "ExceptionCode: ") +
        expected.code + "\r\nExceptionAddr: 0x[0-9A-F]{16}\r\nModule:        " + expected.module +
        "\r\nAppVersion:    1\\.0\\.6\r\nAppCommit:     b1d5b6d\r\n"
        "BuildTime:     2026-08-20T22:34:18Z\r\n\r\n--- Last 50 log lines ---\r\n" +
        (hasLog ? "first\nl\xC3\xA4st\r\n" : ""));
    const bool isMet = std::regex_match(report, pattern) && exitCode != 0 &&
                       (expected.exitCode == 0 || expected.exitCode == exitCode);
    if (!isMet)
        std::printf("[%s]: exit code %08lx, report:\n%s\n", expected.way, exitCode, report.c_str());
    return isMet;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc > 1)
        return die(argv[1], reportPath(), argc > 2);

    std::filesystem::create_directories(reportPath().parent_path());
    int failed = 0;
    for (const Expectation &expected : kExpectations)
        failed += !meets(expected, true);
    failed += !meets(kExpectations[0], false);

    // No folder, no report; the end is the same.
    std::filesystem::remove_all(reportPath().parent_path());
    if (exitCodeOf("access", "log") != 0xC0000005) {
        std::printf("without a folder the program ends differently\n");
        ++failed;
    }
    std::printf("tst_crashfilter: %d failed\n", failed);
    return failed;
}
