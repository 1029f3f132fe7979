#include "camera/CameraController.h"

#include <QDebug>

namespace meridax {

void CameraController::beginStatus()
{
    m_picture = Picture::Awaited;
    m_cameraAnswers = true;
    m_status.clear();
    publishStatus();
}

void CameraController::endStatus()
{
    m_picture = Picture::None;
    publishStatus();
}

void CameraController::onPicture()
{
    m_watchdog.frameArrived();
    if (m_picture == Picture::None || m_picture == Picture::Live)
        return;
    m_picture = Picture::Live;
    publishStatus();
}

void CameraController::onFramesSilent()
{
    if (deviceIsGone()) {
        onDeviceGone();
        return;
    }
    qWarning().noquote() << "[camera] Kein Bild seit"
                         << QStringLiteral("%1 s:").arg(m_watchdog.limit().count() / 1000.0)
                         << m_device.description();
    m_picture = Picture::Missing;
    publishStatus();
}

void CameraController::onFramesFailing()
{
    // Qt only repeats a warning in this case, as fast as the processor can (V4L2, Qt 6.8): the
    // window would stay slow, and the log would fill up.
    onCameraError(QStringLiteral("Gerät meldet nur noch Fehler: %1").arg(m_device.description()));
}

void CameraController::noteAnswer(const ControlAnswer &answer)
{
    if (!answer.result.taken && !answer.result.noAnswer)
        return;
    if (m_cameraAnswers && answer.result.noAnswer)
        qWarning().noquote() << "[camera]" << answer.error;
    m_cameraAnswers = !answer.result.noAnswer;
    publishStatus();
}

/// The texts are keys: the interface translates them at display.
void CameraController::publishStatus()
{
    QString status;
    if (m_picture != Picture::None && !m_cameraAnswers)
        status = QString::fromUtf8(QT_TR_NOOP("Kamera antwortet nicht"));
    else if (m_picture == Picture::Missing)
        status = QString::fromUtf8(QT_TR_NOOP("Kamera liefert kein Bild"));
    else if (m_picture == Picture::Awaited)
        status = QString::fromUtf8(QT_TR_NOOP("Kamera startet…"));
    if (status == m_status)
        return;
    m_status = status;
    emit statusChanged(status);
}

} // namespace meridax
