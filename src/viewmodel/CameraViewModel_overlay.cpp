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
    // The centre goes with the size, so that of the profile may come back with it.
    m_lastRestoredResolutionKey.clear();
    if (m_calibrated) {
        qDebug() << "[Calibration] verworfen (Auflösungswechsel:" << oldSize.width() << "x"
                 << oldSize.height() << "→" << newSize.width() << "x" << newSize.height() << ")";
        storeCalibratedAndLocked(false);
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
