#pragma once

#include "camera/CameraCapabilities.h"
#include "camera/ControlThread.h"
#include "camera/FrameWatchdog.h"
#include "camera/ICameraBackend.h"
#include "settings/AppSettings.h"

#include <QCameraDevice>
#include <QImage>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QObject>
#include <QPointF>
#include <QVideoFrame>
#include <QVideoSink>
#include <QtQml/qqmlregistration.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>

class QCamera;
namespace cv {
class KeyPoint;
class Mat;
} // namespace cv

namespace meridax {

enum class ChannelOrder;

struct BlobAdvice;
struct CalibrationSession;
struct CalibrationSessionDeleter
{
    void operator()(CalibrationSession *session) const;
};

enum class FocusOutcome;
struct FocusSession;
struct FocusSessionDeleter
{
    void operator()(FocusSession *session) const;
};

/// Owns the live camera: selects device and format, keeps the hardware controls in step with the
/// settings, and moves each frame to the processing thread and from there to the screen.
///
/// At most one frame is in the pipeline at any time. What cannot be taken at once is dropped before
/// any pixel is touched, so latency stays bounded by one frame whatever the resolution.
///
/// All operations belong to the GUI thread unless they say otherwise. Frames are in pixels of the
/// sensor, origin top left, y downwards.
class CameraController : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_MOC_INCLUDE("measurement/BlobAdvice.h")

public:
    explicit CameraController(QObject *parent = nullptr,
                              CameraControls controls = platformCameraControls());
    ~CameraController() override;

    /// Opens the camera that the current settings name. Success is known when
    /// `runningChanged(true)` arrives; without a fitting device `errorOccurred` is raised. Then
    /// `statusChanged` tells what a running camera lacks, and is empty while it lacks nothing.
    void startCamera();
    /// Closes the camera; safe when none is open. Does not wait for a frame being processed.
    void stopCamera();
    /// Takes the whole record and pushes what changed to the camera.
    void updateSettings(const AppSettings &settings);
    /// True when a camera exists and is active.
    bool isRunning() const;
    /// Qt's identifier of the camera that is open, empty when none is.
    QString openDevice() const;
    /// Time without a frame, 5 s unless set, after which a running camera is warned about, or given
    /// up where it answers with errors only. Takes effect at the next start.
    void setFrameTimeout(std::chrono::milliseconds timeout) { m_watchdog.setLimit(timeout); }
    /// Copy of the last frame published by the live path. Any thread.
    QImage latestFrame() const;

    /// Begins a calibration of at least three positions; drops a frame in flight.
    void startCalibration(int positions);
    /// Ends a calibration without a result.
    void cancelCalibration();
    /// Begins to average the blob's position; ignored while no calibration is active.
    void measurePosition();

    /// Drives the focus through its range and leaves it where the surroundings of the given point
    /// (px of the frame) are sharpest; the end comes as `focusSweepFinished`. Ignored while one
    /// runs.
    void startFocusSweep(double frameX, double frameY);
    /// Ends a sweep; the focus goes back to where it was.
    void cancelFocusSweep();

signals:
    // The order is the meta-object's signal order and part of the interface.
    void frameReady(const QImage &image);
    void frameInfoChanged(const QString &info);
    void actualResolutionChanged(int width, int height);
    void statusChanged(const QString &status);
    void runningChanged(bool running);
    void blobsDetected(int count);
    void blobMeasurementCaptured(const QPointF &point, int number);
    void calibrationCompleted(const QPointF &center);
    void measureProgressChanged(int framesDone, int framesTotal);
    void calibrationFitDetails(int pointCount, double radius, double stdDev);
    void calibrationQualityDetails(double centerSigma, double coverageGapDeg, int dominantOrder,
                                   double dominantAmp);
    void errorOccurred(const QString &message);
    void focusRangeDetected(int minValue, int maxValue);
    void focusSweepStarted();
    void focusSweepProgress(int measured, int total);
    void focusSweepFinished(int focusValue, int outcome);
    void guideIndexChanged(int currentIndex, int total);
    void blobInSectorChanged(bool inSector);
    void blobSectorAlignmentChanged(double alignment);
    void cameraCapabilitiesDetected(const meridax::CameraCapabilities &caps);
    void blobAdviceChanged(const meridax::BlobAdvice &advice);

public slots:
    /// Entry of the pipeline; runs on the controller's thread.
    void onVideoFrame(const QVideoFrame &frame);

private:
    /// A frame on its way from the GUI thread to the processing thread, with the settings as they
    /// were when it was accepted: the processing thread never reads the live record.
    struct PendingFrame
    {
        QImage image; ///< Format_RGB888
        AppSettings settings;
        std::uint64_t generation = 0;
        bool calibration = false;
    };

