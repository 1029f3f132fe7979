#pragma once

#include <cstdint>

namespace meridax::crash {

/// A program or library in this process.
struct LoadedModule
{
    std::uintptr_t base = 0;    ///< where its first page lies; 0 when there is no such module
    const char *path = nullptr; ///< as the loader knows it: empty for the program itself
};

/// The module that holds `address`. May be called from a signal handler: unlike dladdr() it takes
/// no lock.
LoadedModule findLoadedModule(std::uintptr_t address);

} // namespace meridax::crash
