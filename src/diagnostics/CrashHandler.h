#pragma once

#include <QString>

namespace meridax {

/// Leaves the file crash.txt behind when the process dies of a fault. The file is the report and
/// the marker at once: while it exists, the last crash has been neither sent nor dismissed. A later
/// crash overwrites it.
class CrashHandler
{
public:
    CrashHandler() = delete;

    /// Once, after LogManager::install(). Organisation and application name have to be set before.
    static void install();
    /// To be called at the start of every thread of the program's own, so that a stack overflow in
    /// it is reported like any other fault.
    static void coverThread();

    static QString crashFilePath();
    /// Asks the disk anew at each call.
    static bool hasCrashFile();
    /// The report with plain line feeds; empty when there is none or it cannot be read.
    static QString readCrashFile();
    static void removeCrashFile();
};

} // namespace meridax
