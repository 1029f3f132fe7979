#pragma once

#include <QCameraDevice>
#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

namespace meridax {

/// One frame size of a camera with the frame rates of all its formats of that size.
struct CameraFormatInfo
{
    int width = 0;
    int height = 0;
    float minFps = 0.0F;
    float maxFps = 0.0F; ///< 0 when the camera does not tell

    bool operator==(const CameraFormatInfo &) const = default;
};

/// One camera as the interface lists it. The focus range is 0..0 until the running camera tells it.
struct CameraDeviceInfo
{
    QString id; ///< as in AttachedCamera
    QString name;
    QList<CameraFormatInfo> formats;
    int focusRangeMin = 0;
    int focusRangeMax = 0;
    QString node = {};        ///< as in AttachedCamera
    bool isAnonymous = false; ///< udev has no link to the node, or none yet

    bool operator==(const CameraDeviceInfo &) const = default;
};

/// Folds formats of equal size into one row with the widest range of rates, leaves out sizes below
/// zero, and sorts ascending by area, then width, then highest rate.
QList<CameraFormatInfo> foldFormats(const QList<CameraFormatInfo> &formats);

/// The attached cameras in the order of `devices`, each with its folded formats.
QList<CameraDeviceInfo> listCameras(const QList<QCameraDevice> &devices);

/// Index of the camera that chooseDevice() gives, the first one where that is none.
int rememberedCameraIndex(const QList<CameraDeviceInfo> &cameras, const QString &id,
                          const QString &name);

/// Index of the format with the smallest sum of the differences in width and height to `wanted`;
/// the first of equals, -1 for an empty list.
int nearestFormatIndex(const QList<CameraFormatInfo> &formats, const QSize &wanted);

/// One text a format, such as "1280 x 720  @ 30 fps"; without the rate where it is unknown.
QStringList resolutionTexts(const QList<CameraFormatInfo> &formats);

/// Smallest and largest width and height among a camera's formats, each searched for itself.
struct ResolutionLimits
{
    QSize smallest = QSize(320, 240);
    QSize largest = QSize(8192, 8192);

    bool operator==(const ResolutionLimits &) const = default;
};

/// The limits of `formats`, never below 1; the defaults of ResolutionLimits for an empty list.
ResolutionLimits resolutionLimits(const QList<CameraFormatInfo> &formats);

} // namespace meridax
