#include "camera/CameraCapabilities.h"

#include <array>

namespace meridax {

namespace {

QString controlLogLine(QLatin1StringView label, const ControlRange &range)
{
    if (!range.supported)
        return QStringLiteral("[CameraCaps]   %1: (not supported)").arg(label);
    return QStringLiteral("[CameraCaps]   %1: [%2..%3] step=%4 default=%5 canAuto=%6")
        .arg(label)
        .arg(range.min)
        .arg(range.max)
        .arg(range.step)
        .arg(range.defaultValue)
        .arg(QLatin1StringView(range.canAuto ? "true" : "false"));
}

} // namespace

QStringList capabilityLogLines(const QString &cameraName, const CameraCapabilities &caps)
{
    using namespace Qt::StringLiterals;
    // All labels are padded to eleven characters, and the last is cut to them.
    const std::array<std::pair<QLatin1StringView, const ControlRange *>, 8> controls{{
        {"Exposure   "_L1, &caps.exposure},
        {"Focus      "_L1, &caps.focus},
        {"Brightness "_L1, &caps.brightness},
        {"Contrast   "_L1, &caps.contrast},
        {"Saturation "_L1, &caps.saturation},
        {"Gain       "_L1, &caps.gain},
        {"Gamma      "_L1, &caps.gamma},
        {"WhiteBalanc"_L1, &caps.whiteBalance},
    }};

    QStringList lines{
        QStringLiteral("[CameraCaps] Hardware capabilities for %1 :").arg(cameraName)};
    for (const auto &[label, range] : controls)
        lines << controlLogLine(label, *range);
    return lines;
}

} // namespace meridax
