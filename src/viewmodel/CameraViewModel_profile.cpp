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
    const CameraSettings settings = storableSettings();
    const bool takesGain = this->takesGain(settings.cameraId);
    changeProfile([&](CameraProfile &profile) { takeIntoProfile(profile, settings, takesGain); });
}

/// The accepted centre with the values it was measured with, to be restored.
void CameraViewModel::storePendingInProfile()
{
    CameraSettings settings = pendingCenterElsewhere() ? m_pending.camera : m_settings.camera;
    settings.centerX = m_pending.center.x();
    settings.centerY = m_pending.center.y();
    settings.calibrated = true;
    if (settings.cameraId.isEmpty())
        return;
    const bool takesGain = this->takesGain(settings.cameraId);
    CameraProfile &profile = m_settings.cameraProfiles[settings.cameraId];
    takeIntoProfile(profile, settings, takesGain);
    profile.restoreOnConnect = true;
    profile.restoreCalibration = true;
    emit profileSettingsChanged();
}

/// The present settings with a centre that a profile may hold.
CameraSettings CameraViewModel::storableSettings() const
{
    const ResolutionCalibration center = storableCenter(m_center, profileCalibration());
    CameraSettings settings = m_settings.camera;
    settings.centerX = center.centerX;
    settings.centerY = center.centerY;
    settings.calibrated = center.calibrated;
    return settings;
}

/// A stopped camera tells no capabilities: what it told last counts. Before that only a new profile
/// takes the gain, which may be another camera's.
bool CameraViewModel::takesGain(const QString &cameraId) const
{
    return m_gainSupport.value(cameraId, !m_settings.cameraProfiles.contains(cameraId));
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
    if (!m_settings.cameraProfiles.contains(id)) {
        // What is set now, never the values of an empty record.
        const bool takesGain = this->takesGain(id);
        takeIntoProfile(m_settings.cameraProfiles[id], storableSettings(), takesGain);
    }
    change(m_settings.cameraProfiles[id]);
    emit profileSettingsChanged();
    m_saveTimer.start();
}

// The values come back once per camera and the centre once per resolution, so that a stop and a new
// start do not undo what the user changed in between.
void CameraViewModel::restoreProfile()
{
    const CameraProfile profile = profileOf(m_settings);
    if (m_settings.camera.cameraId.isEmpty() || !profile.restoreOnConnect) {
        decideCenter(CenterStart());
        return;
    }
    const CenterState before = m_center;
    if (!m_profileRestoredOnce) {
        restoreValues(profile, m_settings.camera);
        moveCenter(false);
    }
    decideCenter(CenterStart{profileCalibration(), profile.restoreCalibration});
    if (m_center == before)
        return;
    emit cameraSettingsChanged();
    emit overlaySettingsChanged();
    emit profileSettingsChanged();
}

} // namespace meridax
