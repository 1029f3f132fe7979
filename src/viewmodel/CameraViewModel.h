#pragma once

#include "camera/CameraCapabilities.h"
#include "camera/CameraController.h"
#include "server/LegalDocumentCache.h"
#include "server/MachineGuid.h"
#include "server/ServerConfig.h"
#include "server/SupportApiClient.h"
#include "settings/AppSettings.h"
#include "settings/CenterState.h"
#include "settings/FocusPreset.h"
#include "viewmodel/CameraList.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QMediaDevices>
#include <QObject>
#include <QPointF>
#include <QSet>
#include <QSize>
#include <QStringList>
#include <QTimer>
#include <QTranslator>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <type_traits>

class QJSEngine;
class QQmlEngine;

namespace meridax {

// clang-format off
/// The six properties of one hardware control's range and their getters.
#define MERIDAX_CONTROL_RANGE(control)                                                             \
    Q_PROPERTY(int control##RangeMin READ control##RangeMin NOTIFY cameraCapabilitiesChanged)      \
    Q_PROPERTY(int control##RangeMax READ control##RangeMax NOTIFY cameraCapabilitiesChanged)      \
    Q_PROPERTY(int control##RangeStep READ control##RangeStep NOTIFY cameraCapabilitiesChanged)    \
    Q_PROPERTY(                                                                                    \
        int control##RangeDefault READ control##RangeDefault NOTIFY cameraCapabilitiesChanged)     \
    Q_PROPERTY(bool control##Supported READ control##Supported NOTIFY cameraCapabilitiesChanged)   \
    Q_PROPERTY(bool control##CanAuto READ control##CanAuto NOTIFY cameraCapabilitiesChanged)       \
public:                                                                                            \
    int control##RangeMin() const { return m_capabilities.control.min; }                           \
    int control##RangeMax() const { return m_capabilities.control.max; }                           \
    int control##RangeStep() const { return m_capabilities.control.step; }                         \
    int control##RangeDefault() const { return m_capabilities.control.defaultValue; }              \
    bool control##Supported() const { return m_capabilities.control.supported; }                   \
    bool control##CanAuto() const { return m_capabilities.control.canAuto; }                       \
                                                                                                   \
private:

/// A setting of the camera, the overlay or the detector.
#define MERIDAX_SETTING(type, name, setter, field, notify)                                         \
    Q_PROPERTY(type name READ name WRITE setter NOTIFY notify)                                     \
public:                                                                                            \
    type name() const { return m_settings.field; }                                                 \
    void setter(const type &value)                                                                 \
    {                                                                                              \
        store(m_settings.field, value, &CameraViewModel::notify);                                  \
    }                                                                                              \
                                                                                                   \
private:

#define MERIDAX_OVERLAY_SETTING(type, name, setter, field)                                         \
    MERIDAX_SETTING(type, name, setter, camera.field, overlaySettingsChanged)
#define MERIDAX_BLOB_SETTING(type, name, setter, field)                                            \
    MERIDAX_SETTING(type, name, setter, blob.field, blobSettingsChanged)

/// A setting of the application, which does not concern the camera.
#define MERIDAX_APP_SETTING(type, name, setter)                                                    \
    Q_PROPERTY(type name READ name WRITE setter NOTIFY appSettingsChanged)                         \
public:                                                                                            \
    type name() const { return m_settings.name; }                                                  \
    void setter(const type &value) { storeApplication(m_settings.name, value); }                   \
                                                                                                   \
private:
// clang-format on

/// The one object the interface sees: every value the panels show is a property of it, everything
/// they do is one of its slots. It owns the camera controller, the client of the support server and
/// the only live copy of the settings, hands the whole record to the controller after each change
/// and schedules the writing of the settings file.
///
/// Lives in the GUI thread; holds no lock. Positions and lengths are in pixels of the camera frame
/// (origin top left, y downwards) unless they say otherwise, angles in degrees. Setters do not
/// fail; a slot ignores an argument out of range without a message.
class CameraViewModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ViewModel)
    QML_SINGLETON

    // Live camera
    Q_PROPERTY(bool running READ running NOTIFY runningChanged)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    /// A running camera sends pictures and answers.
    Q_PROPERTY(bool connected READ connected NOTIFY statusChanged)
    Q_PROPERTY(QString frameInfo READ frameInfo NOTIFY frameInfoChanged)
    Q_PROPERTY(int blobCount READ blobCount NOTIFY blobCountChanged)

    // Spot focus
    Q_PROPERTY(bool focusTapModeActive READ focusTapModeActive WRITE setFocusTapModeActive NOTIFY
                   focusTapModeChanged)
    Q_PROPERTY(bool focusSweepActive READ focusSweepActive NOTIFY focusSweepChanged)
    Q_PROPERTY(double focusSweepFraction READ focusSweepFraction NOTIFY focusSweepProgressChanged)

    // Focus presets; maps with the keys "name", "focusValue" and "hasMarkers"
    Q_PROPERTY(QVariantList focusPresets READ focusPresets NOTIFY focusPresetsChanged)
    Q_PROPERTY(
        int activeFocusPresetIndex READ activeFocusPresetIndex NOTIFY focusPresetActiveChanged)
    Q_PROPERTY(
        bool activeFocusPresetDirty READ activeFocusPresetDirty NOTIFY focusPresetActiveChanged)

    // Calibration
    Q_PROPERTY(bool calibrationActive READ calibrationActive NOTIFY calibrationActiveChanged)
    Q_PROPERTY(int currentGuideIndex READ currentGuideIndex NOTIFY guideStateChanged)
    Q_PROPERTY(int totalGuidePositions READ totalGuidePositions NOTIFY guideStateChanged)
    Q_PROPERTY(bool blobInSector READ blobInSector NOTIFY guideStateChanged)
    Q_PROPERTY(double blobSectorAlignment READ blobSectorAlignment NOTIFY guideStateChanged)
    Q_PROPERTY(QVariantList measurements READ measurements NOTIFY measurementsChanged)
    Q_PROPERTY(double pendingCenterX READ pendingCenterX NOTIFY pendingCenterChanged)
    Q_PROPERTY(double pendingCenterY READ pendingCenterY NOTIFY pendingCenterChanged)
    Q_PROPERTY(bool hasPendingCenter READ hasPendingCenter NOTIFY pendingCenterChanged)
    Q_PROPERTY(QString pendingCenterCamera READ pendingCenterCamera NOTIFY pendingCenterChanged)
    Q_PROPERTY(bool pendingCenterElsewhere READ pendingCenterElsewhere NOTIFY pendingCenterChanged)
    Q_PROPERTY(double fitRadius READ fitRadius NOTIFY fitResultChanged)
    Q_PROPERTY(double fitStdDev READ fitStdDev NOTIFY fitResultChanged)
    Q_PROPERTY(int fitPointCount READ fitPointCount NOTIFY fitResultChanged)
    Q_PROPERTY(bool fitResultValid READ fitResultValid NOTIFY fitResultChanged)
    Q_PROPERTY(double centerSigma READ centerSigma NOTIFY fitResultChanged)
    Q_PROPERTY(double coverageGapDeg READ coverageGapDeg NOTIFY fitResultChanged)
    Q_PROPERTY(bool coveragePoor READ coveragePoor NOTIFY fitResultChanged)
    Q_PROPERTY(int dominantOrder READ dominantOrder NOTIFY fitResultChanged)
    Q_PROPERTY(double dominantAmp READ dominantAmp NOTIFY fitResultChanged)
    Q_PROPERTY(int qualityLevel READ qualityLevel NOTIFY fitResultChanged)
    Q_PROPERTY(bool qualityAssessable READ qualityAssessable NOTIFY fitResultChanged)
    Q_PROPERTY(int measureFramesDone READ measureFramesDone NOTIFY measureProgressChanged)
    Q_PROPERTY(int measureFramesTotal READ measureFramesTotal NOTIFY measureProgressChanged)
    Q_PROPERTY(bool measureInProgress READ measureInProgress NOTIFY measureProgressChanged)
    Q_PROPERTY(double measureProgressRatio READ measureProgressRatio NOTIFY measureProgressChanged)
    // Why the mark is not found; a map as blobAdviceMap() tells
    Q_PROPERTY(QVariantMap blobAdvice READ blobAdvice NOTIFY blobAdviceChanged)
    Q_PROPERTY(bool blobAdviceApplied READ blobAdviceApplied NOTIFY blobAdviceChanged)
    Q_PROPERTY(bool calibrated READ calibrated NOTIFY calibratedChanged)
    Q_PROPERTY(bool locked READ locked NOTIFY lockStateChanged)
    Q_PROPERTY(int calibrationPositions READ calibrationPositions WRITE setCalibrationPositions
                   NOTIFY calibrationSettingsChanged)
    Q_PROPERTY(int calibrationMeasureFrames READ calibrationMeasureFrames WRITE
                   setCalibrationMeasureFrames NOTIFY calibrationSettingsChanged)

    // Camera selection and values
    Q_PROPERTY(QStringList cameraNames READ cameraNames NOTIFY cameraListChanged)
    Q_PROPERTY(int selectedCameraIndex READ selectedCameraIndex WRITE setSelectedCameraIndex NOTIFY
                   cameraListChanged)
    Q_PROPERTY(QString selectedCameraName READ selectedCameraName NOTIFY cameraListChanged)
    Q_PROPERTY(int focusRangeMin READ focusRangeMin NOTIFY cameraListChanged)
    Q_PROPERTY(int focusRangeMax READ focusRangeMax NOTIFY cameraListChanged)
    Q_PROPERTY(QStringList resolutionOptions READ resolutionOptions NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int selectedResolutionIndex READ selectedResolutionIndex WRITE
                   setSelectedResolutionIndex NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int resolutionMinX READ resolutionMinX NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int resolutionMinY READ resolutionMinY NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int resolutionMaxX READ resolutionMaxX NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int resolutionMaxY READ resolutionMaxY NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int resolutionX READ resolutionX WRITE setResolutionX NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int resolutionY READ resolutionY WRITE setResolutionY NOTIFY cameraSettingsChanged)
    MERIDAX_SETTING(int, focusValue, setFocusValue, camera.focusValue, cameraSettingsChanged)
    Q_PROPERTY(int exposure READ exposure WRITE setExposure NOTIFY cameraSettingsChanged)
    /// Read anew with the camera's capabilities as well; 0 while automatic or unknown.
    Q_PROPERTY(double exposureTimeMs READ exposureTimeMs NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int brightness READ brightness WRITE setBrightness NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int contrast READ contrast WRITE setContrast NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int saturation READ saturation WRITE setSaturation NOTIFY cameraSettingsChanged)
    Q_PROPERTY(int gain READ gain WRITE setGain NOTIFY cameraSettingsChanged)
    MERIDAX_CONTROL_RANGE(exposure)
    MERIDAX_CONTROL_RANGE(brightness)
    MERIDAX_CONTROL_RANGE(contrast)
    MERIDAX_CONTROL_RANGE(saturation)
    MERIDAX_CONTROL_RANGE(gain)
    Q_PROPERTY(bool focusSupported READ focusSupported NOTIFY cameraCapabilitiesChanged)
    Q_PROPERTY(bool focusCanAuto READ focusCanAuto NOTIFY cameraCapabilitiesChanged)

    // Profile of the selected camera; the centre is that of the selected resolution
    Q_PROPERTY(bool profileExists READ profileExists NOTIFY profileSettingsChanged)
    Q_PROPERTY(bool profileRestoreOnConnect READ profileRestoreOnConnect WRITE
                   setProfileRestoreOnConnect NOTIFY profileSettingsChanged)
    Q_PROPERTY(bool profileRestoreCalibration READ profileRestoreCalibration WRITE
                   setProfileRestoreCalibration NOTIFY profileSettingsChanged)
    Q_PROPERTY(double profileCenterX READ profileCenterX NOTIFY profileSettingsChanged)
    Q_PROPERTY(double profileCenterY READ profileCenterY NOTIFY profileSettingsChanged)
    Q_PROPERTY(bool profileCalibrated READ profileCalibrated NOTIFY profileSettingsChanged)

    // Overlay. Line widths are in screen pixels; line styles and cross types as in AppSettings.h.
    Q_PROPERTY(double centerX READ centerX WRITE setCenterX NOTIFY overlaySettingsChanged)
    Q_PROPERTY(double centerY READ centerY WRITE setCenterY NOTIFY overlaySettingsChanged)
    MERIDAX_OVERLAY_SETTING(double, offsetX, setOffsetX, centerOffsetX)
    MERIDAX_OVERLAY_SETTING(double, offsetY, setOffsetY, centerOffsetY)
    MERIDAX_OVERLAY_SETTING(bool, offsetEnabled, setOffsetEnabled, centerOffsetEnabled)
    MERIDAX_OVERLAY_SETTING(double, zoom, setZoom, zoom)
    MERIDAX_OVERLAY_SETTING(bool, circle1Enabled, setCircle1Enabled, circle1.enabled)
    MERIDAX_OVERLAY_SETTING(double, circle1Radius, setCircle1Radius, circle1.radius)
    MERIDAX_OVERLAY_SETTING(QColor, circle1Color, setCircle1Color, circle1.color)
    MERIDAX_OVERLAY_SETTING(double, circle1LineWidth, setCircle1LineWidth, circle1.lineWidth)
    MERIDAX_OVERLAY_SETTING(int, circle1LineStyle, setCircle1LineStyle, circle1.lineStyle)
    MERIDAX_OVERLAY_SETTING(bool, circle2Enabled, setCircle2Enabled, circle2.enabled)
    MERIDAX_OVERLAY_SETTING(double, circle2Radius, setCircle2Radius, circle2.radius)
    MERIDAX_OVERLAY_SETTING(QColor, circle2Color, setCircle2Color, circle2.color)
    MERIDAX_OVERLAY_SETTING(double, circle2LineWidth, setCircle2LineWidth, circle2.lineWidth)
    MERIDAX_OVERLAY_SETTING(int, circle2LineStyle, setCircle2LineStyle, circle2.lineStyle)
    MERIDAX_OVERLAY_SETTING(bool, circle3Enabled, setCircle3Enabled, circle3.enabled)
    MERIDAX_OVERLAY_SETTING(double, circle3Radius, setCircle3Radius, circle3.radius)
    MERIDAX_OVERLAY_SETTING(QColor, circle3Color, setCircle3Color, circle3.color)
    MERIDAX_OVERLAY_SETTING(double, circle3LineWidth, setCircle3LineWidth, circle3.lineWidth)
    MERIDAX_OVERLAY_SETTING(int, circle3LineStyle, setCircle3LineStyle, circle3.lineStyle)
    MERIDAX_OVERLAY_SETTING(bool, crossEnabled, setCrossEnabled, cross.enabled)
    MERIDAX_OVERLAY_SETTING(double, crossAngle, setCrossAngle, cross.angle)
    MERIDAX_OVERLAY_SETTING(QColor, crossColor, setCrossColor, cross.color)
    MERIDAX_OVERLAY_SETTING(double, crossLineWidth, setCrossLineWidth, cross.lineWidth)
    MERIDAX_OVERLAY_SETTING(int, crossLineStyle, setCrossLineStyle, cross.lineStyle)
    MERIDAX_OVERLAY_SETTING(int, crossType, setCrossType, cross.type)

    // Blob detector; areas in squared pixels of the detection image
    MERIDAX_BLOB_SETTING(double, blobMinThreshold, setBlobMinThreshold, minThreshold)
    MERIDAX_BLOB_SETTING(double, blobMaxThreshold, setBlobMaxThreshold, maxThreshold)
    MERIDAX_BLOB_SETTING(bool, blobFilterArea, setBlobFilterArea, filterByArea)
    MERIDAX_BLOB_SETTING(double, blobMinArea, setBlobMinArea, minArea)
    MERIDAX_BLOB_SETTING(double, blobMaxArea, setBlobMaxArea, maxArea)
    MERIDAX_BLOB_SETTING(bool, blobFilterCircularity, setBlobFilterCircularity, filterByCircularity)
    MERIDAX_BLOB_SETTING(double, blobMinCircularity, setBlobMinCircularity, minCircularity)
    MERIDAX_BLOB_SETTING(bool, blobFilterInertia, setBlobFilterInertia, filterByInertia)
    MERIDAX_BLOB_SETTING(double, blobMinInertiaRatio, setBlobMinInertiaRatio, minInertiaRatio)

    // Application settings. The saved window geometry is in screen pixels and never notified.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY appSettingsChanged)
    MERIDAX_APP_SETTING(bool, darkMode, setDarkMode)
    MERIDAX_APP_SETTING(QString, screenshotPath, setScreenshotPath)
    MERIDAX_APP_SETTING(bool, screenshotIncludeOverlays, setScreenshotIncludeOverlays)
    MERIDAX_APP_SETTING(bool, focusPresetIncludeMarkers, setFocusPresetIncludeMarkers)
    MERIDAX_APP_SETTING(bool, focusPresetShowValue, setFocusPresetShowValue)
    MERIDAX_APP_SETTING(bool, cameraPanelExpandedAtStart, setCameraPanelExpandedAtStart)
    MERIDAX_APP_SETTING(bool, overlayPanelExpandedAtStart, setOverlayPanelExpandedAtStart)
    MERIDAX_APP_SETTING(bool, showTooltips, setShowTooltips)
    MERIDAX_APP_SETTING(bool, showZoomOverlay, setShowZoomOverlay)
    Q_PROPERTY(bool rememberCollapsedSections READ rememberCollapsedSections WRITE
                   setRememberCollapsedSections NOTIFY appSettingsChanged)
    // Constant for QML: with a signal, each change of a setting would put the window back to them.
    Q_PROPERTY(int savedWindowWidth READ savedWindowWidth CONSTANT)
    Q_PROPERTY(int savedWindowHeight READ savedWindowHeight CONSTANT)
    Q_PROPERTY(int savedWindowX READ savedWindowX CONSTANT)
    Q_PROPERTY(int savedWindowY READ savedWindowY CONSTANT)
    Q_PROPERTY(bool savedWindowMaximized READ savedWindowMaximized CONSTANT)

    // Update and server; release notes are Markdown of the server's
    Q_PROPERTY(bool updateAvailable READ updateAvailable NOTIFY updateInfoChanged)
    Q_PROPERTY(bool updateBannerVisible READ updateBannerVisible NOTIFY updateInfoChanged)
    Q_PROPERTY(bool isBetaTester READ isBetaTester NOTIFY updateInfoChanged)
    Q_PROPERTY(bool bugReportsEnabled READ bugReportsEnabled NOTIFY updateInfoChanged)
    Q_PROPERTY(bool featureRequestsEnabled READ featureRequestsEnabled NOTIFY updateInfoChanged)
    Q_PROPERTY(QString updateVersion READ updateVersion NOTIFY updateInfoChanged)
    Q_PROPERTY(QString updateChannel READ updateChannel NOTIFY updateInfoChanged)
    Q_PROPERTY(QString updateDownloadUrl READ updateDownloadUrl NOTIFY updateInfoChanged)
    Q_PROPERTY(QString updateReleaseNotes READ updateReleaseNotes NOTIFY updateInfoChanged)
    Q_PROPERTY(QString latestStableVersion READ latestStableVersion NOTIFY updateInfoChanged)
    Q_PROPERTY(
        QString latestStableDownloadUrl READ latestStableDownloadUrl NOTIFY updateInfoChanged)
    Q_PROPERTY(QString serverApiVersion READ serverApiVersion NOTIFY serverInfoStateChanged)
    Q_PROPERTY(QString serverCommitSha READ serverCommitSha NOTIFY serverInfoStateChanged)
    Q_PROPERTY(QString serverBuildTime READ serverBuildTime NOTIFY serverInfoStateChanged)

    // Support: one state for bug reports, feature requests and feedback
    Q_PROPERTY(bool bugReportPending READ bugReportPending NOTIFY bugReportStateChanged)
    Q_PROPERTY(bool bugReportSuccess READ bugReportSuccess NOTIFY bugReportStateChanged)
    /// A bug report has been sent and is not answered yet, also of a form that is closed. Its
    /// success would end the offer to send the report of a crash.
    Q_PROPERTY(bool bugReportUnderWay READ bugReportUnderWay NOTIFY bugReportStateChanged)
    Q_PROPERTY(QString bugReportError READ bugReportError NOTIFY bugReportStateChanged)
    Q_PROPERTY(QString bugReportMessage READ bugReportMessage NOTIFY bugReportStateChanged)

    // Crash of an earlier run; both are read from the file each time
    Q_PROPERTY(bool hasUnsentCrash READ hasUnsentCrash NOTIFY crashStateChanged)
    Q_PROPERTY(QString lastCrashReport READ lastCrashReport NOTIFY crashStateChanged)

    // Legal documents; Markdown of the server's
    Q_PROPERTY(QString eulaVersion READ eulaVersion NOTIFY legalDocsChanged)
    Q_PROPERTY(QString eulaMarkdown READ eulaMarkdown NOTIFY legalDocsChanged)
    Q_PROPERTY(QString privacyVersion READ privacyVersion NOTIFY legalDocsChanged)
    Q_PROPERTY(QString privacyMarkdown READ privacyMarkdown NOTIFY legalDocsChanged)
    Q_PROPERTY(bool legalDocsLoading READ legalDocsLoading NOTIFY legalDocsChanged)
    Q_PROPERTY(bool legalDocsReady READ legalDocsReady NOTIFY legalDocsChanged)
    Q_PROPERTY(QString legalDocsError READ legalDocsError NOTIFY legalDocsChanged)

    // Constants
    Q_PROPERTY(QString docsUrl READ docsUrl CONSTANT)
    Q_PROPERTY(QString appVersion READ appVersion CONSTANT)
    Q_PROPERTY(QString appCommitSha READ appCommitSha CONSTANT)
    Q_PROPERTY(QString appBuildTime READ appBuildTime CONSTANT)
    Q_PROPERTY(QString installedReleaseNotes READ installedReleaseNotes CONSTANT)
    Q_PROPERTY(QString serverHost READ serverHost CONSTANT)
    Q_PROPERTY(meridax::CameraController *controller READ controller CONSTANT)

public:
    /// Factory of the QML singleton; the engine owns the result. The first engine given is
    /// remembered for the language switch.
    static CameraViewModel *create(QQmlEngine *engine, QJSEngine *scriptEngine);
    /// Stops the camera and writes the settings file.
    ~CameraViewModel() override;

    bool running() const { return m_controller.isRunning(); }
    QString status() const { return m_status; }
    bool connected() const { return m_connected; }
    QString frameInfo() const { return m_frameInfo; }
    int blobCount() const { return m_blobCount; }

    bool focusTapModeActive() const { return m_focusTapModeActive; }
    void setFocusTapModeActive(bool active);
    bool focusSweepActive() const { return m_focusSweepActive; }
    double focusSweepFraction() const { return m_focusSweepFraction; }

    QVariantList focusPresets() const;
    int activeFocusPresetIndex() const { return m_activeFocusPresetIndex; }
    bool activeFocusPresetDirty() const { return m_activeFocusPresetDirty; }

    bool calibrationActive() const { return m_calibrationActive; }
    int currentGuideIndex() const { return m_currentGuideIndex; }
    int totalGuidePositions() const { return m_totalGuidePositions; }
    bool blobInSector() const { return m_blobInSector; }
    double blobSectorAlignment() const { return m_blobSectorAlignment; }
    QVariantMap blobAdvice() const { return m_blobAdvice; }
    bool blobAdviceApplied() const { return m_blobBeforeAdvice.has_value(); }
    QVariantList measurements() const { return m_measurements; }
    double pendingCenterX() const { return m_pending.center.x(); }
    double pendingCenterY() const { return m_pending.center.y(); }
    bool hasPendingCenter() const { return m_hasPendingCenter; }
    /// The camera and the resolution the pending centre was measured with, as text; empty without
    /// a camera.
    QString pendingCenterCamera() const;
    /// The pending centre was measured with another camera or resolution than the selected one.
    bool pendingCenterElsewhere() const;
    double fitRadius() const { return m_fitRadius; }
    double fitStdDev() const { return m_fitStdDev; }
    int fitPointCount() const { return m_fitPointCount; }
    bool fitResultValid() const;
    double centerSigma() const { return m_centerSigma; }
    double coverageGapDeg() const { return m_coverageGapDeg; }
    bool coveragePoor() const;
    int dominantOrder() const { return m_dominantOrder; }
    double dominantAmp() const { return m_dominantAmp; }
    int qualityLevel() const;
    bool qualityAssessable() const;
    int measureFramesDone() const { return m_measureFramesDone; }
    int measureFramesTotal() const { return m_measureFramesTotal; }
    bool measureInProgress() const { return m_measureFramesTotal > 0; }
    double measureProgressRatio() const;
    bool calibrated() const { return m_settings.camera.calibrated; }
    bool locked() const { return m_settings.camera.locked; }
    int calibrationPositions() const { return m_settings.calibrationPositions; }
    void setCalibrationPositions(int positions);
    int calibrationMeasureFrames() const { return m_settings.calibrationMeasureFrames; }
    void setCalibrationMeasureFrames(int frames);

    QStringList cameraNames() const { return m_cameraNames; }
    int selectedCameraIndex() const { return m_selectedCameraIndex; }
    void setSelectedCameraIndex(int index);
    QString selectedCameraName() const { return m_cameraNames.value(m_selectedCameraIndex); }
    int resolutionX() const { return m_settings.camera.cameraResolutionX; }
    void setResolutionX(int width) { setResolution({width, resolutionY()}); }
    int resolutionY() const { return m_settings.camera.cameraResolutionY; }
    void setResolutionY(int height) { setResolution({resolutionX(), height}); }
    int focusRangeMin() const { return m_settings.camera.focusRangeMin; }
    int focusRangeMax() const { return m_settings.camera.focusRangeMax; }
    bool focusSupported() const { return m_capabilities.focus.supported; }
    bool focusCanAuto() const { return m_capabilities.focus.canAuto; }
    QStringList resolutionOptions() const;
    int selectedResolutionIndex() const;
    void setSelectedResolutionIndex(int index);
    int resolutionMinX() const { return selectedLimits().smallest.width(); }
    int resolutionMinY() const { return selectedLimits().smallest.height(); }
    int resolutionMaxX() const { return selectedLimits().largest.width(); }
    int resolutionMaxY() const { return selectedLimits().largest.height(); }
    int exposure() const { return m_settings.camera.captureTimeMs; }
    void setExposure(int value);
    double exposureTimeMs() const;
    int brightness() const { return m_settings.camera.brightness; }
    void setBrightness(int value);
    int contrast() const { return m_settings.camera.contrast; }
    void setContrast(int value);
    int saturation() const { return m_settings.camera.saturation; }
    void setSaturation(int value);
    int gain() const { return m_settings.camera.gain; }
    void setGain(int value);

    bool profileExists() const;
    bool profileRestoreOnConnect() const;
    void setProfileRestoreOnConnect(bool restore);
    bool profileRestoreCalibration() const;
    void setProfileRestoreCalibration(bool restore);
    double profileCenterX() const { return profileCalibration().centerX; }
    double profileCenterY() const { return profileCalibration().centerY; }
    bool profileCalibrated() const { return profileCalibration().calibrated; }

    double centerX() const { return m_settings.camera.centerX; }
    void setCenterX(double x) { setCenter({x, centerY()}); }
    double centerY() const { return m_settings.camera.centerY; }
    void setCenterY(double y) { setCenter({centerX(), y}); }

    QString language() const { return m_settings.language; }
    void setLanguage(const QString &language);
    bool rememberCollapsedSections() const { return m_settings.rememberCollapsedSections; }
    void setRememberCollapsedSections(bool remember);
    int savedWindowWidth() const { return m_settings.windowWidth; }
    int savedWindowHeight() const { return m_settings.windowHeight; }
    int savedWindowX() const { return m_settings.windowX; }
    int savedWindowY() const { return m_settings.windowY; }
    bool savedWindowMaximized() const { return m_settings.windowMaximized; }

    bool updateAvailable() const;
    bool updateBannerVisible() const { return m_updateBannerVisible; }
    bool isBetaTester() const { return m_updateInfo.isBetaTester; }
    bool bugReportsEnabled() const { return m_updateInfo.bugReportsEnabled; }
    bool featureRequestsEnabled() const { return m_updateInfo.featureRequestsEnabled; }
    QString updateVersion() const { return m_updateInfo.latest.version; }
    QString updateChannel() const { return m_updateInfo.latest.channel; }
    QString updateDownloadUrl() const { return m_updateInfo.latest.downloadUrl; }
    QString updateReleaseNotes() const;
    QString latestStableVersion() const { return m_updateInfo.latestStable.version; }
    QString latestStableDownloadUrl() const { return m_updateInfo.latestStable.downloadUrl; }
    QString serverApiVersion() const { return m_updateInfo.server.apiVersion; }
    QString serverCommitSha() const { return m_updateInfo.server.commitSha; }
    QString serverBuildTime() const { return m_updateInfo.server.buildTime; }

    bool bugReportPending() const { return m_bugReportPending; }
    bool bugReportSuccess() const { return m_bugReportSuccess; }
    bool bugReportUnderWay() const { return !m_bugReportsUnderWay.isEmpty(); }
    QString bugReportError() const { return m_bugReportError; }
    QString bugReportMessage() const { return m_bugReportMessage; }

    bool hasUnsentCrash() const;
    QString lastCrashReport() const;

    QString eulaVersion() const { return m_legalDocs.eulaVersion; }
    QString eulaMarkdown() const;
    QString privacyVersion() const { return m_legalDocs.privacyVersion; }
    QString privacyMarkdown() const;
    bool legalDocsLoading() const { return m_legalDocsLoading; }
    bool legalDocsReady() const;
    QString legalDocsError() const { return m_legalDocsError; }

    QString docsUrl() const;
    QString appVersion() const;
    QString appCommitSha() const;
    QString appBuildTime() const;
    /// Markdown: what is new in this and the earlier versions.
    QString installedReleaseNotes() const;
    /// The address of the support server.
    QString serverHost() const { return m_serverConfig.apiBaseUrl; }
    CameraController *controller() { return &m_controller; }

public slots:
    /// Focuses on what is at that point of the frame; acts in tap mode only and not while a sweep
    /// runs.
    void requestFocusTap(double frameX, double frameY);
    /// Remembers the window's normal geometry (screen pixels) and writes the file at once. Below
    /// 400 x 400 only `maximized` is taken.
    void saveWindowGeometry(int x, int y, int width, int height, bool maximized);
    /// Keeps focus, camera values, zoom and, by the setting, circles and crosshair under the
    /// trimmed name, or under a number in place of an empty one.
    void addFocusPreset(const QString &name);
    /// Goes back to the values of a preset, which becomes the active one.
    void applyFocusPreset(int index);
    void removeFocusPreset(int index);
    /// An empty name changes nothing.
    void renameFocusPreset(int index, const QString &newName);
    /// Captures the present values anew under the preset's name.
    void updateFocusPreset(int index);
    /// Saves the last frame without the overlay; the path of the file, empty on failure.
    QString captureScreenshot() const;
    /// The path for the next screenshot, whose folder exists then; empty on failure.
    QString nextScreenshotFilePath() const;
    void noteScreenshotSaved(const QString &fullPath) const;
    /// Writes the image as a PNG file, wholly or not at all.
    bool saveScreenshot(const QImage &image, const QString &fullPath) const;
    /// Whether the section `key` was left closed, `defaultCollapsed` when nothing is remembered.
    bool sectionCollapsed(const QString &key, bool defaultCollapsed) const;
    void setSectionCollapsed(const QString &key, bool collapsed);

    /// Hides the update banner for this version, also after a restart.
    void dismissUpdateBanner();
    /// Opens the download address of the update in the browser.
    void openUpdateDownload() const;
    /// Opens the download address of the latest stable version in the browser.
    void openStableDownload() const;
    /// Opens a link of the server's Markdown in the browser, if it is http or https.
    void openLink(const QString &address) const;

    /// Sends a bug report without the log. Like the other submissions it does nothing while one is
    /// under way; the result is told by bugReportStateChanged. The screenshot is a file in Base64
    /// with its type, or empty.
    void submitBugReport(const QString &title, const QString &description,
                         const QString &screenshotBase64, const QString &screenshotMime,
                         const QString &category = {});
    void clearBugReportState();
    /// Reads a PNG or JPEG file of at most 5 MB, given as a path or as a file URL. The map has
    /// "success" and either "error", or "base64", "mime" and "sizeBytes".
    QVariantMap loadScreenshotFile(const QString &path) const;
    /// The newest `lines` lines of the log, all that are remembered for `lines` below 1.
    QString getLogTail(int lines = 200) const;
    void copyToClipboard(const QString &text);
    /// Sends the report of the crash as a bug report, after the user's own words. Does nothing
    /// while a bug report is under way, which may be the same.
    void sendCrashReport(const QString &additionalDescription = {});
    /// Drops the report of the crash without sending it. One that cannot be removed is left alone
    /// for the rest of the run.
    void dismissCrashReport();
    /// The title under which the report of the crash is sent; empty without one.
    QString crashReportTitle() const;
    void submitBugReportWithLogs(const QString &title, const QString &description,
                                 const QString &screenshotBase64, const QString &screenshotMime,
                                 bool includeLogs, const QString &category = {});
    void submitFeatureRequest(const QString &title, const QString &description,
                              const QString &screenshotBase64, const QString &screenshotMime,
                              const QString &category = {});
    /// `rating` is 1 to 5; any other sends nothing.
    void submitFeedback(int rating, const QString &comment);
    /// Fetches the legal texts anew; those in memory are dropped at once.
    void fetchLegalDocuments();

    /// Starts the selected camera; success is known when `running` turns true.
    void startCamera();
    void stopCamera();
    /// Lists the attached cameras anew and selects the remembered one, or else the first.
    void refreshCameras();

    /// Keeps the present values and the centre for when the camera connects again.
    void saveCameraProfile();
    void clearCameraProfile();

    /// Begins a calibration of `calibrationPositions` positions; a pending centre is dropped.
    void startCalibration();
    void measurePosition();
    void cancelCalibration();
    /// Makes the pending centre the image centre and sets the lock; nothing without one. With
    /// `intoProfile` the profile of its camera takes it, to be restored. A centre of another camera
    /// or resolution than the selected one waits until that is selected again.
    void acceptPendingCenter(bool intoProfile = false);
    void discardPendingCenter();
    void unlockCalibration();
    void lockCalibration();
    /// Sets the detector values that the advice proposes; nothing without a proposal.
    void applyBlobAdvice();
    /// Takes them back, as long as nobody has changed a value of the detector since.
    void undoBlobAdvice();

signals:
    void runningChanged();
    void statusChanged();
    void frameInfoChanged();
    void blobCountChanged();
    void focusTapModeChanged();
    void focusSweepChanged();
    void focusSweepProgressChanged();
    /// A tap was taken, at this point of the frame.
    void focusTapRequested(double frameX, double frameY);
    /// A sweep ended with that FocusOutcome; its focus value is stored by then.
    void focusSweepFeedback(int outcome);
    void focusPresetsChanged();
    void focusPresetActiveChanged();
    void calibrationActiveChanged();
    void guideStateChanged();
    void measurementsChanged();
    void pendingCenterChanged();
    /// The pending centre went because the user chose another camera or resolution.
    void pendingCenterLost();
    void fitResultChanged();
    void measureProgressChanged();
    void calibratedChanged();
    void lockStateChanged();
    void cameraListChanged();
    void cameraSettingsChanged();
    void cameraCapabilitiesChanged();
    void overlaySettingsChanged();
    void blobSettingsChanged();
    void profileSettingsChanged();
    void calibrationSettingsChanged();
    void appSettingsChanged();
    void updateInfoChanged();
    void serverInfoStateChanged();
    void bugReportStateChanged();
    void crashStateChanged();
    void legalDocsChanged();
    void blobAdviceChanged();

private:
    using Notify = void (CameraViewModel::*)();

    CameraViewModel();
    void connectController();
    void connectCalibration();
    void connectBlobAdvice();
    void storeBlobAdvice(const QVariantMap &advice, const std::optional<BlobSettings> &proposal);
    void setBlobSettings(const BlobSettings &settings);
    void connectFocus();
    void connectFocusPresets();
    void connectServer();

    /// The common end of a setter that concerns the camera: the controller takes the whole record,
    /// the interface hears of it, the file is written after the last of a burst of changes.
    void settingsChanged(Notify notify);

    template <typename T>
    void store(T &field, const std::type_identity_t<T> &value, Notify notify)
    {
        field = value;
        settingsChanged(notify);
    }

    /// Application settings do not concern the camera; an equal value changes nothing.
    template <typename T>
    void storeApplication(T &field, const std::type_identity_t<T> &value)
    {
        if (field == value)
            return;
        field = value;
        emit appSettingsChanged();
        m_saveTimer.start();
    }

    void storeControl(int &field, int value, const ControlRange &range);
    bool hasFocusPreset(int index) const;
    void clearFocusPresets();
    void compareWithFocusPreset();

    /// What the controller reports of a calibration, unless that has been given up since.
    template <typename... Arguments, typename Reaction>
    void onCalibration(void (CameraController::*signal)(Arguments...), Reaction reaction);
    void endCalibration();
    void storeCalibrationActive(bool active);
    void storeMeasureProgress(int framesDone, int framesTotal);
    void storePendingCenter(const QPointF &center);
    void changeLock(bool locked);

    QList<CameraFormatInfo> selectedFormats() const;
    ResolutionLimits selectedLimits() const;
    bool hasSelectedCamera() const;
    QSize resolution() const;
    void storeSelectedCamera();
    void connectCameraList();
    void awaitLinks();
    void settleIdentities();
    void takeOverFrom(const QString &node, const QString &id);
    void selectFormat(const CameraFormatInfo &format);
    void snapToNearestFormat();
    void resetCameraValues();

    CenterPlace place() const;
    void decideCenter(const CenterEvent &event);
    void setCenter(const QPointF &center);
    void setResolution(const QSize &size);
    void moveCenter(bool cameraChosen);
    void dropPendingCenterOfElsewhere();

    ResolutionCalibration profileCalibration() const;
    CameraSettings storableSettings() const;
    bool takesGain(const QString &cameraId) const;
    template <typename Change>
    void changeProfile(Change change);
    void restoreProfile();
    void storePendingInProfile();

    void onRunningChanged();
    void storeFocusSweep(bool active);
    void onFocusSweepFinished(int focusValue, int outcome);
    void onStatus(const QString &status);
    void onCapabilitiesDetected(const CameraCapabilities &caps);
    void migrateExposure();
    void writeSettings() const;

    void contactServer();
    void checkForUpdates();
    void onUpdateInfo(bool success, const UpdateInfo &info, const QString &error);
    void openDownload(const QString &address) const;

    RequestSender sender() const;
    ReportRequest report(const QString &title, const QString &description,
                         const QString &screenshotBase64, const QString &screenshotMime,
                         const QString &category) const;
    void sendBugReport(const ReportRequest &request, bool includeLogs);
    void resetSubmission(bool pending);
    void awaitSubmission(int number);
    void storeSubmissionResult(int number, bool success, const QString &message,
                               const QString &errorCode);
    void onBugReport(bool success, const QString &bugId, const QString &message,
                     const QString &errorCode, int number);
    void onFeatureRequest(bool success, const QString &requestId, const QString &message,
                          const QString &errorCode, int number);
    void onFeedback(bool success, const QString &feedbackId, const QString &message,
                    const QString &errorCode, int number);

    void loadCachedLegalDocuments();
    void requestLegalDocuments();
    void renewLegalDocuments();
    void onRenewedLegalDocument(bool success, const QString &kind, const LegalDocument &document,
                                const QString &error);
    void saveLegalDocuments() const;
    void onLegalDocument(bool success, const QString &kind, const LegalDocument &document,
                         const QString &error);

    CameraController m_controller;
    AppSettings m_settings;
    CameraCapabilities m_capabilities;
    QMediaDevices m_mediaDevices;
    QTimer m_linkTimer;
    int m_linkPatience = 0; ///< how often the timer may still start

    QList<CameraDeviceInfo> m_cameras;
    QStringList m_cameraNames;
    int m_selectedCameraIndex = 0;

    QString m_status;
    bool m_connected = false;
    QString m_frameInfo;
    int m_blobCount = 0;

    bool m_focusTapModeActive = false;
    bool m_focusSweepActive = false;
    double m_focusSweepFraction = 0.0;

    QList<FocusPreset> m_focusPresets;
    int m_activeFocusPresetIndex = -1;
    bool m_activeFocusPresetDirty = false;

    bool m_calibrationActive = false;
    int m_currentGuideIndex = 0;
    int m_totalGuidePositions = 4;
    bool m_blobInSector = false;
    double m_blobSectorAlignment = 0.0;
    QVariantMap m_blobAdvice;
    std::optional<BlobSettings> m_blobProposal;
    std::optional<BlobSettings> m_blobBeforeAdvice; ///< what undoBlobAdvice() goes back to
    QVariantList m_measurements;
    /// A measured centre that waits for the user's decision, and what it was measured with.
    struct PendingCenter
    {
        QPointF center;
        CameraSettings camera;
    };
    PendingCenter m_pending;
    bool m_hasPendingCenter = false;
    // A calibration was given up; what it still reports is late.
    bool m_calibrationGivenUp = false;
    double m_fitRadius = 0.0;
    double m_fitStdDev = 0.0;
    int m_fitPointCount = 0;
    double m_centerSigma = 0.0;
    double m_coverageGapDeg = 0.0;
    int m_dominantOrder = 0;
    double m_dominantAmp = 0.0;
    int m_measureFramesDone = 0;
    int m_measureFramesTotal = 0;
    // Decides about centre, calibration and lock; the settings hold what came of it.
    CenterState m_center;
    // The selected camera has already got its values back from its profile.
    bool m_profileRestoredOnce = false;
    // Whether a camera has a gain, by id. Outlives the capabilities, which end with the stream.
    QHash<QString, bool> m_gainSupport;

    QTimer m_saveTimer;
    QTranslator m_translator;

    SupportApiClient m_supportClient{this};
    const ServerConfig m_serverConfig = ServerConfig::load();
    const QString m_machineGuid = machineGuid();

    UpdateInfo m_updateInfo;
    bool m_updateCheckStarted = false;
    bool m_updateBannerVisible = false;
    QString m_dismissedVersion;

    int m_awaitedSubmission = 0; // the one of which the state tells; 0 is none
    QSet<int> m_bugReportsUnderWay;
    bool m_bugReportPending = false;
    bool m_bugReportSuccess = false;
    QString m_bugReportError;
    QString m_bugReportMessage;

    bool m_crashIsDismissed = false;

    LegalDocsRecord m_legalDocs;
    std::optional<LegalDocsRecord> m_renewedLegalDocs; // as far as they have arrived
    bool m_legalDocsLoading = false;
    QString m_legalDocsError;
};

#undef MERIDAX_CONTROL_RANGE
#undef MERIDAX_SETTING
#undef MERIDAX_OVERLAY_SETTING
#undef MERIDAX_BLOB_SETTING
#undef MERIDAX_APP_SETTING

} // namespace meridax
