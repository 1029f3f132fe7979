#include "camera/CameraController.h"
#include "camera/FrameImage.h"
#include "camera/SoftwareAdjustments.h"
#include "diagnostics/CrashHandler.h"

#include <opencv2/imgproc.hpp>

#include <utility>

namespace meridax {

void CameraController::onVideoFrame(const QVideoFrame &frame)
{
    if (!frame.isValid())
        return;
    const bool calibration = isCalibrationActive();
    // The drop decision comes before any pixel is touched.
    if (m_frameInFlight.exchange(true)) {
        m_watchdog.frameArrived();
        return;
    }

    QImage image = frame.toImage();
    image.convertTo(QImage::Format_RGB888);
    if (image.isNull()) {
        m_frameInFlight = false;
        return;
    }
    onPicture();
    {
        const std::lock_guard lock(m_pendingMutex);
        m_pending = {std::move(image), m_settings, m_frameGeneration, calibration};
        m_hasPending = true;
    }
    m_pendingCondition.notify_one();
}

void CameraController::invalidateFramesInFlight()
{
    const std::lock_guard lock(m_pendingMutex);
    ++m_frameGeneration;
    m_hasPending = false;
    m_pending.image = {};
    m_frameInFlight = false;
}

void CameraController::processingLoop()
{
    CrashHandler::coverThread();
    std::unique_lock lock(m_pendingMutex);
    while (true) {
        m_pendingCondition.wait(lock, [this] { return m_stopRequested || m_hasPending; });
        if (m_stopRequested)
            return;
        PendingFrame frame = std::exchange(m_pending, {});
        m_hasPending = false;
        lock.unlock();

        if (frame.calibration)
            processCalibrationFrame(frame);
        else
            processFrame(frame);

        lock.lock();
        // A frame that was given up meanwhile must not clear the flag of its successor: from then
        // on there would always be a second frame waiting in the slot.
        if (frame.generation == m_frameGeneration)
            m_frameInFlight = false;
    }
}

void CameraController::processFrame(PendingFrame &frame)
{
    QImage image = std::move(frame.image);
    const QDateTime now = QDateTime::currentDateTime();
    if (adjustmentsAreNeutral(frame.settings.camera)) {
        // Swapping the channels there and back would change no pixel, so the stamp goes straight
        // into the image, which nobody shares.
        cv::Mat rgb = wrapRgbImage(image);
        measureSharpness(rgb, cv::COLOR_RGB2GRAY);
        drawTimeStamp(rgb, ChannelOrder::Rgb, now);
    } else {
        cv::Mat bgr;
        cv::cvtColor(wrapRgbImage(std::as_const(image)), bgr, cv::COLOR_RGB2BGR);
        applySoftwareAdjustments(bgr, frame.settings.camera);
        measureSharpness(bgr, cv::COLOR_BGR2GRAY);
        drawTimeStamp(bgr, ChannelOrder::Bgr, now);
        image = rgbImageFromBgr(bgr);
    }
    if (image.isNull() || frame.generation != m_frameGeneration)
        return;
    publishFrame(image);
}

void CameraController::publishFrame(const QImage &image)
{
    if (!m_streaming)
        return;
    publishFrameSize(image.size());
    {
        const std::lock_guard lock(m_lastFrameMutex);
        m_lastFrame = image;
    }
    emit frameReady(image);
}

void CameraController::publishFrameSize(QSize size)
{
    const int oldWidth = m_lastWidth.exchange(size.width());
    const int oldHeight = m_lastHeight.exchange(size.height());
    if (oldWidth != size.width() || oldHeight != size.height())
        emit actualResolutionChanged(size.width(), size.height());
    emit frameInfoChanged(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()));
}

// Unlike the live path this one neither checks the generation nor keeps the frame: during a
// calibration latestFrame() stays the last one from before it.
void CameraController::processCalibrationFrame(PendingFrame &frame)
{
    QImage image = std::move(frame.image);
    cv::Mat pixels;
    const bool neutral = adjustmentsAreNeutral(frame.settings.camera);
    const ChannelOrder order = neutral ? ChannelOrder::Rgb : ChannelOrder::Bgr;
    if (neutral) {
        pixels = wrapRgbImage(image);
    } else {
        cv::cvtColor(wrapRgbImage(std::as_const(image)), pixels, cv::COLOR_RGB2BGR);
        applySoftwareAdjustments(pixels, frame.settings.camera);
    }
    analyseCalibrationFrame(pixels, order, frame.settings);
    drawTimeStamp(pixels, order, QDateTime::currentDateTime());
    publishFrameSize({pixels.cols, pixels.rows});
    if (m_streaming)
        emit frameReady(neutral ? image : rgbImageFromBgr(pixels));
}

} // namespace meridax
