#pragma once

#include "settings/AppSettings.h"

#include <algorithm>

namespace meridax {

/// Index of the device in `devices` that `settings` mean, -1 when there is none: the first whose
/// id fits, else the first whose name fits, else the one at the remembered index.
/// `Device` has id() as QByteArray and description() as QString, like QCameraDevice.
template <typename Device>
qsizetype chooseDevice(const QList<Device> &devices, const CameraSettings &settings)
{
    const QByteArray id = settings.cameraId.toLatin1();
    for (qsizetype i = 0; i < devices.size(); ++i) {
        if (devices[i].id() == id)
            return i;
    }
    for (qsizetype i = 0; i < devices.size(); ++i) {
        if (devices[i].description() == settings.cameraName)
            return i;
    }
    return std::min<qsizetype>(std::max(settings.cameraIndex, 0), devices.size() - 1);
}

} // namespace meridax
