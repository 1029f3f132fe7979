#pragma once

#include "diagnostics/CrashReport.h"

#include <filesystem>
#include <string>

/// How fatal faults are caught: the part that each platform does in its own way, free of Qt.
namespace meridax::crash {

/// What a report needs beside the fault, made while the process is sound.
struct FilterSetup
{
    std::filesystem::path file;
    std::string version;
    std::string commit;
    std::string buildTime;
    LogWriter logWriter = nullptr;
};

/// From here on a fatal fault writes a report before the process ends in its usual way. Once in a
/// process. Covers the calling thread.
void installFilter(const FilterSetup &setup);

/// Makes a stack overflow of the calling thread one that is reported: the handler needs some stack
/// itself. Other faults are reported without it. Lasts until the thread ends.
void coverThread();

/// The log's word for it.
const char *filterInstalledText();

} // namespace meridax::crash
