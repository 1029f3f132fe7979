#pragma once

#include <cstdint>

namespace meridax::crash {

/// Where the exception that ends the process was thrown, for a terminate handler: the first
/// instruction above it that belongs neither to the C++ run-time library, which holds `runtime`,
/// nor to its unwinder. `runtime` itself when there is none.
std::uintptr_t findThrowSite(std::uintptr_t runtime);

} // namespace meridax::crash
