#include "camera/CameraController.h"
#include "camera/DeviceChoice.h"
#include "camera/FormatChoice.h"

#include <QCamera>
#include <QCameraFormat>
#include <QDebug>

#include <utility>
#include <vector>

namespace meridax {

void CameraController::startCamera()
{
    stopCamera();
    m_capabilitiesQueried = false;
    m_capabilitiesProbe = 0;
    invalidateFramesInFlight();
    m_streaming = true;

    const QList<QCameraDevice> devices = QMediaDevices::videoInputs();
    const qsizetype index = chooseDevice(attachedCameras(devices), m_settings.camera);
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
    m_nodeStamp = nodeStamp(QString::fromLatin1(device.id()));
    m_camera = new QCamera(device, this);
    m_session.setCamera(m_camera);
    // The format reaches the device only on a fresh or an active camera, never in between.
    applyCameraFormat();
    applyCameraControls();
    connect(m_camera, &QCamera::activeChanged, this, &CameraController::onActiveChanged);
    connect(m_camera, &QCamera::errorOccurred, this,
            [this](QCamera::Error, const QString &text) { onCameraError(text); });
    // An error of the opening itself was raised before anyone listened, and an active camera
    // without a device would follow (Qt 6.8).
    if (m_camera->error() != QCamera::NoError)
        onCameraError(m_camera->errorString());
    else
        m_camera->setActive(true);
}

void CameraController::stopCamera()
{
    cancelFocusSweep();
    m_watchdog.stop();
    m_streaming = false;
    m_writesOfOthers = m_lastWrite;
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
    endStatus();
}

void CameraController::onActiveChanged(bool active)
{
    emit runningChanged(active);
    if (!active) {
        m_watchdog.stop();
        endStatus();
    }
    if (!active || !m_camera)
        return;
    m_watchdog.start();
    beginStatus();
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
    // What is told now is the failure.
    m_picture = Picture::None;
    m_status.clear();
    m_writesOfOthers = m_lastWrite;
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
        onDeviceGone();
}

void CameraController::onDeviceGone()
{
    onCameraError(QStringLiteral("Gerät nicht mehr vorhanden: %1").arg(m_device.description()));
}

bool CameraController::deviceIsGone() const
{
    // The notification of an unplugged device takes a moment, and is missing where the device came
    // back in that moment. A node can be asked directly, before a call into the dead camera.
    return nodeStamp(QString::fromLatin1(m_device.id())) != m_nodeStamp;
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

} // namespace meridax
