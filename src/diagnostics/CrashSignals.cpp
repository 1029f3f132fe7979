#include "diagnostics/CrashSignals.h"

#include <csignal>

namespace meridax::crash {

namespace {

std::uint32_t arithmeticCode(int reason)
{
    switch (reason) {
    case FPE_INTDIV:
        return 0xC0000094;
    case FPE_INTOVF:
        return 0xC0000095;
    case FPE_FLTDIV:
        return 0xC000008E;
    case FPE_FLTOVF:
        return 0xC0000091;
    case FPE_FLTUND:
        return 0xC0000093;
    case FPE_FLTINV:
        return 0xC0000090;
    case FPE_FLTSUB:
        return 0xC000008C;
    default:
        return SIGFPE;
    }
}

} // namespace

std::uint32_t exceptionCode(int signal, int reason, bool isStackOverflow)
{
    switch (signal) {
    case SIGSEGV:
        return isStackOverflow ? 0xC00000FD : 0xC0000005;
    case SIGBUS:
        return reason == BUS_ADRALN ? 0x80000002 : 0xC0000006;
    case SIGILL:
        return 0xC000001D;
    case SIGFPE:
        return arithmeticCode(reason);
    default:
        return static_cast<std::uint32_t>(signal);
    }
}

} // namespace meridax::crash
