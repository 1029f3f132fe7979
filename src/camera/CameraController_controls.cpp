#include "camera/CameraController.h"
#include "camera/CameraScales.h"

#include <QCamera>
#include <QDebug>

#include <utility>

namespace meridax {

namespace {

/// The backend gets the device that streams, by the identifier of this moment.
void addressTo(CameraSettings &settings, const QCameraDevice &device)
{
    settings.cameraId = QString::fromLatin1(device.id());
    settings.cameraName = device.description();
}

} // namespace

void CameraController::createControlThread(std::shared_ptr<ICameraBackend> backend)
{
    if (!backend)
        return;
    m_controlThread = std::make_unique<ControlThread>(
        std::move(backend), this,
        [this](const ControlAnswer &answer) { onControlsWritten(answer); },
        [this](const CapabilityAnswer &answer) { onCapabilitiesQueried(answer); });
}

void CameraController::applyCameraControls(ControlWrites writes)
{
    writeControls({.settings = m_settings.camera, .writes = writes});
}

/// Returns the number of the record, 0 if no answer will come.
std::uint64_t CameraController::applyFocusValue(int value)
{
    ControlRecord record{.settings = sweepSettings(), .focusOnly = true};
    record.settings.focusValue = value;
    return writeControls(record);
}

std::uint64_t CameraController::writeControls(ControlRecord record)
{
    if (!m_camera || deviceIsGone())
        return 0;
    if (m_controlOrder == ControlOrder::QtFirst || !m_controlThread)
        setModesThroughQt(record);
    if (!m_controlThread) {
        setValuesThroughQt(record);
        return 0;
    }
    addressTo(record.settings, m_device);
    m_lastWrite = m_controlThread->write(std::move(record));
    return m_lastWrite;
}

void CameraController::onControlsWritten(const ControlAnswer &answer)
{
    // That a device which was pulled out does not answer will be told as its end.
    if (answer.number <= m_writesOfOthers || deviceIsGone())
        return;
    noteAnswer(answer);
    // Calls into a camera that hangs would hang as well, and on this thread.
    if (!answer.result.taken && !answer.result.noAnswer) {
        if (m_controlOrder == ControlOrder::BackendFirst)
            setModesThroughQt(answer.record);
        setValuesThroughQt(answer.record);
    }
    onFocusWritten(answer);
}

void CameraController::setModesThroughQt(const ControlRecord &record)
{
    // An error that a call raises lets go of m_camera; the object itself lives on for a turn.
    QCamera *const camera = m_camera;
    if (!camera)
        return;
    const bool manual = record.focusOnly || record.settings.focusValue >= 1;
    camera->setFocusMode(manual ? QCamera::FocusModeManual : QCamera::FocusModeAuto);
    if (!record.focusOnly)
        camera->setExposureMode(QCamera::ExposureAuto);
}

void CameraController::setValuesThroughQt(const ControlRecord &record)
{
    QCamera *const camera = m_camera;
    if (!camera)
        return;
    const CameraSettings &settings = record.settings;
    if (record.focusOnly || settings.focusValue > 0)
        camera->setFocusDistance(focusDistance(settings.focusValue, settings.focusRangeMax));
    if (record.focusOnly ||
        !camera->supportedFeatures().testFlag(QCamera::Feature::ManualExposureTime))
        return;
    camera->setExposureMode(QCamera::ExposureManual);
    camera->setManualExposureTime(exposureSeconds(settings.captureTimeMs));
}

void CameraController::startCapabilityProbe()
{
    if (!m_controlThread) {
        onCapabilitiesQueried({});
        return;
    }
    m_probedCamera = m_settings.camera.cameraId;
    CameraSettings asked = m_settings.camera;
    addressTo(asked, m_device);
    m_capabilitiesProbe = m_controlThread->query(asked);
}

void CameraController::onCapabilitiesQueried(const CapabilityAnswer &answer)
{
    // That of an earlier start; the one under way is still to come.
    if (answer.number != m_capabilitiesProbe)
        return;
    if (!answer.any) {
        qInfo().noquote() << "[CameraCaps] queryCameraCapabilities returned false — UI fällt auf "
                             "Default-Ranges zurück";
    } else {
        for (const QString &line : capabilityLogLines(answer.cameraName, answer.caps))
            qInfo().noquote() << line;
        // Another camera may be chosen already: this is none of its.
        if (m_probedCamera == m_settings.camera.cameraId)
            deliverCapabilities(answer.caps);
    }
    m_capabilitiesProbe = 0;
}

void CameraController::deliverCapabilities(const CameraCapabilities &caps)
{
    m_focusControl = caps.focus;
    emit cameraCapabilitiesDetected(caps);
    if (!caps.focus.supported || caps.focus.min >= caps.focus.max)
        return;
    m_settings.camera.focusRangeMin = caps.focus.min;
    m_settings.camera.focusRangeMax = caps.focus.max;
    emit focusRangeDetected(caps.focus.min, caps.focus.max);
}

} // namespace meridax
