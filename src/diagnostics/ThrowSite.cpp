#include "diagnostics/ThrowSite.h"

#include <dlfcn.h>
#include <unwind.h>

namespace meridax::crash {

namespace {

struct Search
{
    std::uintptr_t runtimeBase;
    std::uintptr_t unwinderBase;
    bool isBeyondHandler = false;
    std::uintptr_t site = 0;
};

_Unwind_Reason_Code visitFrame(_Unwind_Context *frame, void *data)
{
    auto &search = *static_cast<Search *>(data);
    const auto address = static_cast<std::uintptr_t>(_Unwind_GetIP(frame));
    const std::uintptr_t base = moduleBase(address);
    if (base == search.runtimeBase) {
        search.isBeyondHandler = true; // the handler's own frames lie before
        return _URC_NO_REASON;
    }
    if (!search.isBeyondHandler || base == search.unwinderBase)
        return _URC_NO_REASON;
    search.site = address;
    return _URC_END_OF_STACK;
}

} // namespace

std::uintptr_t moduleBase(std::uintptr_t address)
{
    dl_find_object found{};
    if (_dl_find_object(reinterpret_cast<void *>(address), &found) != 0)
        return 0;
    return reinterpret_cast<std::uintptr_t>(found.dlfo_map_start);
}

std::uintptr_t findThrowSite(std::uintptr_t runtime)
{
    Search search{.runtimeBase = moduleBase(runtime),
                  .unwinderBase =
                      moduleBase(reinterpret_cast<std::uintptr_t>(&_Unwind_RaiseException))};
    _Unwind_Backtrace(visitFrame, &search);
    return search.site ? search.site : runtime;
}

} // namespace meridax::crash
