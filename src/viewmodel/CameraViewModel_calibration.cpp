// The calibration as the interface sees it: its state, its result and the decision on it.

#include "viewmodel/CameraViewModel.h"

#include "measurement/FitQuality.h"

#include <QCoreApplication>

#include <algorithm>

namespace meridax {

// The signals come queued, so those of a calibration that was cancelled or whose camera stopped may
// still be on their way.
template <typename... Arguments, typename Reaction>
void CameraViewModel::onCalibration(void (CameraController::*signal)(Arguments...),
                                    Reaction reaction)
{
    connect(&m_controller, signal, this, [this, reaction](const Arguments &...arguments) {
        if (!m_calibrationGivenUp)
            reaction(arguments...);
    });
}

void CameraViewModel::connectCalibration()
{
    connect(&m_controller, &CameraController::blobsDetected, this, [this](int count) {
        m_blobCount = count;
        emit blobCountChanged();
    });
    onCalibration(&CameraController::guideIndexChanged, [this](int currentIndex, int total) {
        m_currentGuideIndex = currentIndex;
        m_totalGuidePositions = total;
        emit guideStateChanged();
    });
    onCalibration(&CameraController::blobInSectorChanged, [this](bool inSector) {
        m_blobInSector = inSector;
        emit guideStateChanged();
    });
    onCalibration(&CameraController::blobSectorAlignmentChanged, [this](double alignment) {
        m_blobSectorAlignment = alignment;
        emit guideStateChanged();
    });
    onCalibration(
        &CameraController::measureProgressChanged,
        [this](int framesDone, int framesTotal) { storeMeasureProgress(framesDone, framesTotal); });
    onCalibration(&CameraController::blobMeasurementCaptured,
                  [this](const QPointF &point, int number) {
                      m_measurements.append(QVariantMap{{QStringLiteral("step"), number + 1},
                                                        {QStringLiteral("x"), point.x()},
                                                        {QStringLiteral("y"), point.y()}});
                      emit measurementsChanged();
                  });
    onCalibration(&CameraController::calibrationFitDetails,
                  [this](int pointCount, double radius, double stdDev) {
                      m_fitPointCount = pointCount;
                      m_fitRadius = radius;
                      m_fitStdDev = stdDev;
                      emit fitResultChanged();
                  });
    onCalibration(
        &CameraController::calibrationQualityDetails,
        [this](double centerSigma, double coverageGapDeg, int dominantOrder, double dominantAmp) {
            m_centerSigma = centerSigma;
            m_coverageGapDeg = coverageGapDeg;
            m_dominantOrder = dominantOrder;
            m_dominantAmp = dominantAmp;
            emit fitResultChanged();
        });
    onCalibration(&CameraController::calibrationCompleted, [this](const QPointF &center) {
        storeCalibrationActive(false);
        storePendingCenter(center);
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
    if (m_calibrationActive)
        endCalibration();
    // What the one before still has on its way is none of this one's.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
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
    endCalibration();
    storeCalibrationActive(false);
}

void CameraViewModel::endCalibration()
{
    m_controller.cancelCalibration();
    if (!m_calibrationActive)
        return;
    // The controller says nothing more of it, so what is late stands in the queue before this end.
    m_calibrationGivenUp = true;
    QMetaObject::invokeMethod(this, [this] { m_calibrationGivenUp = false; }, Qt::QueuedConnection);
}

void CameraViewModel::storeCalibrationActive(bool active)
{
    m_calibrationActive = active;
    storeBlobAdvice({}, {});
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
