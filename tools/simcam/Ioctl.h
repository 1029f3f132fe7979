#pragma once

namespace meridax::simcam {

struct Handle;

/// Answers the ioctl `request` on a simulated device as the kernel does: 0 or a negative errno.
/// Only the low 32 bits of a request count; some callers hand it over sign-extended.
int answerIoctl(Handle *handle, unsigned request, void *argument);

} // namespace meridax::simcam
