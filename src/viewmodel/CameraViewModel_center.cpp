// The image centre: who may change it, and the measured one that waits for the user's decision.

#include "viewmodel/CameraViewModel.h"

#include <QDebug>

#include <utility>

namespace meridax {

namespace {

CenterPlace placeOf(const CameraSettings &camera)
{
    return {camera.cameraId, QSize(camera.cameraResolutionX, camera.cameraResolutionY)};
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

} // namespace

CenterPlace CameraViewModel::place() const
{
    return placeOf(m_settings.camera);
}

/// The only way to a new centre, calibration or lock; whoever calls it tells of the centre.
void CameraViewModel::decideCenter(const CenterEvent &event)
{
    m_center = stateAfter(std::move(m_center), event);
    CameraSettings &camera = m_settings.camera;
    const bool wasCalibrated = std::exchange(camera.calibrated, m_center.calibrated);
    const bool wasLocked = std::exchange(camera.locked, m_center.locked);
    camera.centerX = m_center.center.position.x();
    camera.centerY = m_center.center.position.y();
    if (wasCalibrated != camera.calibrated)
        emit calibratedChanged();
    if (wasLocked != camera.locked)
        emit lockStateChanged();
}

void CameraViewModel::setCenter(const QPointF &center)
{
    if (center == m_center.center.position)
        return;
    decideCenter(CenterSet{center});
    settingsChanged(&CameraViewModel::overlaySettingsChanged);
}

void CameraViewModel::setResolution(const QSize &size)
{
    m_settings.camera.cameraResolutionX = size.width();
    m_settings.camera.cameraResolutionY = size.height();
    decideCenter(CenterResized{size});
    dropPendingCenterOfElsewhere();
    settingsChanged(&CameraViewModel::cameraSettingsChanged);
}

/// The centre follows the camera and the resolution that the record has got.
void CameraViewModel::moveCenter(bool cameraChosen)
{
    const CenterPlace from = m_center.place;
    const CenterPlace to = place();
    if (to == from)
        return;
    if (calibrated() && to.resolution != from.resolution) {
        qDebug() << "[Calibration] verworfen (Auflösungswechsel:" << from.resolution.width() << "x"
                 << from.resolution.height() << "→" << to.resolution.width() << "x"
                 << to.resolution.height() << ")";
    }
    decideCenter(CenterMoved{to, cameraChosen});
    if (to.resolution != from.resolution) {
        CameraSettings &camera = m_settings.camera;
        camera.centerOffsetX = 0.0;
        camera.centerOffsetY = 0.0;
        camera.centerOffsetEnabled = false;
    }
    emit overlaySettingsChanged();
    if (m_hasPendingCenter)
        emit pendingCenterChanged();
}

void CameraViewModel::storePendingCenter(const QPointF &center)
{
    m_pending = {center, m_settings.camera};
    m_hasPendingCenter = true;
    emit pendingCenterChanged();
}

QString CameraViewModel::pendingCenterCamera() const
{
    const CameraSettings &camera = m_pending.camera;
    if (camera.cameraId.isEmpty())
        return {};
    return QStringLiteral("%1 (%2)").arg(camera.cameraName, sizeText(placeOf(camera).resolution));
}

bool CameraViewModel::pendingCenterElsewhere() const
{
    return m_hasPendingCenter && placeOf(m_pending.camera) != place();
}

void CameraViewModel::acceptPendingCenter(bool intoProfile)
{
    if (!m_hasPendingCenter)
        return;
    const bool elsewhere = pendingCenterElsewhere();
    const QPointF &center = m_pending.center;
    CameraSettings &camera = m_settings.camera;
    if (elsewhere) {
        qInfo().noquote() << "[Calibration] Akzeptiert für" << pendingCenterCamera() << ": Center=("
                          << center.x() << "," << center.y() << ")";
    } else {
        qDebug() << "[Calibration] Akzeptiert: Center=(" << center.x() << "," << center.y()
                 << "), alter Offset=(" << camera.centerOffsetX << "," << camera.centerOffsetY
                 << ") wird auf 0 gesetzt";
        camera.centerOffsetX = 0.0;
        camera.centerOffsetY = 0.0;
        camera.centerOffsetEnabled = false;
    }
    decideCenter(CenterAccepted{placeOf(m_pending.camera), center});
    if (intoProfile)
        storePendingInProfile();
    m_hasPendingCenter = false;
    m_controller.updateSettings(m_settings);
    emit overlaySettingsChanged();
    emit pendingCenterChanged();
    m_saveTimer.start();
}

void CameraViewModel::discardPendingCenter()
{
    m_hasPendingCenter = false;
    emit pendingCenterChanged();
}

/// The user chose another camera or resolution than the pending centre was measured with. (A camera
/// that only vanished for a moment leaves it.)
void CameraViewModel::dropPendingCenterOfElsewhere()
{
    if (!pendingCenterElsewhere())
        return;
    qInfo().noquote() << "[Calibration] Gemessenes Zentrum verworfen, andere Kamera oder Auflösung"
                      << "gewählt: gemessen mit" << pendingCenterCamera();
    discardPendingCenter();
    emit pendingCenterLost();
}

void CameraViewModel::lockCalibration()
{
    changeLock(true);
}

void CameraViewModel::unlockCalibration()
{
    changeLock(false);
}

void CameraViewModel::changeLock(bool locked)
{
    if (locked == this->locked())
        return;
    decideCenter(CenterLock{locked});
    m_saveTimer.start();
}

} // namespace meridax
