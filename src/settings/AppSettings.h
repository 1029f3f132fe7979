#pragma once

#include "settings/CameraProfile.h"

#include <QColor>
#include <QMap>
#include <QString>
#include <QVariantMap>

namespace meridax {

/// Line styles of circles and crosshair as kept in memory; the file holds their names.
enum LineStyle : int { Solid = 0, Dashed = 1, Dotted = 2, DashDot = 3 };

/// Crosshair types as kept in memory: three arms ("lines" in the file) or four ("cross").
enum CrossType : int { ThreeArms = 0, FourArms = 1 };

/// One measuring circle about the overlay centre. The radius is in frame pixels, the line width in
/// screen pixels.
struct CircleSettings
{
    QString name;
    double radius = 0.0;
    QColor color;
    double lineWidth = 2.0;
    bool enabled = false;
    int lineStyle = Solid;

    bool operator==(const CircleSettings &) const = default;
};

/// The crosshair. The angle is in degrees and grows clockwise on the screen.
struct CrossSettings
{
    double angle = 0.0;
    QColor color = QColor(Qt::yellow);
    double lineWidth = 2.0;
    bool enabled = true;
    int type = FourArms;
    int lineStyle = Solid;

    bool operator==(const CrossSettings &) const = default;
};

/// Parameters of the blob detector. Areas are in pixels squared of the detection image, which is
/// at most 1280 columns wide.
struct BlobSettings
{
    double minThreshold = 10.0;
    double maxThreshold = 230.0;
    bool filterByArea = true;
    double minArea = 500.0;
    double maxArea = 50000.0;
    bool filterByCircularity = true;
    double minCircularity = 0.9;
    bool filterByInertia = true;
    double minInertiaRatio = 0.95;

    bool operator==(const BlobSettings &) const = default;
};

/// Everything that belongs to the camera and to what is drawn over its picture. Positions and
/// lengths are in frame pixels at full resolution, origin top left, y downwards.
struct CameraSettings
{
    QString cameraName;
    QString cameraId;
    int cameraIndex = 0;
    int cameraResolutionX = 3264;
    int cameraResolutionY = 2448;
    double centerX = 1632.0;
    double centerY = 1224.0;
    double centerOffsetX = 0.0;
    double centerOffsetY = 0.0;
    bool centerOffsetEnabled = true;
    double zoom = 1.0;
    int focusValue = 0;
    /// Exposure on the scale of the camera's backend; the name stays from when it was a time.
    int captureTimeMs = 0;
    /// Live focus range of the running camera; never written to the file.
    int focusRangeMin = 0;
    int focusRangeMax = 0;
    int brightness = 0;
    int saturation = 50;
    int contrast = 50;
    int gain = 0;
    bool locked = false;
    bool calibrated = false;
    CircleSettings circle1{"Kreis 1", 612.0, QColor("#ff00ff"), 2.0, true, Solid};
    CircleSettings circle2{"Kreis 2", 408.0, QColor("#0066ff"), 2.0, false, Solid};
    CircleSettings circle3{"Kreis 3", 306.0, QColor("#008000"), 2.0, false, Solid};
    CrossSettings cross;

    bool operator==(const CameraSettings &) const = default;
};

/// The whole settings record of the program. The view model holds the only live copy.
struct AppSettings
{
    QString language = QStringLiteral("de");
    bool darkMode = false;
    int calibrationPositions = 8;
    int calibrationMeasureFrames = 3;
    QVariantMap collapsedSections;
    bool rememberCollapsedSections = true;
    QString screenshotPath;
    bool screenshotIncludeOverlays = true;
    bool focusPresetIncludeMarkers = true;
    bool focusPresetShowValue = false;
    bool cameraPanelExpandedAtStart = true;
    bool overlayPanelExpandedAtStart = true;
    bool showTooltips = true;
    bool showZoomOverlay = true;
    /// Last normal window size and position in screen pixels; a width of 0 means never saved.
    int windowWidth = 0;
    int windowHeight = 0;
    int windowX = 0;
    int windowY = 0;
    bool windowMaximized = false;
    QMap<QString, CameraProfile> cameraProfiles; ///< by camera id
    CameraSettings camera;
    BlobSettings blob;

    bool operator==(const AppSettings &) const = default;
};

} // namespace meridax
