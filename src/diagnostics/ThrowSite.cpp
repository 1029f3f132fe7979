#include "diagnostics/ThrowSite.h"

#include "diagnostics/LoadedModule.h"

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
    const std::uintptr_t base = findLoadedModule(address).base;
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

std::uintptr_t findThrowSite(std::uintptr_t runtime)
{
    const auto unwinder = reinterpret_cast<std::uintptr_t>(&_Unwind_GetIP);
    Search search{.runtimeBase = findLoadedModule(runtime).base,
                  .unwinderBase = findLoadedModule(unwinder).base};
    _Unwind_Backtrace(visitFrame, &search);
    return search.site ? search.site : runtime;
}

} // namespace meridax::crash
