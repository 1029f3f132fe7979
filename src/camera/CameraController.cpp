#include "camera/CameraController.h"

#include <QCamera>

#include <utility>

namespace meridax {

CameraController::CameraController(QObject *parent, CameraControls controls)
    : QObject(parent)
    , m_controlOrder(controls.order)
{
    qRegisterMetaType<CameraCapabilities>("CameraCapabilities");
    createCalibrationSession();
    createFocusSession();
    createControlThread(std::move(controls.backend));

    m_session.setVideoSink(&m_sink);
    connect(&m_sink, &QVideoSink::videoFrameChanged, this, &CameraController::onVideoFrame);
    connect(&m_devices, &QMediaDevices::videoInputsChanged, this,
            &CameraController::onVideoInputsChanged);
    connect(&m_watchdog, &FrameWatchdog::silent, this, &CameraController::onFramesSilent);
    connect(&m_watchdog, &FrameWatchdog::failing, this, &CameraController::onFramesFailing);
    m_processingThread = std::thread(&CameraController::processingLoop, this);
}

CameraController::~CameraController()
{
    stopCamera();
    m_controlThread.reset();
    {
        const std::lock_guard lock(m_pendingMutex);
        m_stopRequested = true;
        m_hasPending = false;
        m_pending.image = {};
    }
    m_pendingCondition.notify_all();
    m_processingThread.join();
    m_session.setVideoSink(nullptr);
}

bool CameraController::isRunning() const
{
    return m_camera && m_camera->isActive();
}

QString CameraController::openDevice() const
{
    return m_camera ? QString::fromLatin1(m_device.id()) : QString();
}

QImage CameraController::latestFrame() const
{
    const std::lock_guard lock(m_lastFrameMutex);
    return m_lastFrame;
}

void CameraController::updateSettings(const AppSettings &settings)
{
    const CameraSettings &now = settings.camera;
    const CameraSettings &before = m_settings.camera;
    const bool controlsChanged =
        now.focusValue != before.focusValue || now.captureTimeMs != before.captureTimeMs ||
        now.brightness != before.brightness || now.saturation != before.saturation ||
        now.contrast != before.contrast || now.gain != before.gain;
    const bool formatChanged = now.cameraResolutionX != before.cameraResolutionX ||
                               now.cameraResolutionY != before.cameraResolutionY;

    m_settings = settings;

    if (!isRunning())
        return;
    if (formatChanged)
        applyCameraFormat();
    if (formatChanged || controlsChanged) {
        // Another format starts the stream anew.
        applyCameraControls(formatChanged ? ControlWrites::All : ControlWrites::Changed);
        continueFocusSweep();
    }
}

} // namespace meridax
