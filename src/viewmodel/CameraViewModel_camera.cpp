// Camera selection, start and stop, hardware controls.

#include "viewmodel/CameraViewModel.h"

#include "camera/ExposureScale.h"

#include <QDebug>

#include <algorithm>

namespace meridax {

namespace {

/// Range of the exposure on a camera that does not tell its own: the scale of the Qt fallback.
constexpr ControlRange fallbackExposureRange{.min = -6, .max = 6, .supported = true};

} // namespace

void CameraViewModel::startCamera()
{
    restoreProfile();
    m_profileRestoredOnce = true;
    m_controller.updateSettings(m_settings);
    m_controller.startCamera();
}

void CameraViewModel::stopCamera()
{
    m_controller.stopCamera();
}

void CameraViewModel::refreshCameras()
{
    m_cameras = listCameras(QMediaDevices::videoInputs());
    settleIdentities();
    m_cameraNames.clear();
    qInfo() << "[CameraEnumeration] devices found:" << m_cameras.size();
    for (const CameraDeviceInfo &camera : std::as_const(m_cameras)) {
        qInfo().noquote() << "  -" << camera.name << "id=" << camera.id
                          << "formats=" << camera.formats.size();
        m_cameraNames.append(camera.name);
    }

    const QString previousId = m_settings.camera.cameraId;
    // A centre that waits for its decision calls its camera back.
    const auto isAwaited = [this](const CameraDeviceInfo &camera) {
        return camera.id == m_pending.camera.cameraId;
    };
    const bool back = m_hasPendingCenter && std::ranges::any_of(m_cameras, isAwaited);
    const CameraSettings &wanted = back ? m_pending.camera : m_settings.camera;
    m_selectedCameraIndex = rememberedCameraIndex(m_cameras, wanted.cameraId, wanted.cameraName);
    // Without a device the record keeps the camera that was last there.
    if (hasSelectedCamera())
        storeSelectedCamera();
    snapToNearestFormat();
    const QString &newId = m_settings.camera.cameraId;
    if (!previousId.isEmpty() && !newId.isEmpty() && previousId != newId)
        resetCameraValues();
    moveCenter(false);
    emit cameraListChanged();
    emit cameraSettingsChanged();
    // What the profile holds is told for the camera and the resolution selected now.
    emit profileSettingsChanged();
}

void CameraViewModel::setSelectedCameraIndex(int index)
{
    if (index < 0 || index >= m_cameras.size())
        return;
    const QString previousId = m_settings.camera.cameraId;
    m_selectedCameraIndex = index;
    storeSelectedCamera();
    if (!previousId.isEmpty() && previousId != m_settings.camera.cameraId) {
        m_profileRestoredOnce = false;
        resetCameraValues();
        clearFocusPresets();
    }
    snapToNearestFormat();
    moveCenter(true);
    dropPendingCenterOfElsewhere();
    m_controller.updateSettings(m_settings);
    emit cameraListChanged();
    emit cameraSettingsChanged();
    emit profileSettingsChanged();
    m_saveTimer.start();
}

void CameraViewModel::setSelectedResolutionIndex(int index)
{
    const QList<CameraFormatInfo> formats = selectedFormats();
    if (index < 0 || index >= formats.size())
        return;
    selectFormat(formats.at(index));
    moveCenter(false);
    dropPendingCenterOfElsewhere();
    settingsChanged(&CameraViewModel::cameraSettingsChanged);
    emit profileSettingsChanged();
}

int CameraViewModel::selectedResolutionIndex() const
{
    return nearestFormatIndex(selectedFormats(), resolution());
}

QStringList CameraViewModel::resolutionOptions() const
{
    return resolutionTexts(selectedFormats());
}

bool CameraViewModel::hasSelectedCamera() const
{
    return m_selectedCameraIndex >= 0 && m_selectedCameraIndex < m_cameras.size();
}

QList<CameraFormatInfo> CameraViewModel::selectedFormats() const
{
    return m_cameras.value(m_selectedCameraIndex).formats;
}

ResolutionLimits CameraViewModel::selectedLimits() const
{
    return resolutionLimits(selectedFormats());
}

QSize CameraViewModel::resolution() const
{
    return {m_settings.camera.cameraResolutionX, m_settings.camera.cameraResolutionY};
}

void CameraViewModel::storeSelectedCamera()
{
    const CameraDeviceInfo &device = m_cameras.at(m_selectedCameraIndex);
    CameraSettings &camera = m_settings.camera;
    // The running camera has told its range, and is only listed anew.
    if (camera.cameraId != device.id || !running()) {
        camera.focusRangeMin = device.focusRangeMin;
        camera.focusRangeMax = device.focusRangeMax;
    }
    camera.cameraName = device.name;
    camera.cameraId = device.id;
    camera.cameraIndex = m_selectedCameraIndex;
}

void CameraViewModel::selectFormat(const CameraFormatInfo &format)
{
    m_settings.camera.cameraResolutionX = format.width;
    m_settings.camera.cameraResolutionY = format.height;
}

void CameraViewModel::snapToNearestFormat()
{
    const CameraSettings &measuredWith = m_pending.camera;
    const bool awaited = m_hasPendingCenter && measuredWith.cameraId == m_settings.camera.cameraId;
    const QSize wanted = awaited
                             ? QSize(measuredWith.cameraResolutionX, measuredWith.cameraResolutionY)
                             : resolution();
    const QList<CameraFormatInfo> formats = selectedFormats();
    const int index = nearestFormatIndex(formats, wanted);
    if (index >= 0)
        selectFormat(formats.at(index));
}

void CameraViewModel::resetCameraValues()
{
    CameraSettings &camera = m_settings.camera;
    camera.focusValue = 0;
    camera.captureTimeMs = 0;
    camera.brightness = 0;
    camera.saturation = 50;
    camera.contrast = 50;
    // The gain deliberately stays; centre and lock are moveCenter()'s.
}

void CameraViewModel::storeControl(int &field, int value, const ControlRange &range)
{
    if (range.supported)
        value = std::max(range.min, std::min(value, range.max));
    store(field, value, &CameraViewModel::cameraSettingsChanged);
}

void CameraViewModel::setExposure(int value)
{
    const ControlRange &range = m_capabilities.exposure;
    storeControl(m_settings.camera.captureTimeMs, value,
                 range.supported ? range : fallbackExposureRange);
}

double CameraViewModel::exposureTimeMs() const
{
    const ControlRange &range = m_capabilities.exposure;
    if (!range.supported || (range.canAuto && exposure() <= range.min))
        return 0;
    return exposureMs(exposure(), m_capabilities.exposureScale);
}

void CameraViewModel::setBrightness(int value)
{
    storeControl(m_settings.camera.brightness, value, m_capabilities.brightness);
}

void CameraViewModel::setContrast(int value)
{
    storeControl(m_settings.camera.contrast, value, m_capabilities.contrast);
}

void CameraViewModel::setSaturation(int value)
{
    storeControl(m_settings.camera.saturation, value, m_capabilities.saturation);
}

void CameraViewModel::setGain(int value)
{
    storeControl(m_settings.camera.gain, value, m_capabilities.gain);
}

void CameraViewModel::onCapabilitiesDetected(const CameraCapabilities &caps)
{
    qInfo().nospace() << "[VM] cameraCapabilitiesDetected received:"
                      << "  brightness.supported=" << caps.brightness.supported << " range=["
                      << caps.brightness.min << ".." << caps.brightness.max << "]"
                      << "  contrast.supported=" << caps.contrast.supported
                      << "  saturation.supported=" << caps.saturation.supported
                      << "  gain.supported=" << caps.gain.supported
                      << "  exposure.supported=" << caps.exposure.supported;
    m_capabilities = caps;
    m_gainSupport.insert(m_settings.camera.cameraId, caps.gain.supported);
    migrateExposure();
    emit cameraCapabilitiesChanged();
}

void CameraViewModel::migrateExposure()
{
    const ControlRange &range = m_capabilities.exposure;
    const int former = m_settings.camera.captureTimeMs;
    const int migrated = migratedExposure(former, range, m_capabilities.exposureScale);
    if (migrated == former)
        return;
    store(m_settings.camera.captureTimeMs, migrated, &CameraViewModel::cameraSettingsChanged);
    qInfo() << "[Exposure] migrated old UI value" << former << "to hardware value" << migrated
            << "in range [" << range.min << ".." << range.max << "]";
}

} // namespace meridax
