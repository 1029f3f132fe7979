// The profile of the selected camera: saved by the user, restored when the camera starts.

#include "viewmodel/CameraViewModel.h"

namespace meridax {

namespace {

CameraProfile profileOf(const AppSettings &settings)
{
    return settings.cameraProfiles.value(settings.camera.cameraId);
}

} // namespace

bool CameraViewModel::profileExists() const
{
    return m_settings.cameraProfiles.contains(m_settings.camera.cameraId);
}

bool CameraViewModel::profileRestoreOnConnect() const
{
    return profileOf(m_settings).restoreOnConnect;
}

bool CameraViewModel::profileRestoreCalibration() const
{
    return profileOf(m_settings).restoreCalibration;
}

ResolutionCalibration CameraViewModel::profileCalibration() const
{
    return profileOf(m_settings).perResolution.value(resolutionKey(resolution()));
}

void CameraViewModel::setProfileRestoreOnConnect(bool restore)
{
    changeProfile([&](CameraProfile &profile) { profile.restoreOnConnect = restore; });
}

void CameraViewModel::setProfileRestoreCalibration(bool restore)
{
    changeProfile([&](CameraProfile &profile) { profile.restoreCalibration = restore; });
}

void CameraViewModel::saveCameraProfile()
{
    changeProfile([&](CameraProfile &profile) {
        takeIntoProfile(profile, m_settings.camera, m_capabilities.gain.supported);
    });
}

void CameraViewModel::clearCameraProfile()
{
    if (m_settings.cameraProfiles.remove(m_settings.camera.cameraId) == 0)
        return;
    emit profileSettingsChanged();
    m_saveTimer.start();
}

template <typename Change>
void CameraViewModel::changeProfile(Change change)
{
    const QString &id = m_settings.camera.cameraId;
    if (id.isEmpty())
        return;
    change(m_settings.cameraProfiles[id]);
    emit profileSettingsChanged();
    m_saveTimer.start();
}

// The values come back once per camera and the centre once per resolution, so that a stop and a new
// start do not undo what the user changed in between.
void CameraViewModel::restoreProfile()
{
    const CameraProfile profile = profileOf(m_settings);
    if (m_settings.camera.cameraId.isEmpty() || !profile.restoreOnConnect)
        return;
    if (!m_profileRestoredOnce)
        restoreValues(profile, m_settings.camera);

    const QString key = resolutionKey(resolution());
    if (key == m_lastRestoredResolutionKey)
        return;
    if (restoreCenter(profile, m_settings.camera))
        m_calibrationRestorePending = profile.restoreCalibration;
    m_lastRestoredResolutionKey = key;
    emit cameraSettingsChanged();
    emit overlaySettingsChanged();
    emit profileSettingsChanged();
}

void CameraViewModel::forgetRestoredProfile()
{
    m_profileRestoredOnce = false;
    m_lastRestoredResolutionKey.clear();
}

// Only a camera that runs makes a restored calibration valid.
void CameraViewModel::fulfilPendingRestore()
{
    if (!m_calibrationRestorePending)
        return;
    m_calibrationRestorePending = false;
    storeCalibratedAndLocked(true);
    m_saveTimer.start();
}

} // namespace meridax
