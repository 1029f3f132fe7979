#include "camera/CameraController.h"
#include "camera/ControlRules.h"
#include "measurement/FocusSession.h"
#include "measurement/FocusSharpness.h"

#include <QDebug>
#include <QtMath>

#include <algorithm>

namespace meridax {

namespace {

constexpr int kTickMs = 60;
constexpr int kMostWaitTicks = 80;
// A frame that was exposed while the lens still moved comes first.
constexpr std::uint64_t kFreshFrames = 2;

} // namespace

void FocusSessionDeleter::operator()(FocusSession *session) const
{
    delete session;
}

void CameraController::createFocusSession()
{
    m_focus.reset(new FocusSession);
    m_focus->timer.setInterval(kTickMs);
    connect(&m_focus->timer, &QTimer::timeout, this, &CameraController::onFocusTick);
}

void CameraController::startFocusSweep(double frameX, double frameY)
{
    const CameraSettings &camera = m_settings.camera;
    if (!isRunning()) {
        reportFocusSweep(camera.focusValue, FocusOutcome::Success);
        return;
    }
    if (m_focus->active)
        return;
    // A position that means automatic would let the camera move the lens, now or for good.
    ControlRange control = m_focusControl;
    control.min = camera.focusRangeMin;
    control.max = camera.focusRangeMax;
    const FocusRange range{std::max(firstManualValue(control), 1), camera.focusRangeMax};
    if (!range.usable()) {
        const bool pending = m_capabilitiesProbe != 0;
        qWarning().nospace() << "[FocusTap] Kein nutzbarer Fokusbereich (min=" << range.min
                             << " max=" << range.max
                             << ") — Sweep abgebrochen, pending=" << pending;
        reportFocusSweep(camera.focusValue,
                         pending ? FocusOutcome::RangePending : FocusOutcome::NotControllable);
        return;
    }

    FocusSession &session = *m_focus;
    session.halfSize = focusWindowHalfSize(camera.cameraResolutionX, camera.cameraResolutionY);
    session.roiX = qRound(frameX);
    session.roiY = qRound(frameY);
    session.sweepSettings = camera;
    session.search = FocusSweep(range);
    session.sharpness = 0.0;
    session.active = true;
    qInfo().nospace() << "[FocusTap] Sweep-Start ROI=(" << session.roiX.load() << ","
                      << session.roiY.load() << ") half=" << session.halfSize.load() << " range=["
                      << range.min << ".." << range.max << "]";
    emit focusSweepStarted();
    // A receiver may have cancelled.
    if (!session.active)
        return;
    moveFocusToNextPosition();
    session.timer.start();
}

const CameraSettings &CameraController::sweepSettings() const
{
    return m_focus->sweepSettings;
}

void CameraController::cancelFocusSweep()
{
    if (m_focus->active)
        endFocusSweep(m_focus->sweepSettings.focusValue, FocusOutcome::Cancelled);
}

void CameraController::measureSharpness(const cv::Mat &frame, int greyConversion)
{
    FocusSession &session = *m_focus;
    if (!session.active)
        return;
    const auto sharpness =
        focusSharpness(frame, greyConversion, session.roiX, session.roiY, session.halfSize);
    if (!sharpness)
        return;
    session.sharpness = *sharpness;
    ++session.framesMeasured;
}

void CameraController::onFocusTick()
{
    FocusSession &session = *m_focus;
    // The start of the timer may have followed the end of the sweep: the first move failed, and a
    // receiver of that cancelled.
    if (!session.active) {
        session.timer.stop();
        return;
    }
    if (session.awaitedWrite != 0)
        return;
    const std::uint64_t fresh = session.framesMeasured - session.framesAtMove;
    if (fresh < kFreshFrames && session.waitTicks < kMostWaitTicks) {
        ++session.waitTicks;
        return;
    }

    const FocusSweep::Next next = session.search.addScore(session.sharpness);
    emit focusSweepProgress(session.search.measured(), FocusSweep::totalSteps);
    // A receiver may have cancelled.
    if (!session.active)
        return;
    switch (next) {
    case FocusSweep::Next::Move:
        moveFocusToNextPosition();
        break;
    case FocusSweep::Next::Found:
        endFocusSweep(session.search.best(), FocusOutcome::Success);
        break;
    case FocusSweep::Next::NoStructure:
        qInfo().nospace() << "[FocusTap] Keine Struktur (cmax=" << session.search.peak()
                          << " rel=" << session.search.relativeContrast()
                          << ") — Fokus unverändert.";
        endFocusSweep(session.sweepSettings.focusValue, FocusOutcome::NoStructure);
        break;
    }
}

void CameraController::onFocusWritten(const ControlAnswer &answer)
{
    FocusSession &session = *m_focus;
    if (!session.active || session.awaitedWrite == 0 || answer.number < session.awaitedWrite)
        return;
    if (answer.result.noAnswer) {
        endFocusSweep(session.sweepSettings.focusValue, FocusOutcome::NotControllable);
        return;
    }
    // Only now the lens is on its way: frames from before do not count.
    session.awaitedWrite = 0;
    session.framesAtMove = session.framesMeasured;
}

void CameraController::continueFocusSweep()
{
    if (!m_focus->active)
        return;
    // A focus chosen meanwhile is the one to return to.
    m_focus->sweepSettings = m_settings.camera;
    moveFocusToNextPosition();
}

void CameraController::moveFocusToNextPosition()
{
    m_focus->awaitedWrite = applyFocusValue(m_focus->search.position());
    m_focus->framesAtMove = m_focus->framesMeasured;
    m_focus->waitTicks = 0;
}

void CameraController::endFocusSweep(int focusValue, FocusOutcome outcome)
{
    m_focus->timer.stop();
    m_focus->active = false;
    applyFocusValue(focusValue);
    m_settings.camera.focusValue = focusValue;
    if (outcome != FocusOutcome::Cancelled) {
        qInfo().nospace() << "[FocusTap] Sweep-Ende focus=" << focusValue
                          << " outcome=" << static_cast<int>(outcome);
    }
    reportFocusSweep(focusValue, outcome);
}

void CameraController::reportFocusSweep(int focusValue, FocusOutcome outcome)
{
    emit focusSweepFinished(focusValue, static_cast<int>(outcome));
}

} // namespace meridax
