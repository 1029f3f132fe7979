#pragma once

#include "camera/CameraIdentity.h"
#include "settings/AppSettings.h"

namespace meridax {

/// Position in `cameras` of the one that `wanted` means: the first whose id fits, else the first
/// whose name fits, ignoring case. A record that names no camera means the one nearest to its
/// index. -1 when there is none: values are never given to some other camera.
qsizetype chooseDevice(const QList<AttachedCamera> &cameras, const CameraSettings &wanted);

} // namespace meridax
