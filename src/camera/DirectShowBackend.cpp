#include "camera/DirectShowBackend.h"
#include "camera/DirectShowControls.h"

#include <QDebug>

namespace meridax {

namespace {

directshow::Camera cameraOf(const CameraSettings &settings)
{
    return {settings.cameraName.toStdWString(), settings.cameraId.toStdWString(),
            settings.cameraIndex};
}

void tell(QString *error, const std::wstring &text)
{
    if (error)
        *error = QString::fromStdWString(text);
}

} // namespace

ApplyResult DirectShowBackend::applySettings(const CameraSettings &settings, ControlWrites,
                                             QString *error)
{
    const directshow::Values values{.exposure = settings.captureTimeMs,
                                    .focus = settings.focusValue,
                                    .brightness = settings.brightness,
                                    .contrast = settings.contrast,
                                    .saturation = settings.saturation,
                                    .gain = settings.gain};
    std::wstring text;
    const bool accepted = directshow::applyValues(
        cameraOf(settings), values,
        [](const std::string &line) { qInfo().noquote() << QString::fromStdString(line); }, text);
    tell(error, text);
    return {.taken = accepted};
}

bool DirectShowBackend::queryCameraCapabilities(const CameraSettings &settings,
                                                CameraCapabilities *caps, QString *error)
{
    directshow::Ranges ranges;
    std::wstring text;
    const bool any = directshow::queryRanges(cameraOf(settings), ranges, text);
    tell(error, text);
    *caps = {.exposure = ranges.exposure,
             .focus = ranges.focus,
             .brightness = ranges.brightness,
             .contrast = ranges.contrast,
             .saturation = ranges.saturation,
             .gain = ranges.gain,
             .gamma = ranges.gamma,
             .whiteBalance = ranges.whiteBalance};
    return any;
}

} // namespace meridax
