#include "viewmodel/CameraViewModel.h"

#include "BuildInfo.h"
#include "settings/SettingsFile.h"
#include "viewmodel/LanguageSwitch.h"

#include <chrono>

namespace meridax {

namespace {

/// Nothing is known to be measured yet: the centre is the middle of the picture.
CenterState centerAtStart(const CameraSettings &camera)
{
    CenterState state;
    const QSize resolution(camera.cameraResolutionX, camera.cameraResolutionY);
    state.place = {camera.cameraId, resolution};
    state.center.position = resolution.isEmpty()
                                ? QPointF(camera.centerX, camera.centerY)
                                : QPointF(resolution.width() * 0.5, resolution.height() * 0.5);
    state.locked = camera.locked;
    return state;
}

} // namespace

CameraViewModel *CameraViewModel::create(QQmlEngine *engine, QJSEngine * /*scriptEngine*/)
{
    if (engine && !qmlEngine())
        setQmlEngine(engine);
    return new CameraViewModel;
}

CameraViewModel::CameraViewModel()
{
    using namespace std::chrono_literals;
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(400ms);

    connectFocusPresets();
    loadCachedLegalDocuments();
    connectServer();
    m_settings = loadSettings();
    // The file holds what was folded in the last run, whether it is to be remembered or not.
    if (!m_settings.rememberCollapsedSections)
        m_settings.collapsedSections.clear();
    // A centre in pixels counts only for the camera and resolution it was measured with, which
    // nobody knows before the camera runs. The lock is the user's own and stays.
    m_center = centerAtStart(m_settings.camera);
    decideCenter(CenterStop());

    connect(&m_saveTimer, &QTimer::timeout, this, &CameraViewModel::writeSettings);
    connectController();
    connectCalibration();
    connectBlobAdvice();
    connectFocus();
    connectCameraList();
    refreshCameras();
    m_controller.updateSettings(m_settings);
    // The window comes first.
    QTimer::singleShot(0, this, &CameraViewModel::contactServer);
}

CameraViewModel::~CameraViewModel()
{
    m_controller.stopCamera();
    writeSettings();
}

void CameraViewModel::connectController()
{
    connect(&m_controller, &CameraController::statusChanged, this, [this](const QString &status) {
        m_connected = status.isEmpty();
        onStatus(status);
    });
    connect(&m_controller, &CameraController::errorOccurred, this, &CameraViewModel::onStatus);
    connect(&m_controller, &CameraController::frameInfoChanged, this, [this](const QString &info) {
        m_frameInfo = info;
        emit frameInfoChanged();
    });
    connect(&m_controller, &CameraController::runningChanged, this,
            &CameraViewModel::onRunningChanged);
    connect(&m_controller, &CameraController::focusRangeDetected, this,
            [this](int minValue, int maxValue) {
                m_settings.camera.focusRangeMin = minValue;
                m_settings.camera.focusRangeMax = maxValue;
                emit cameraSettingsChanged();
            });
    connect(&m_controller, &CameraController::cameraCapabilitiesDetected, this,
            &CameraViewModel::onCapabilitiesDetected);
}

void CameraViewModel::connectServer()
{
    m_supportClient.setBaseUrl(m_serverConfig.apiBaseUrl);
    connect(&m_supportClient, &SupportApiClient::updateInfoFinished, this,
            &CameraViewModel::onUpdateInfo);
    connect(&m_supportClient, &SupportApiClient::legalDocumentFinished, this,
            &CameraViewModel::onLegalDocument);
    connect(&m_supportClient, &SupportApiClient::featureRequestFinished, this,
            &CameraViewModel::onFeatureRequest);
    connect(&m_supportClient, &SupportApiClient::feedbackFinished, this,
            &CameraViewModel::onFeedback);
    connect(&m_supportClient, &SupportApiClient::bugReportFinished, this,
            &CameraViewModel::onBugReport);
}

/// Nothing waits for the server, and without one nobody is told.
void CameraViewModel::contactServer()
{
    checkForUpdates();
    renewLegalDocuments();
}

void CameraViewModel::onStatus(const QString &status)
{
    m_status = status;
    emit statusChanged();
}

void CameraViewModel::onRunningChanged()
{
    m_connected = false;
    emit runningChanged();
    // The signal may be older than the controller's state.
    if (running()) {
        onStatus({});
        const bool restores = m_center.awaitsCamera;
        decideCenter(CenterRun());
        if (restores)
            m_saveTimer.start();
        return;
    }
    // Without an end the controller would go on measuring at the next start, unseen.
    if (m_calibrationActive)
        endCalibration();
    storeCalibrationActive(false);
    setFocusTapModeActive(false);
    decideCenter(CenterStop());
    m_settings.camera.focusRangeMin = 0;
    m_settings.camera.focusRangeMax = 0;
    emit cameraSettingsChanged();
    m_capabilities = {};
    emit cameraCapabilitiesChanged();
}

void CameraViewModel::settingsChanged(Notify notify)
{
    m_controller.updateSettings(m_settings);
    (this->*notify)();
    m_saveTimer.start();
}

void CameraViewModel::writeSettings() const
{
    // Nobody is told of a failure: the program goes on with the settings it has.
    saveSettings(m_settings);
}

QString CameraViewModel::docsUrl() const
{
    return QStringLiteral("https://docs.tarnwick-optics.example/meridax/");
}

QString CameraViewModel::appVersion() const
{
    return build::version();
}

QString CameraViewModel::appCommitSha() const
{
    return build::commit();
}

QString CameraViewModel::appBuildTime() const
{
    return build::buildTime();
}

} // namespace meridax
