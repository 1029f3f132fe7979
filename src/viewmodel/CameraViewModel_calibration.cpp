// The calibration as the interface sees it: its state, its result and the decision on it.

#include "viewmodel/CameraViewModel.h"

#include "measurement/FitQuality.h"

#include <QDebug>

#include <algorithm>

namespace meridax {

void CameraViewModel::connectCalibration()
{
    connect(&m_controller, &CameraController::blobsDetected, this, [this](int count) {
        m_blobCount = count;
        emit blobCountChanged();
    });
    connect(&m_controller, &CameraController::guideIndexChanged, this,
            [this](int currentIndex, int total) {
                m_currentGuideIndex = currentIndex;
                m_totalGuidePositions = total;
                emit guideStateChanged();
            });
    connect(&m_controller, &CameraController::blobInSectorChanged, this, [this](bool inSector) {
        m_blobInSector = inSector;
        emit guideStateChanged();
    });
    connect(&m_controller, &CameraController::blobSectorAlignmentChanged, this,
            [this](double alignment) {
                m_blobSectorAlignment = alignment;
                emit guideStateChanged();
            });
    connect(&m_controller, &CameraController::measureProgressChanged, this,
            &CameraViewModel::storeMeasureProgress);
    connect(&m_controller, &CameraController::blobMeasurementCaptured, this,
            [this](const QPointF &point, int number) {
                m_measurements.append(QVariantMap{{QStringLiteral("step"), number + 1},
                                                  {QStringLiteral("x"), point.x()},
                                                  {QStringLiteral("y"), point.y()}});
                emit measurementsChanged();
            });
    connect(&m_controller, &CameraController::calibrationFitDetails, this,
            [this](int pointCount, double radius, double stdDev) {
                m_fitPointCount = pointCount;
                m_fitRadius = radius;
                m_fitStdDev = stdDev;
                emit fitResultChanged();
            });
    connect(
        &m_controller, &CameraController::calibrationQualityDetails, this,
        [this](double centerSigma, double coverageGapDeg, int dominantOrder, double dominantAmp) {
            m_centerSigma = centerSigma;
            m_coverageGapDeg = coverageGapDeg;
            m_dominantOrder = dominantOrder;
            m_dominantAmp = dominantAmp;
            emit fitResultChanged();
        });
    connect(&m_controller, &CameraController::calibrationCompleted, this,
            [this](const QPointF &center) {
                storeCalibrationActive(false);
                m_pendingCenter = center;
                m_hasPendingCenter = true;
                emit pendingCenterChanged();
            });
}

void CameraViewModel::storeMeasureProgress(int framesDone, int framesTotal)
{
    if (framesDone == m_measureFramesDone && framesTotal == m_measureFramesTotal)
        return;
    m_measureFramesDone = framesDone;
    m_measureFramesTotal = framesTotal;
    emit measureProgressChanged();
}

void CameraViewModel::startCalibration()
{
    // No sharpness is measured during a calibration: a sweep would only move the lens.
    setFocusTapModeActive(false);
    m_measurements.clear();
    emit measurementsChanged();
    discardPendingCenter();
    m_fitRadius = 0.0;
    m_fitStdDev = 0.0;
    m_fitPointCount = 0;
    emit fitResultChanged();
    m_measureFramesDone = 0;
    m_measureFramesTotal = 0;
    emit measureProgressChanged();
    storeCalibrationActive(true);
    m_controller.startCalibration(m_settings.calibrationPositions);
}

void CameraViewModel::measurePosition()
{
    m_controller.measurePosition();
}

void CameraViewModel::cancelCalibration()
{
    m_controller.cancelCalibration();
    storeCalibrationActive(false);
}

void CameraViewModel::acceptPendingCenter()
{
    if (!m_hasPendingCenter)
        return;
    CameraSettings &camera = m_settings.camera;
    qDebug() << "[Calibration] Akzeptiert: Center=(" << m_pendingCenter.x() << ","
             << m_pendingCenter.y() << "), alter Offset=(" << camera.centerOffsetX << ","
             << camera.centerOffsetY << ") wird auf 0 gesetzt";
    camera.centerOffsetX = 0.0;
    camera.centerOffsetY = 0.0;
    camera.centerOffsetEnabled = false;
    camera.centerX = m_pendingCenter.x();
    camera.centerY = m_pendingCenter.y();
    m_calibrated = camera.calibrated = true;
    m_locked = camera.locked = true;
    m_hasPendingCenter = false;
    m_controller.updateSettings(m_settings);
    emit overlaySettingsChanged();
    emit pendingCenterChanged();
    emit calibratedChanged();
    emit lockStateChanged();
    m_saveTimer.start();
}

void CameraViewModel::discardPendingCenter()
{
    m_hasPendingCenter = false;
    emit pendingCenterChanged();
}

void CameraViewModel::dropPendingCenter()
{
    // It was measured in the pixels of another camera or resolution.
    if (m_hasPendingCenter)
        discardPendingCenter();
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
    if (m_locked == locked)
        return;
    storeLocked(locked);
    m_saveTimer.start();
}

void CameraViewModel::storeCalibrated(bool calibrated)
{
    m_calibrated = m_settings.camera.calibrated = calibrated;
    emit calibratedChanged();
}

void CameraViewModel::storeCalibratedAndLocked(bool both)
{
    m_calibrated = m_settings.camera.calibrated = both;
    m_locked = m_settings.camera.locked = both;
    emit calibratedChanged();
    emit lockStateChanged();
}

void CameraViewModel::storeLocked(bool locked)
{
    m_locked = m_settings.camera.locked = locked;
    emit lockStateChanged();
}

void CameraViewModel::storeCalibrationActive(bool active)
{
    m_calibrationActive = active;
    emit calibrationActiveChanged();
}

void CameraViewModel::setCalibrationPositions(int positions)
{
    m_settings.calibrationPositions = std::clamp(positions, 3, 15);
    emit calibrationSettingsChanged();
    m_saveTimer.start();
}

void CameraViewModel::setCalibrationMeasureFrames(int frames)
{
    const int clamped = std::clamp(frames, 1, 10);
    if (clamped == m_settings.calibrationMeasureFrames)
        return;
    m_settings.calibrationMeasureFrames = clamped;
    settingsChanged(&CameraViewModel::calibrationSettingsChanged);
}

bool CameraViewModel::fitResultValid() const
{
    return meridax::fitResultValid(m_fitPointCount);
}

bool CameraViewModel::coveragePoor() const
{
    return meridax::coveragePoor(m_fitPointCount, m_coverageGapDeg);
}

bool CameraViewModel::qualityAssessable() const
{
    return meridax::qualityAssessable(m_fitPointCount, m_centerSigma);
}

int CameraViewModel::qualityLevel() const
{
    return meridax::qualityLevel(m_fitPointCount, m_centerSigma, m_coverageGapDeg);
}

double CameraViewModel::measureProgressRatio() const
{
    return m_measureFramesTotal < 1
               ? 0.0
               : static_cast<double>(m_measureFramesDone) / m_measureFramesTotal;
}

} // namespace meridax
