#include "camera/CameraController.h"
#include "camera/FrameImage.h"
#include "measurement/BlobAnalysis.h"
#include "measurement/CalibrationSession.h"
#include "measurement/CircleFit.h"
#include "measurement/FitQuality.h"
#include "measurement/GuideGeometry.h"

#include <QDebug>

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace meridax {

namespace {

constexpr double kAlignmentStep = 0.001;
// Blue, green, red.
const cv::Scalar kRed(0, 0, 255);
const cv::Scalar kGreen(0, 255, 0);
const cv::Scalar kMagenta(255, 0, 255);
const cv::Scalar kOrange(0, 165, 255);

void logPoints(const std::vector<QPointF> &points)
{
    qDebug().noquote() << "[Calibration] Alle Mess-Punkte vor Center-Berechnung:";
    for (size_t i = 0; i < points.size(); ++i) {
        qDebug() << "   " << i << ":" << points[i].x() << "," << points[i].y();
    }
}

} // namespace

void CalibrationSessionDeleter::operator()(CalibrationSession *session) const
{
    delete session;
}

void CameraController::createCalibrationSession()
{
    m_calibration.reset(new CalibrationSession);
}

bool CameraController::isCalibrationActive() const
{
    return m_calibration->active;
}

void CameraController::forgetBlobCount()
{
    m_calibration->blobCount = -1;
}

void CameraController::resetBlobState()
{
    forgetBlobCount();
    m_calibration->inSector = false;
    m_calibration->alignment = 0.0;
    m_calibration->searchStale = true;
}

void CameraController::startCalibration(int positions)
{
    invalidateFramesInFlight();
    {
        const std::lock_guard lock(m_calibration->mutex);
        m_calibration->run.start(positions);
        m_calibration->positions = m_calibration->run.positions();
        m_calibration->guideIndex = 0;
    }
    resetBlobState();
    m_calibration->active = true; // last, when everything a frame meets is in place

    emit guideIndexChanged(0, m_calibration->positions);
    emit blobInSectorChanged(false);
    emit blobSectorAlignmentChanged(0.0);
}

void CameraController::cancelCalibration()
{
    m_calibration->active = false;
    {
        const std::lock_guard lock(m_calibration->mutex);
        m_calibration->run.reset();
        m_calibration->guideIndex = 0;
    }
    resetBlobState();
    emit measureProgressChanged(0, 0);
    emit blobInSectorChanged(false);
    emit blobSectorAlignmentChanged(0.0);
}

void CameraController::measurePosition()
{
    {
        const std::lock_guard lock(m_calibration->mutex);
        if (!m_calibration->run.beginMeasuring())
            return;
    }
    emit measureProgressChanged(0,
                                CalibrationRun::framesWanted(m_settings.calibrationMeasureFrames));
}

void CameraController::analyseCalibrationFrame(cv::Mat &frame, ChannelOrder order,
                                               const AppSettings &settings)
{
    CalibrationSession &session = *m_calibration;
    if (session.detectorDirty(settings.blob)) {
        session.detector = createBlobDetector(settings.blob);
        session.detectorSettings = settings.blob;
    }

    cv::cvtColor(frame, session.grey,
                 order == ChannelOrder::Rgb ? cv::COLOR_RGB2GRAY : cv::COLOR_BGR2GRAY);
    const std::vector<cv::KeyPoint> blobs =
        detectBlobs(*session.detector, session.grey, session.scaled);
    publishBlobCount(static_cast<int>(blobs.size()));

    const bool single = blobs.size() == 1;
    SectorState sector;
    if (single) {
        sector = evaluateSector({blobs[0].pt.x, blobs[0].pt.y}, overlayCentre(settings.camera),
                                {frame.cols, frame.rows}, session.guideIndex, session.positions);
    }
    publishSector(sector.inSector, sector.alignment);

    for (const cv::KeyPoint &blob : blobs)
        drawBlobMark(frame, blob, inOrder(single ? kGreen : kRed, order));
    if (single)
        measureBlob(frame, order, blobs[0], settings.calibrationMeasureFrames);
    adviseOnBlobs(static_cast<int>(blobs.size()), settings);
}

void CameraController::adviseOnBlobs(int count, const AppSettings &settings)
{
    CalibrationSession &session = *m_calibration;
    if (session.searchStale.exchange(false))
        session.search.clear();
    const cv::Mat &image = session.grey.cols > detectionColumns ? session.scaled : session.grey;
    if (image.empty())
        return;
    const double scale = static_cast<double>(session.grey.cols) / image.cols;
    const ExpectedPlace place{overlayCentre(settings.camera), session.guideIndex,
                              session.positions};
    if (session.search.addFrame(image, scale, settings.blob, count, place))
        emit blobAdviceChanged(session.search.advice());
}

void CameraController::publishBlobCount(int count)
{
    if (m_calibration->blobCount.exchange(count) != count)
        emit blobsDetected(count);
}

void CameraController::publishSector(bool inSector, double alignment)
{
    if (m_calibration->inSector.exchange(inSector) != inSector)
        emit blobInSectorChanged(inSector);
    if (std::abs(m_calibration->alignment - alignment) > kAlignmentStep) {
        m_calibration->alignment = alignment;
        emit blobSectorAlignmentChanged(alignment);
    }
}

// Holds the measurement mutex across accumulation, fit and the final signals, so that a start or
// cancel on the GUI thread comes wholly before or wholly after them.
void CameraController::measureBlob(cv::Mat &frame, ChannelOrder order, const cv::KeyPoint &blob,
                                   int measureFrames)
{
    CalibrationSession &session = *m_calibration;
    const std::lock_guard lock(session.mutex);
    if (!session.active || !session.run.measuring())
        return;

    const cv::Point2d position = refineBlobCentre(session.grey, blob);
    const CalibrationStep step = session.run.add({position.x, position.y}, measureFrames);
    emit measureProgressChanged(step.framesDone, step.framesTotal);
    if (!step.positionCompleted())
        return;

    emit measureProgressChanged(0, 0);
    session.guideIndex = step.positionsDone;
    qDebug() << "[Calibration] Mess-Punkt" << step.positionsDone << "/" << session.run.positions()
             << ":" << step.point.x() << "," << step.point.y();
    emit blobMeasurementCaptured(step.point, step.positionsDone - 1);
    session.inSector = false;
    emit blobInSectorChanged(false);
    emit guideIndexChanged(step.positionsDone, session.run.positions());
    if (step.kind == CalibrationStep::Kind::AllDone)
        completeCalibration(frame, order);
}

void CameraController::completeCalibration(cv::Mat &frame, ChannelOrder order)
{
    CalibrationSession &session = *m_calibration;
    session.active = false;
    session.guideIndex = 0; // without a signal: the shown index stays past the end

    const std::vector<QPointF> points = session.run.points();
    session.run.reset();
    logPoints(points);
    const CircleFitResult fit = computeCenterFromMeasurements(points);
    if (!fit.valid) {
        // A translation key: the interface translates it at display.
        emit errorOccurred(
            QString::fromUtf8(QT_TR_NOOP("Kalibrierungszentrum konnte nicht berechnet werden.")));
        return;
    }
    const FitQuality quality = analyseFitQuality(points, fit.center(), fit.radius);
    drawCalibrationResult(frame, fit.center(), inOrder(kMagenta, order), points,
                          inOrder(kOrange, order));

    // The figures first: the centre opens the dialog that shows them.
    emit calibrationFitDetails(static_cast<int>(points.size()), fit.radius, fit.stdDev);
    emit calibrationQualityDetails(quality.centerSigma, quality.coverageGapDeg,
                                   quality.dominantOrder, quality.dominantAmp);
    emit calibrationCompleted(fit.center());
}

} // namespace meridax