    // Device, format and controls (CameraController_device.cpp)
    void openCamera(const QCameraDevice &device);
    void closeCameraAfterFailure();
    bool deviceIsGone() const;
    void applyCameraFormat();
    void onActiveChanged(bool active);
    void onCameraError(const QString &errorText);
    void onVideoInputsChanged();
    void onDeviceGone();

    // Controls and what the camera can do (CameraController_controls.cpp)
    void createControlThread(std::shared_ptr<ICameraBackend> backend);
    void applyCameraControls(ControlWrites writes = ControlWrites::Changed);
    std::uint64_t applyFocusValue(int value);
    std::uint64_t writeControls(ControlRecord record);
    void setModesThroughQt(const ControlRecord &record);
    void setValuesThroughQt(const ControlRecord &record);
    void onControlsWritten(const ControlAnswer &answer);
    void startCapabilityProbe();
    void onCapabilitiesQueried(const CapabilityAnswer &answer);
    void deliverCapabilities(const CameraCapabilities &caps);

    // What is said of a running camera (CameraController_status.cpp)
    void onPicture();
    void onFramesSilent();
    void onFramesFailing();
    void noteAnswer(const ControlAnswer &answer);
    void beginStatus();
    void endStatus();
    void publishStatus();

    // The one-frame pipeline (CameraController_pipeline.cpp)
    void invalidateFramesInFlight();
    void processingLoop();
    void processFrame(PendingFrame &frame);
    void processCalibrationFrame(PendingFrame &frame);
    void publishFrame(const QImage &image);
    void publishFrameSize(QSize size);

    // Calibration (src/measurement/CameraController_calibration.cpp)
    void createCalibrationSession();
    bool isCalibrationActive() const;
    void forgetBlobCount();
    void resetBlobState();
    void analyseCalibrationFrame(cv::Mat &frame, ChannelOrder order, const AppSettings &settings);
    void adviseOnBlobs(int count, const AppSettings &settings);
    void publishBlobCount(int count);
    void publishSector(bool inSector, double alignment);
    void measureBlob(cv::Mat &frame, ChannelOrder order, const cv::KeyPoint &blob,
                     int measureFrames);
    void completeCalibration(cv::Mat &frame, ChannelOrder order);

    // Spot focus (src/measurement/CameraController_focus.cpp)
    void createFocusSession();
    void measureSharpness(const cv::Mat &frame, int greyConversion);
    const CameraSettings &sweepSettings() const;
    void onFocusTick();
    void onFocusWritten(const ControlAnswer &answer);
    void continueFocusSweep();
    void moveFocusToNextPosition();
    void endFocusSweep(int focusValue, FocusOutcome outcome);
    void reportFocusSweep(int focusValue, FocusOutcome outcome);

    QMediaDevices m_devices;
    QMediaCaptureSession m_session;
    QCamera *m_camera = nullptr;   ///< child of this; null while no camera is open
    QCameraDevice m_device;        ///< what m_camera was opened on
    std::uint64_t m_nodeStamp = 0; ///< of its node at that time
    QVideoSink m_sink;
    FrameWatchdog m_watchdog;
    AppSettings m_settings; ///< GUI thread only

    enum class Picture { None, Awaited, Live, Missing };
    Picture m_picture = Picture::None; ///< None while no camera runs
    bool m_cameraAnswers = true;
    QString m_status; ///< as told last

    ControlOrder m_controlOrder;
    std::unique_ptr<ControlThread> m_controlThread; ///< null without a backend
    std::uint64_t m_lastWrite = 0;                  ///< number of the last record written
    std::uint64_t m_writesOfOthers = 0; ///< up to here records went to a camera closed since
    ControlRange m_focusControl;        ///< as last reported

    bool m_capabilitiesQueried = false;
    std::uint64_t m_capabilitiesProbe = 0; ///< number of the question under way, 0 none
    QString m_probedCamera;                ///< id of the camera that it is about

    std::thread m_processingThread;
    std::mutex m_pendingMutex; ///< guards the next four
    std::condition_variable m_pendingCondition;
    PendingFrame m_pending;
    bool m_hasPending = false;
    bool m_stopRequested = false;

    /// A frame of the present generation is accepted and not finished. Set by the GUI thread;
    /// cleared by whoever ends the frame, unless it was given up before.
    std::atomic<bool> m_frameInFlight = false;
    std::atomic<bool> m_streaming = false; ///< frames may be published
    std::atomic<std::uint64_t> m_frameGeneration = 0;
    std::atomic<int> m_lastWidth = -1;
    std::atomic<int> m_lastHeight = -1;

    mutable std::mutex m_lastFrameMutex; ///< guards m_lastFrame
    QImage m_lastFrame;

    std::unique_ptr<CalibrationSession, CalibrationSessionDeleter> m_calibration;
    std::unique_ptr<FocusSession, FocusSessionDeleter> m_focus;
};

} // namespace meridax
