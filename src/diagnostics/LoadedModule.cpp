#include "diagnostics/LoadedModule.h"

#include <dlfcn.h>
#include <link.h>

namespace meridax::crash {

LoadedModule findLoadedModule(std::uintptr_t address)
{
    dl_find_object found{};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): registers and stack frames hold numbers
    if (_dl_find_object(reinterpret_cast<void *>(address), &found) != 0)
        return {};
    return {.base = reinterpret_cast<std::uintptr_t>(found.dlfo_map_start),
            .path = found.dlfo_link_map->l_name};
}

} // namespace meridax::crash
