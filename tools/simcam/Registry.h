#pragma once

#include "Device.h"

#include <string>

/// Open descriptors and devices of this process, and the names of the nodes.
namespace meridax::simcam {

/// Directory of the simulated devices (SIMCAM_DIR); null switches the whole library off.
const char *simulationDir();

/// "video0" of "/dev/video0", else null. Also null while the library is off.
const char *nodeName(const char *path);

/// True if the node is plugged in.
bool isPlugged(const char *node);

/// `path`, or for "/dev" and what lies in "/dev/v4l" the place that stands for it.
std::string redirected(const char *path);

/// The handle of a descriptor that openNode() made, else null. Never blocks and allocates nothing,
/// because it runs for every descriptor of the program, before its first static constructor too.
Handle *handleOf(int fd);

/// Opens node "video0": a descriptor, or -1 with errno set.
int openNode(const char *node, int flags);
int closeHandle(int fd);

} // namespace meridax::simcam
