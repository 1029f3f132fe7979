#pragma once

namespace meridax::simcam {

/// Writes one line to the file named by SIMCAM_LOG ("stderr" for the standard error stream).
/// Without the variable it does nothing. Keeps errno.
[[gnu::format(printf, 1, 2)]] void log(const char *format, ...);

} // namespace meridax::simcam
