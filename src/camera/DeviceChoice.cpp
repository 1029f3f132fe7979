#include "camera/DeviceChoice.h"

#include <algorithm>

namespace meridax {

namespace {

template <typename Fits>
qsizetype firstFitting(const QList<AttachedCamera> &cameras, Fits fits)
{
    const auto found = std::ranges::find_if(cameras, fits);
    return found == cameras.end() ? -1 : found - cameras.begin();
}

} // namespace

qsizetype chooseDevice(const QList<AttachedCamera> &cameras, const CameraSettings &wanted)
{
    const auto byId =
        firstFitting(cameras, [&](const AttachedCamera &c) { return c.id == wanted.cameraId; });
    if (byId >= 0 && !wanted.cameraId.isEmpty())
        return byId;
    if (!wanted.cameraName.isEmpty()) {
        return firstFitting(cameras, [&](const AttachedCamera &c) {
            return c.name.compare(wanted.cameraName, Qt::CaseInsensitive) == 0;
        });
    }
    if (!wanted.cameraId.isEmpty())
        return -1;
    return std::min<qsizetype>(std::max(wanted.cameraIndex, 0), cameras.size() - 1);
}

} // namespace meridax
