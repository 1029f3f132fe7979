#include "CameraTest.h"

#include "Helpers.h"
#include "demo/Pointer.h"
#include "demo/Scene.h"

#include <QElapsedTimer>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

void require(bool condition, const QString &what)
{
    if (!condition)
        throw std::runtime_error(what.toStdString());
}

class CameraTest
{
public:
    void run()
    {
        step("the camera is listed", &CameraTest::listed);
        step("it starts and its frames flow", &CameraTest::starts);
        step("frozen, the program waits; thawed, the frames go on", &CameraTest::freezes);
        step("pulled out in mid-stream", &CameraTest::unplugged);
        step("a start without a camera", &CameraTest::startWithoutCamera);
        step("plugged in again", &CameraTest::replugged);
        step("held by another program", &CameraTest::heldByAnother);
        step("a second camera of another driver", &CameraTest::secondCamera);
    }

private:
    void step(const char *name, void (CameraTest::*body)())
    {
        const QString picture = QStringLiteral("%1/%2.png")
                                    .arg(qEnvironmentVariable("MERIDAX_VMCAMERA_PICTURES"))
                                    .arg(++m_step);
        QElapsedTimer time;
        time.start();
        try {
            (this->*body)();
        } catch (const std::exception &error) {
            std::printf("FAIL: %s: %s\n", name, error.what());
            m_scene.save(picture);
            throw;
        }
        std::printf("pass: %s (%.1f s)\n", name, double(time.elapsed()) / 1000.0);
        std::fflush(stdout);
        m_scene.save(picture);
    }

    void listed() { waitForCameras({m_name}); }

    void starts()
    {
        start();
        require(label() == QStringLiteral("Kamera verbunden"), "the label says " + label());
    }

    void freezes()
    {
        m_camera.send("freeze");
        m_frames.waitForStandstill();
        require(running(), QStringLiteral("the stream has ended"));
        m_camera.send("thaw");
        m_frames.waitForFrames(5);
    }

    void unplugged()
    {
        m_frames.waitForFrames(2);
        m_camera.send("unplug");
        waitForLabel(QStringLiteral("Kamerafehler – bitte Gerät und Verbindung prüfen."));
        require(!running(), QStringLiteral("the program thinks that the camera runs"));
        waitForCameras({});
    }

    void startWithoutCamera()
    {
        click("startStopButton");
        waitForLabel(QStringLiteral("Keine passende Kamera gefunden."));
    }

    void replugged()
    {
        m_camera.send("plug");
        waitForCameras({m_name});
        start();
        stop();
    }

    void heldByAnother()
    {
        {
            const OtherViewer other(QStringLiteral("/dev/video0"));
            click("startStopButton");
            waitForLabel(QStringLiteral("Kamerafehler – bitte Gerät und Verbindung prüfen."));
            require(!running(), QStringLiteral("the program thinks that the camera runs"));
        }
        start();
        stop();
    }

    void secondCamera()
    {
        runTool(QStringLiteral("modprobe"), {QStringLiteral("vivid"), QStringLiteral("n_devs=1"),
                                             QStringLiteral("node_types=0x1")});
        const QString other = QStringLiteral("vivid");
        waitForCameras({m_name, other});
        click("cameraSelector");
        m_pointer.click(m_scene.itemWithText({other}));
        waitFor(QStringLiteral("the choice"),
                [&] { return m_scene.value("selectedCameraName").toString() == other; });
        start();
        stop();
    }

    void click(const char *objectName)
    {
        m_pointer.click(m_scene.item(QString::fromLatin1(objectName)));
    }

    bool running() const { return m_scene.value("running").toBool(); }

    QString label() const
    {
        return m_scene.item(QStringLiteral("connectionLabel")).property("text").toString();
    }

    void start()
    {
        click("startStopButton");
        waitFor(QStringLiteral("the camera to run"), [this] { return running(); });
        m_frames.waitForFrames(10);
    }

    void stop()
    {
        click("startStopButton");
        waitFor(QStringLiteral("the camera to stop"), [this] { return !running(); });
    }

    void waitForLabel(const QString &text)
    {
        waitFor("the label " + text, [&] { return label() == text; });
    }

    /// In any order: the two drivers number their devices by themselves.
    void waitForCameras(QStringList names)
    {
        names.sort();
        waitFor(QStringLiteral("%1 cameras in the list").arg(names.size()), [&] {
            QStringList listed = m_scene.value("cameraNames").toStringList();
            listed.sort();
            return listed == names;
        });
    }

    const QString m_name = qEnvironmentVariable("MERIDAX_VMCAMERA_NAME");
    Scene m_scene;
    Pointer m_pointer;
    FrameCounter m_frames{m_scene.value("controller").value<QObject *>()};
    CommandPipe m_camera{qEnvironmentVariable("MERIDAX_VMCAMERA_COMMANDS")};
    int m_step = 0;
};

} // namespace

bool runCameraTest()
{
    try {
        CameraTest().run();
        return true;
    } catch (const std::exception &error) {
        std::printf("the test ends: %s\n", error.what());
        std::fflush(stdout);
        return false;
    }
}
