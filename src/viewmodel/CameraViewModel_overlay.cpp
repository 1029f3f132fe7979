// The image centre and what a change of resolution does to the overlay.

#include "viewmodel/CameraViewModel.h"

#include <QDebug>

namespace meridax {

void CameraViewModel::storeCenter(double &coordinate, double value)
{
    if (coordinate == value)
        return;
    coordinate = value;
    if (m_calibrated)
        storeCalibrated(false);
    settingsChanged(&CameraViewModel::overlaySettingsChanged);
}

void CameraViewModel::applyResolutionChange(const QSize &oldSize, const QSize &newSize)
{
    if (newSize.isEmpty() || newSize == oldSize)
        return;
    dropPendingCenter();
    if (m_calibrated) {
        qDebug() << "[Calibration] verworfen (Auflösungswechsel:" << oldSize.width() << "x"
                 << oldSize.height() << "→" << newSize.width() << "x" << newSize.height() << ")";
        storeCalibrated(false);
        storeLocked(false);
    }
    CameraSettings &camera = m_settings.camera;
    camera.centerX = newSize.width() * 0.5;
    camera.centerY = newSize.height() * 0.5;
    camera.centerOffsetX = 0.0;
    camera.centerOffsetY = 0.0;
    camera.centerOffsetEnabled = false;
    emit overlaySettingsChanged();
}

} // namespace meridax
