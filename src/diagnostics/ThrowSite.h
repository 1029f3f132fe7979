#pragma once

#include <cstdint>

namespace meridax::crash {

/// Where the exception that ends the process was thrown, for a terminate handler: the first
/// instruction above it that belongs neither to the C++ run-time library, which holds `runtime`,
/// nor to its unwinder. `runtime` itself when there is none.
std::uintptr_t findThrowSite(std::uintptr_t runtime);

/// Base address of the loaded module that holds `address`, 0 if none does. May be called from a
/// signal handler.
std::uintptr_t moduleBase(std::uintptr_t address);

} // namespace meridax::crash
