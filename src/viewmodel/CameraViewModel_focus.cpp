// Spot focus: a tap into the picture, the sweep it starts and what comes of it.

#include "viewmodel/CameraViewModel.h"

#include "measurement/FocusSweep.h"

#include <QDebug>

#include <algorithm>

namespace meridax {

void CameraViewModel::connectFocus()
{
    connect(&m_controller, &CameraController::focusSweepStarted, this, [this] {
        m_focusSweepFraction = 0.0;
        emit focusSweepProgressChanged();
        storeFocusSweep(true);
    });
    connect(&m_controller, &CameraController::focusSweepProgress, this,
            [this](int measured, int total) {
                m_focusSweepFraction =
                    total > 0 ? std::clamp(static_cast<double>(measured) / total, 0.0, 1.0) : 0.0;
                emit focusSweepProgressChanged();
            });
    connect(&m_controller, &CameraController::focusSweepFinished, this,
            &CameraViewModel::onFocusSweepFinished);
}

void CameraViewModel::setFocusTapModeActive(bool active)
{
    if (active == m_focusTapModeActive)
        return;
    m_focusTapModeActive = active;
    if (!active && m_focusSweepActive)
        m_controller.cancelFocusSweep();
    emit focusTapModeChanged();
}

void CameraViewModel::requestFocusTap(double frameX, double frameY)
{
    const QSize size = resolution();
    if (!m_focusTapModeActive || m_focusSweepActive || size.isEmpty())
        return;
    const double x = std::clamp(frameX, 0.0, size.width() - 1.0);
    const double y = std::clamp(frameY, 0.0, size.height() - 1.0);
    qInfo().nospace() << "[FocusTap] Ziel = (" << x << ", " << y << ") von " << size.width() << "x"
                      << size.height();
    emit focusTapRequested(x, y);
    m_controller.startFocusSweep(x, y);
}

void CameraViewModel::storeFocusSweep(bool active)
{
    if (active == m_focusSweepActive)
        return;
    m_focusSweepActive = active;
    emit focusSweepChanged();
}

void CameraViewModel::onFocusSweepFinished(int focusValue, int outcome)
{
    storeFocusSweep(false);
    const bool success = outcome == static_cast<int>(FocusOutcome::Success);
    if (success && focusValue != m_settings.camera.focusValue)
        store(m_settings.camera.focusValue, focusValue, &CameraViewModel::cameraSettingsChanged);
    emit focusSweepFeedback(outcome);
}

} // namespace meridax
