#include "viewmodel/CameraList.h"

#include "camera/DeviceChoice.h"

#include <QCameraFormat>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <tuple>

namespace meridax {

namespace {

auto sortKey(const CameraFormatInfo &format)
{
    return std::tuple(std::int64_t{format.width} * format.height, format.width, format.maxFps);
}

std::int64_t distance(const CameraFormatInfo &format, const QSize &size)
{
    return std::abs(std::int64_t{format.width} - size.width()) +
           std::abs(std::int64_t{format.height} - size.height());
}

} // namespace

QList<CameraFormatInfo> foldFormats(const QList<CameraFormatInfo> &formats)
{
    QList<CameraFormatInfo> folded;
    for (const CameraFormatInfo &format : formats) {
        if (format.width < 0 || format.height < 0)
            continue;
        const auto same = std::ranges::find_if(folded, [&format](const CameraFormatInfo &other) {
            return other.width == format.width && other.height == format.height;
        });
        if (same == folded.end()) {
            folded.append(format);
        } else {
            same->minFps = std::min(same->minFps, format.minFps);
            same->maxFps = std::max(same->maxFps, format.maxFps);
        }
    }
    std::ranges::sort(folded, {}, sortKey);
    return folded;
}

QList<CameraDeviceInfo> listCameras(const QList<QCameraDevice> &devices)
{
    const QList<AttachedCamera> attached = attachedCameras(devices);
    QList<CameraDeviceInfo> cameras;
    for (qsizetype i = 0; i < devices.size(); ++i) {
        const QCameraDevice &device = devices[i];
        QList<CameraFormatInfo> formats;
        for (const QCameraFormat &format : device.videoFormats()) {
            const QSize size = format.resolution();
            formats.append(
                {size.width(), size.height(), format.minFrameRate(), format.maxFrameRate()});
        }
        CameraDeviceInfo camera;
        camera.id = attached[i].id;
        camera.name = attached[i].name;
        camera.node = attached[i].node;
        camera.isAnonymous = attached[i].byId.isEmpty() && attached[i].byPath.isEmpty();
        camera.formats = foldFormats(formats);
        cameras.append(camera);
    }
    return cameras;
}

int rememberedCameraIndex(const QList<CameraDeviceInfo> &cameras, const QString &id,
                          const QString &name)
{
    QList<AttachedCamera> attached;
    for (const CameraDeviceInfo &camera : cameras) {
        attached << AttachedCamera{};
        attached.last().id = camera.id;
        attached.last().name = camera.name;
    }
    CameraSettings wanted;
    wanted.cameraId = id;
    wanted.cameraName = name;
    return static_cast<int>(std::max<qsizetype>(0, chooseDevice(attached, wanted)));
}

int nearestFormatIndex(const QList<CameraFormatInfo> &formats, const QSize &wanted)
{
    const auto nearest =
        std::ranges::min_element(formats, {}, [&wanted](const CameraFormatInfo &format) {
            return distance(format, wanted);
        });
    return nearest == formats.end() ? -1 : static_cast<int>(nearest - formats.begin());
}

QStringList resolutionTexts(const QList<CameraFormatInfo> &formats)
{
    QStringList texts;
    for (const CameraFormatInfo &format : formats) {
        QString text = QStringLiteral("%1 x %2").arg(format.width).arg(format.height);
        if (format.maxFps > 0.0F)
            text += QStringLiteral("  @ %1 fps").arg(QString::number(format.maxFps, 'f', 0));
        texts.append(text);
    }
    return texts;
}

ResolutionLimits resolutionLimits(const QList<CameraFormatInfo> &formats)
{
    if (formats.isEmpty())
        return {};
    const auto [minWidth, maxWidth] = std::ranges::minmax(formats, {}, &CameraFormatInfo::width);
    const auto [minHeight, maxHeight] = std::ranges::minmax(formats, {}, &CameraFormatInfo::height);
    const QSize least(1, 1);
    return {QSize(minWidth.width, minHeight.height).expandedTo(least),
            QSize(maxWidth.width, maxHeight.height).expandedTo(least)};
}

} // namespace meridax
