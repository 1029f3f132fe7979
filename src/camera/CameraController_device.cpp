#include "camera/CameraController.h"
#include "camera/CameraScales.h"
#include "camera/DeviceChoice.h"
#include "camera/FormatChoice.h"
#include "diagnostics/CrashHandler.h"

#include <QCamera>
#include <QCameraFormat>
#include <QDebug>
#include <QFile>

#include <utility>
#include <vector>

namespace meridax {

void CameraController::startCamera()
{
    stopCamera();
    joinCapabilityThread();
    m_capabilitiesQueried = false;
    invalidateFramesInFlight();
    m_streaming = true;

    const QList<QCameraDevice> devices = QMediaDevices::videoInputs();
    const qsizetype index = chooseDevice(devices, m_settings.camera);
    if (index < 0) {
        // The interface translates status texts at display; this one has no translation.
        emit errorOccurred(QStringLiteral("Keine passende Kamera gefunden."));
        emit runningChanged(false);
        return;
    }
    openCamera(devices[index]);
}

void CameraController::openCamera(const QCameraDevice &device)
{
    m_device = device;
    m_camera = new QCamera(device, this);
    m_session.setCamera(m_camera);
    // The format reaches the device only on a fresh or an active camera, never in between.
    applyCameraFormat();
    applyCameraControls();
    connect(m_camera, &QCamera::activeChanged, this, &CameraController::onActiveChanged);
    connect(m_camera, &QCamera::errorOccurred, this,
            [this](QCamera::Error, const QString &text) { onCameraError(text); });
    m_camera->setActive(true);
}

void CameraController::stopCamera()
{
    cancelFocusSweep();
    m_watchdog.stop();
    m_streaming = false;
    invalidateFramesInFlight();

    if (m_camera) {
        m_camera->setActive(false);
        // An error raised by the line above has already let go of the camera.
        if (QCamera *const camera = std::exchange(m_camera, nullptr)) {
            delete camera;
            m_session.setCamera(nullptr);
        }
    }
    m_lastWidth = -1;
    m_lastHeight = -1;
    forgetBlobCount();
}

void CameraController::onActiveChanged(bool active)
{
    emit runningChanged(active);
    if (!active)
        m_watchdog.stop();
    if (!active || !m_camera)
        return;
    m_watchdog.start();
    // Once more, now on the running stream: some devices take no value before it runs, others
    // forget theirs at its start, behind the back of the driver.
    applyCameraControls(ControlWrites::All);
    if (!std::exchange(m_capabilitiesQueried, true))
        startCapabilityProbe();
}

void CameraController::onCameraError(const QString &errorText)
{
    qWarning().noquote() << "[camera] QCamera error:" << errorText;
    emit errorOccurred(tr("Kamerafehler – bitte Gerät und Verbindung prüfen."));
    closeCameraAfterFailure();
    emit runningChanged(false);
}

void CameraController::closeCameraAfterFailure()
{
    m_watchdog.stop();
    QCamera *const camera = std::exchange(m_camera, nullptr);
    if (!camera)
        return;
    // Its own signals would report the same failure a second time.
    camera->disconnect(this);
    camera->setActive(false);
    camera->deleteLater();
    m_session.setCamera(nullptr);
}

void CameraController::onVideoInputsChanged()
{
    // Qt reports an unplugged V4L2 camera here and nowhere else: the camera stays active, without
    // an error, and further control calls on it crash (Qt 6.8). So the stream ends here.
    if (m_camera && !QMediaDevices::videoInputs().contains(m_device))
        onCameraError(QStringLiteral("Gerät nicht mehr vorhanden: %1").arg(m_device.description()));
}

void CameraController::onFramesSilent()
{
    qWarning().noquote() << "[camera] Kein Bild seit"
                         << QStringLiteral("%1 s:").arg(m_watchdog.limit().count() / 1000.0)
                         << m_device.description();
}

void CameraController::onFramesFailing()
{
    // Qt only repeats a warning in this case, as fast as the processor can (V4L2, Qt 6.8): the
    // window would stay slow, and the log would fill up.
    onCameraError(QStringLiteral("Gerät meldet nur noch Fehler: %1").arg(m_device.description()));
}

bool CameraController::deviceIsGone() const
{
    // The notification of an unplugged device takes a moment. Ids that are device nodes can be
    // asked directly, before a call into the dead camera.
    const QString id = QString::fromLocal8Bit(m_device.id());
    return id.startsWith(QLatin1Char('/')) && !QFile::exists(id);
}

void CameraController::applyCameraFormat()
{
    if (!m_camera || deviceIsGone())
        return;
    const QList<QCameraFormat> formats = m_device.videoFormats();
    std::vector<FormatCandidate> candidates;
    candidates.reserve(static_cast<size_t>(formats.size()));
    for (const QCameraFormat &format : formats) {
        candidates.push_back({format.resolution(), format.maxFrameRate(),
                              format.pixelFormat() == QVideoFrameFormat::Format_Jpeg});
    }
    const QSize wanted(m_settings.camera.cameraResolutionX, m_settings.camera.cameraResolutionY);
    if (const int best = chooseFormat(candidates, wanted); best >= 0)
        m_camera->setCameraFormat(formats[best]);
}

void CameraController::applyCameraControls(ControlWrites writes)
{
    if (!m_camera || deviceIsGone())
        return;
    // An error that a call raises lets go of m_camera; the object itself lives on for a turn.
    QCamera &camera = *m_camera;
    const bool backendFirst = m_controls.order == ControlOrder::BackendFirst;
    if (backendFirst && backendTakes(m_settings.camera, writes))
        return;
    camera.setFocusMode(m_settings.camera.focusValue >= 1 ? QCamera::FocusModeManual
                                                          : QCamera::FocusModeAuto);
    camera.setExposureMode(QCamera::ExposureAuto);
    if (backendFirst || !backendTakes(m_settings.camera, writes))
        applyControlsThroughQt(camera);
}

bool CameraController::backendTakes(const CameraSettings &settings, ControlWrites writes) const
{
    return m_controls.backend && m_controls.backend->applySettings(settings, writes, nullptr);
}

void CameraController::applyControlsThroughQt(QCamera &camera) const
{
    const CameraSettings &settings = m_settings.camera;
    if (settings.focusValue > 0)
        camera.setFocusDistance(focusDistance(settings.focusValue, settings.focusRangeMax));
    if (camera.supportedFeatures().testFlag(QCamera::Feature::ManualExposureTime)) {
        camera.setExposureMode(QCamera::ExposureManual);
        camera.setManualExposureTime(exposureSeconds(settings.captureTimeMs));
    }
}

void CameraController::applyFocusValue(int value)
{
    if (!m_camera || deviceIsGone())
        return;
    QCamera &camera = *m_camera;
    CameraSettings settings = sweepSettings();
    settings.focusValue = value;
    const bool backendFirst = m_controls.order == ControlOrder::BackendFirst;
    if (backendFirst && backendTakes(settings, ControlWrites::Changed))
        return;
    camera.setFocusMode(QCamera::FocusModeManual);
    if (backendFirst || !backendTakes(settings, ControlWrites::Changed))
        camera.setFocusDistance(focusDistance(value, settings.focusRangeMax));
}

void CameraController::startCapabilityProbe()
{
    m_capabilitiesProbeRunning = true;
    m_capabilityThread =
        std::thread([this, settings = m_settings.camera] { capabilityProbe(settings); });
}

void CameraController::capabilityProbe(const CameraSettings &settings)
{
    CrashHandler::coverThread();
    CameraCapabilities caps;
    if (m_controls.backend &&
        m_controls.backend->queryCameraCapabilities(settings, &caps, nullptr)) {
        for (const QString &line : capabilityLogLines(settings.cameraName, caps))
            qInfo().noquote() << line;
        QMetaObject::invokeMethod(
            this, [this, id = settings.cameraId, caps] { deliverCapabilities(id, caps); },
            Qt::QueuedConnection);
        return;
    }
    qInfo().noquote() << "[CameraCaps] queryCameraCapabilities returned false — UI fällt auf "
                         "Default-Ranges zurück";
    m_capabilitiesProbeRunning = false;
}

void CameraController::deliverCapabilities(const QString &cameraId, const CameraCapabilities &caps)
{
    // A slow answer may come when another camera is chosen already: it is none of that camera's.
    if (cameraId != m_settings.camera.cameraId)
        return;
    emit cameraCapabilitiesDetected(caps);
    if (caps.focus.supported && caps.focus.min < caps.focus.max) {
        m_settings.camera.focusRangeMin = caps.focus.min;
        m_settings.camera.focusRangeMax = caps.focus.max;
        emit focusRangeDetected(caps.focus.min, caps.focus.max);
    }
    m_capabilitiesProbeRunning = false;
}

void CameraController::joinCapabilityThread()
{
    if (m_capabilityThread.joinable())
        m_capabilityThread.join();
}

} // namespace meridax
