#pragma once

#include <dlfcn.h>

/// A symbol that takes the place of the one in libc. Everything else in the library is hidden.
#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace meridax::simcam {

/// The function that would have been called without this library.
template <typename Function>
Function *nextSymbol(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

} // namespace meridax::simcam
