#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

/// The bytes of a crash report, the same on every platform. Made for a damaged process: no heap, no
/// stdio, no locale, no Qt. Every line is written by itself, so that a further fault leaves what
/// was written before it. Lines end with CR LF.
namespace meridax::crash {

/// An open report. `write` hands the bytes straight to the operating system and cannot fail.
struct ReportFile
{
    using Write = void (*)(std::intptr_t handle, const char *data, std::size_t size);

    std::intptr_t handle;
    Write write;
};

/// An uncaught C++ exception.
inline constexpr std::uint32_t kCppException = 0xE06D7363;
inline constexpr int kLogLines = 50;

/// The name that stands behind a code, "UNKNOWN" for most.
const char *exceptionName(std::uint32_t code);

/// What happened, when (UTC) and at which instruction.
void writeOrigin(const ReportFile &file, std::chrono::sys_time<std::chrono::milliseconds> time,
                 std::uint32_t code, std::uintptr_t address);

/// The module that holds the instruction, by its file's name, and the instruction's offset from
/// the module's base, cut to 32 bits. Null is a module that nobody knows.
void writeModule(const ReportFile &file, const char *name, std::uintptr_t offset);

/// Which build it was, and the heading of the log.
void writeBuild(const ReportFile &file, const char *version, const char *commit,
                const char *buildTime);

/// Writes the newest log lines, without a line end behind the last; false if there are none. Must
/// be as careful as the report itself.
using LogWriter = bool (*)(const ReportFile &file);

/// The log, as the last part of the report.
void writeLog(const ReportFile &file, LogWriter writer);

} // namespace meridax::crash
