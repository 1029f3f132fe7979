#pragma once

#include <cstdint>

namespace meridax::crash {

/// Gives the calling thread 64 KiB of stack for signal handlers, so that one can run when the
/// ordinary stack is used up. Taken back when the thread ends; a second call does nothing.
void provideSignalStack();

/// Whether `address` lies in the guard area at the end of the calling thread's ordinary stack.
/// False in threads without a signal stack. May be called from a signal handler.
bool isInStackGuard(std::uintptr_t address);

} // namespace meridax::crash
