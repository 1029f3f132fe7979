#include "camera/CameraIdentity.h"

namespace meridax {

void readDeviceLinks(QList<AttachedCamera> &) {}

std::uint64_t nodeStamp(const QString &)
{
    return 1;
}

} // namespace meridax
