#include "camera/V4l2Backend.h"
#include "camera/DeviceChoice.h"
#include "camera/ExposureScale.h"
#include "camera/V4l2Control.h"

#include <QDebug>
#include <QDir>

#include <cerrno>
#include <system_error>

namespace meridax {

namespace {

constexpr V4l2ControlIds exposure{V4L2_CID_EXPOSURE_ABSOLUTE, V4L2_CID_EXPOSURE_AUTO};
constexpr V4l2ControlIds focus{V4L2_CID_FOCUS_ABSOLUTE, V4L2_CID_FOCUS_AUTO};
constexpr V4l2ControlIds brightness{V4L2_CID_BRIGHTNESS, V4L2_CID_AUTOBRIGHTNESS};
constexpr V4l2ControlIds contrast{V4L2_CID_CONTRAST, 0};
constexpr V4l2ControlIds saturation{V4L2_CID_SATURATION, 0};
constexpr V4l2ControlIds gain{V4L2_CID_GAIN, V4L2_CID_AUTOGAIN};
constexpr V4l2ControlIds gammaCurve{V4L2_CID_GAMMA, 0};
constexpr V4l2ControlIds whiteBalance{V4L2_CID_WHITE_BALANCE_TEMPERATURE,
                                      V4L2_CID_AUTO_WHITE_BALANCE};

void tell(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

QString errorText(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

/// True if the error of opening a node means that no camera is there, not that it is denied.
bool meansNoCamera(int error)
{
    return error == ENOENT || error == ENODEV || error == ENXIO || error == ENOTTY;
}

std::optional<V4l2Device> opened(V4l2Device device, const QString &path, QString *error)
{
    if (!device.error())
        return device;
    tell(error, QStringLiteral("V4L2-Kamera %1 konnte nicht geöffnet werden: %2")
                    .arg(path, errorText(device.error())));
    return {};
}

std::optional<V4l2Device> openByNameOrIndex(const CameraSettings &settings, QString *error)
{
    std::vector<V4l2Device> devices;
    QList<AttachedCamera> cameras;
    // In the order of their names, as the camera list has them.
    const QStringList nodes = QDir(QStringLiteral("/dev"))
                                  .entryList({QStringLiteral("video*")}, QDir::System, QDir::Name);
    for (const QString &node : nodes) {
        AttachedCamera camera;
        camera.id = camera.node = QStringLiteral("/dev/") + node;
        V4l2Device device(camera.node);
        if (meansNoCamera(device.error()))
            continue;
        camera.name = device.name();
        cameras << camera;
        devices.push_back(std::move(device));
    }
    const qsizetype chosen = chooseDevice(cameras, settings);
    if (chosen < 0) {
        tell(error,
             cameras.isEmpty()
                 ? QStringLiteral("Keine V4L2-Kameras gefunden.")
                 : QStringLiteral("V4L2-Kamera %1 nicht gefunden.").arg(settings.cameraName));
        return {};
    }
    return opened(std::move(devices[static_cast<size_t>(chosen)]), cameras[chosen].node, error);
}

std::optional<V4l2Device> openWanted(const CameraSettings &settings, QString *error)
{
    if (error)
        error->clear();
    if (settings.cameraId.startsWith(QLatin1String("/dev/video"))) {
        V4l2Device device(settings.cameraId);
        // No search then: opening wakes up every camera that sleeps.
        if (!meansNoCamera(device.error()))
            return opened(std::move(device), settings.cameraId, error);
    }
    return openByNameOrIndex(settings, error);
}

bool applyExposure(const V4l2Device &device, int value, ControlWrites writes)
{
    V4l2Control control(device, exposure);
    if (!control.exists())
        return false;
    const std::optional<ControlRange> units = control.range();
    if (!units)
        return false;
    const ControlRange range = exposureRangeOfUnits(*units);
    const int wanted = migratedExposure(value, range, ExposureScale::TenthsOfAStop);
    std::optional<ControlWrite> write = exposureWrite(wanted, range);
    if (!write)
        return false;
    write->value = snapToStep(unitsOfExposure(write->value), *units);
    return control.apply(*write, writes).taken;
}

bool applyFocus(const V4l2Device &device, int value, ControlWrites writes)
{
    V4l2Control control(device, focus);
    return control.exists() && control.apply(controlWrite(value, control.range()), writes).taken;
}

bool applyImageControl(const V4l2Device &device, V4l2ControlIds ids, int value,
                       ControlWrites writes)
{
    V4l2Control control(device, ids);
    if (!control.exists() || device.lost())
        return false;
    const ControlWrite write = controlWrite(value, control.range());
    const V4l2Control::Outcome outcome = control.apply(write, writes);
    if (outcome.touched)
        qInfo().noquote() << QString::fromStdString(
            procAmpLogLine(ids.value, write, outcome.taken, control.readBack()));
    return outcome.taken;
}

} // namespace

ApplyResult V4l2Backend::applySettings(const CameraSettings &settings, ControlWrites writes,
                                       QString *error)
{
    const std::optional<V4l2Device> device = openWanted(settings, error);
    if (!device)
        return {};
    const auto image = [&](V4l2ControlIds ids, int value) {
        return applyImageControl(*device, ids, value, writes);
    };
    bool taken = applyExposure(*device, settings.captureTimeMs, writes);
    taken |= applyFocus(*device, settings.focusValue, writes);
    taken |= image(brightness, settings.brightness);
    taken |= image(contrast, settings.contrast);
    taken |= image(saturation, settings.saturation);
    taken |= image(gain, settings.gain);
    if (device->lost())
        tell(error, QStringLiteral("V4L2-Kamera %1 antwortet nicht: %2")
                        .arg(device->name(), errorText(device->lost())));
    else if (!taken)
        tell(error,
             QStringLiteral("V4L2-Kamera %1 hat keinen Wert angenommen.").arg(device->name()));
    return {.taken = taken, .noAnswer = device->lost() != 0};
}

bool V4l2Backend::queryCameraCapabilities(const CameraSettings &settings, CameraCapabilities *caps,
                                          QString *error)
{
    *caps = {};
    const std::optional<V4l2Device> device = openWanted(settings, error);
    if (!device)
        return false;
    bool any = false;
    const auto read = [&](ControlRange &range, V4l2ControlIds ids) {
        const V4l2Control control(*device, ids);
        if (const std::optional<ControlRange> answer = control.range()) {
            range = *answer;
            any = true;
        }
    };
    read(caps->exposure, exposure);
    if (caps->exposure.supported) {
        caps->exposure = exposureRangeOfUnits(caps->exposure);
        caps->exposureScale = ExposureScale::TenthsOfAStop;
    }
    read(caps->focus, focus);
    read(caps->brightness, brightness);
    read(caps->contrast, contrast);
    read(caps->saturation, saturation);
    read(caps->gain, gain);
    read(caps->gamma, gammaCurve);
    read(caps->whiteBalance, whiteBalance);
    if (!any)
        tell(error, QStringLiteral("V4L2-Kamera %1 nennt keine Bereiche.").arg(device->name()));
    return any;
}

} // namespace meridax
