#include "diagnostics/CrashFilter.h"

namespace meridax::crash {

void installFilter(const FilterSetup &) {}

void coverThread() {}

const char *filterInstalledText()
{
    return "[CrashHandler] auf dieser Plattform ohne Filter —";
}

} // namespace meridax::crash
