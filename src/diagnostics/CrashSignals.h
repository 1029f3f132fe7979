#pragma once

#include <cstdint>

namespace meridax::crash {

/// The code under which a report knows a signal. `reason` is the signal's si_code: it tells the
/// faults of one signal apart, and those of the processor from a signal that somebody sent. A
/// signal without a counterpart keeps its number.
std::uint32_t exceptionCode(int signal, int reason, bool isStackOverflow);

} // namespace meridax::crash
