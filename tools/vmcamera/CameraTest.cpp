#include "CameraTest.h"

#include "CameraWindow.h"
#include "Helpers.h"
#include "camera/ExposureScale.h"

#include <QElapsedTimer>

#include <cstdio>
#include <exception>
#include <linux/videodev2.h>

namespace {

const QString kDevice = QStringLiteral("/dev/video0");

/// Where the camera's picture is sharp, and how far from it a sweep may end: one of its coarse
/// steps, in case frames wait in the driver.
constexpr int kBestFocus = 120;
constexpr int kFocusTolerance = 23;
constexpr int kFocusStep = 5;

class CameraTest
{
public:
    bool run()
    {
        return step("the camera is listed", &CameraTest::listed) &&
               step("it starts and its frames flow", &CameraTest::starts) &&
               step("the sliders reach the device", &CameraTest::sliders) &&
               step("lowest values are the device's automatic modes", &CameraTest::automatic) &&
               step("spot focus finds the sharpest position", &CameraTest::spotFocus) &&
               step("frozen, a log line; thawed, the frames go on", &CameraTest::freezes) &&
               step("pulled out in mid-stream", &CameraTest::unplugged) &&
               step("a start without a camera", &CameraTest::startWithoutCamera) &&
               step("plugged in again", &CameraTest::replugged) &&
               step("pulled out in mid-sweep", &CameraTest::unpluggedInSweep) &&
               step("held by another program", &CameraTest::heldByAnother) &&
               step("a camera of another driver", &CameraTest::otherDriver);
    }

private:
    bool step(const char *name, void (CameraTest::*body)())
    {
        QElapsedTimer time;
        time.start();
        QString failure;
        try {
            (this->*body)();
        } catch (const std::exception &error) {
            failure = QString::fromUtf8(error.what());
        }
        const QString result = failure.isEmpty()
                                   ? QStringLiteral("pass: %1").arg(name)
                                   : QStringLiteral("FAIL: %1: %2").arg(name, failure);
        std::printf("%s (%.1f s)\n", qPrintable(result), double(time.elapsed()) / 1000.0);
        std::fflush(stdout);
        m_window.save(QStringLiteral("%1/%2.png")
                          .arg(qEnvironmentVariable("MERIDAX_VMCAMERA_OUTPUT"))
                          .arg(++m_step, 2, 10, QLatin1Char('0')));
        return failure.isEmpty();
    }

    void listed() { m_window.waitForCameras({m_name}); }

    void starts() { m_window.start(); }

    void sliders()
    {
        waitLong(QStringLiteral("the ranges of the camera"), [this] {
            return m_window.value("exposureSupported").toBool() &&
                   m_window.value("focusRangeMax").toInt() > 0;
        });
        slide(&CameraWindow::stepUp, "exposureSlider", "exposure", V4L2_CID_EXPOSURE_ABSOLUTE,
              meridax::unitsOfExposure);
        requireDeviceValue(V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_MANUAL);
        slide(&CameraWindow::stepUp, "brightnessSlider", "brightness", V4L2_CID_BRIGHTNESS);
        slide(&CameraWindow::stepUp, "contrastSlider", "contrast", V4L2_CID_CONTRAST);
        slide(&CameraWindow::stepUp, "saturationSlider", "saturation", V4L2_CID_SATURATION);
        slide(&CameraWindow::stepUp, "gainSlider", "gain", V4L2_CID_GAIN);
        // The middle is one of the device's steps.
        slide(&CameraWindow::slideToMiddle, "focusSlider", "focusValue", V4L2_CID_FOCUS_ABSOLUTE);
        requireDeviceValue(V4L2_CID_FOCUS_AUTO, 0);
    }

    void automatic()
    {
        m_window.setValue("exposure", m_window.value("exposureRangeMin"));
        requireDeviceValue(V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_APERTURE_PRIORITY);
        m_window.setValue("focusValue", m_window.value("focusRangeMin"));
        requireDeviceValue(V4L2_CID_FOCUS_AUTO, 1);
    }

    void spotFocus()
    {
        // From a blurred picture: an old sharp frame would pass for the first position.
        m_window.setValue("focusValue", m_window.value("focusRangeMax"));
        requireDeviceValue(V4L2_CID_FOCUS_AUTO, 0);
        m_window.frames().waitForFrames(5);
        beginSweep();
        waitLong(QStringLiteral("the end of the sweep"),
                 [this] { return !m_window.value("focusSweepActive").toBool(); });
        const int found = m_window.value("focusValue").toInt();
        require(std::abs(found - kBestFocus) <= kFocusTolerance,
                QStringLiteral("it ends at %1").arg(found));
        requireDeviceValue(V4L2_CID_FOCUS_AUTO, 0);
        const int onDevice = deviceControl(kDevice, V4L2_CID_FOCUS_ABSOLUTE);
        require(std::abs(onDevice - found) <= kFocusStep,
                QStringLiteral("the device stands at %1").arg(onDevice));
    }

    void freezes()
    {
        m_camera.send("freeze");
        waitForLogLine(QStringLiteral("[camera] Kein Bild seit 5 s"));
        require(m_window.running(), QStringLiteral("the stream has ended"));
        m_camera.send("thaw");
        m_window.frames().waitForFrames(5);
    }

    void unplugged()
    {
        m_camera.send("unplug");
        m_window.waitForFailure();
        m_window.waitForCameras({});
    }

    void startWithoutCamera() { m_window.startInVain(CameraWindow::notFoundLabel); }

    void replugged()
    {
        m_camera.send("plug");
        m_window.waitForCameras({m_name});
        m_window.start();
    }

    void unpluggedInSweep()
    {
        beginSweep();
        unplugged();
        require(!m_window.value("focusSweepActive").toBool(),
                QStringLiteral("the sweep goes on without a camera"));
        replugged();
        m_window.stop();
    }

    void heldByAnother()
    {
        {
            const OtherViewer other(kDevice);
            m_window.startInVain(CameraWindow::failedLabel);
            waitForLogLine(QStringLiteral("[camera] QCamera error: Camera is in use"));
        }
        m_window.start();
        m_window.stop();
    }

    void otherDriver()
    {
        const QString other = QStringLiteral("vivid");
        runTool(QStringLiteral("modprobe"),
                {other, QStringLiteral("n_devs=1"), QStringLiteral("node_types=0x1")});
        m_window.waitForCameras({m_name, other});
        m_window.chooseCamera(other);
        m_window.start();
        waitForLogLine(QStringLiteral("[CameraCaps] Hardware capabilities for vivid"));
        require(!m_window.value("exposureSupported").toBool(),
                QStringLiteral("the camera has no exposure, but the slider has its range"));
        m_window.tapFocus();
        const QQuickItem &toast = m_window.item("focusToast");
        require(toast.property("text").toString() ==
                    QStringLiteral("Fokus dieser Kamera ist nicht steuerbar."),
                QStringLiteral("the message is another one"));
        m_window.stop();
    }

    void beginSweep()
    {
        m_window.tapFocus();
        waitLong(QStringLiteral("the sweep"), [this] {
            return m_window.value("focusSweepActive").toBool() &&
                   m_window.value("focusSweepFraction").toDouble() > 0.0;
        });
    }

    /// Moves a slider and waits until its new value stands in the device.
    void slide(
        void (CameraWindow::*move)(const char *), const char *slider, const char *property,
        std::uint32_t control, int (*onDevice)(int) = [](int value) { return value; })
    {
        const auto value = [&] { return m_window.value(property).toInt(); };
        const int before = value();
        (m_window.*move)(slider);
        waitLong(QStringLiteral("the %1 in the device").arg(QLatin1String(property)), [&] {
            return value() != before && deviceControl(kDevice, control) == onDevice(value());
        });
    }

    static void requireDeviceValue(std::uint32_t control, int value)
    {
        waitLong(QStringLiteral("control 0x%1 to become %2").arg(control, 0, 16).arg(value),
                 [=] { return deviceControl(kDevice, control) == value; });
    }

    const QString m_name = qEnvironmentVariable("MERIDAX_VMCAMERA_NAME");
    CameraWindow m_window;
    CommandPipe m_camera{qEnvironmentVariable("MERIDAX_VMCAMERA_COMMANDS")};
    int m_step = 0;
};

} // namespace

bool runCameraTest()
{
    try {
        return CameraTest().run();
    } catch (const std::exception &error) {
        std::printf("FAIL: %s\n", error.what());
        std::fflush(stdout);
        return false;
    }
}
