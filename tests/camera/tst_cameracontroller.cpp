#include "MessageRecorder.h"
#include "SignalRecorder.h"
#include "camera/CameraController.h"

#include <QElapsedTimer>
#include <QMediaDevices>
#include <QProcess>
#include <QTest>

using namespace meridax;
using namespace std::chrono_literals;

namespace {

/// A backend that takes or refuses all and touches no camera.
class IdleBackend : public ICameraBackend
{
public:
    explicit IdleBackend(bool takes)
        : m_takes(takes)
    {
    }

    ApplyResult applySettings(const CameraSettings &, ControlWrites, QString *) override
    {
        ++calls;
        return {.taken = m_takes};
    }

    bool queryCameraCapabilities(const CameraSettings &, CameraCapabilities *, QString *) override
    {
        return true;
    }

    std::atomic<int> calls = 0;

private:
    const bool m_takes;
};

} // namespace

// Against the simulated camera, which Qt Multimedia takes for a USB camera.
class TestCameraController : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // Whatever the test before has left.
        if (QMediaDevices::videoInputs().isEmpty())
            simcam({QStringLiteral("plug")});
        simcam({QStringLiteral("set"), QStringLiteral("controls=2"), QStringLiteral("stall=0"),
                QStringLiteral("dqbuf-errno=0"), QStringLiteral("control-hang=0"),
                QStringLiteral("streamon-errno=0"), QStringLiteral("forgets=0")});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
        QTRY_VERIFY(!ControlThread::anyLeftBehind());
    }

    void streamsInTheChosenFormatAndStops()
    {
        CameraController controller;
        const SignalRecorder running(&controller, &CameraController::runningChanged);
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        controller.updateSettings(settingsFor(1280, 720));
        controller.startCamera();
        QTRY_VERIFY(frames.size() >= 3);
        QVERIFY(controller.isRunning());
        QCOMPARE(frames.last()[0].value<QImage>().size(), QSize(1280, 720));
        QCOMPARE(frames.last()[0].value<QImage>().format(), QImage::Format_RGB888);

        controller.stopCamera();
        QVERIFY(!controller.isRunning());
        QTRY_COMPARE(running.last()[0].toBool(), false);
        QCOMPARE(running.size(), 2);
        QCOMPARE(errors.size(), 0);
    }

    void changesTheFormatWhileRunning()
    {
        CameraController controller;
        const SignalRecorder sizes(&controller, &CameraController::actualResolutionChanged);
        controller.updateSettings(settingsFor(640, 480));
        controller.startCamera();
        QTRY_COMPARE(sizes.size(), 1);
        controller.updateSettings(settingsFor(1280, 720));
        QTRY_COMPARE(sizes.size(), 2);
        QCOMPARE(sizes[1], (QVariantList{1280, 720}));
        QTRY_COMPARE(controller.latestFrame().size(), QSize(1280, 720));
    }

    void twoStartsInQuickSuccession()
    {
        CameraController controller;
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        controller.updateSettings(settingsFor(640, 480));
        controller.startCamera();
        controller.startCamera();
        QTRY_VERIFY(frames.size() >= 3);
        QVERIFY(controller.isRunning());
    }

    void unpluggingIsOneErrorAndTheEndOfTheStream()
    {
        CameraController controller;
        const SignalRecorder running(&controller, &CameraController::runningChanged);
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        controller.updateSettings(settingsFor(640, 480));
        controller.startCamera();
        QTRY_VERIFY(frames.size() >= 1);

        simcam({QStringLiteral("unplug")});
        // A value set in the moment between the unplugging and its notice must not reach the
        // camera.
        AppSettings settings = settingsFor(640, 480);
        settings.camera.focusValue = 40;
        controller.updateSettings(settings);
        QTRY_COMPARE(errors.size(), 1);
        QVERIFY(!controller.isRunning());
        QTRY_COMPARE(running.last()[0].toBool(), false);
        settings.camera.focusValue = 41;
        controller.updateSettings(settings);

        simcam({QStringLiteral("plug")});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
        QVERIFY2(!controller.isRunning(), "no restart by itself");
        const qsizetype before = frames.size();
        controller.startCamera();
        QTRY_VERIFY(frames.size() > before);
        QCOMPARE(errors.size(), 1);
    }

    // The notice of an unplugged camera takes a turn of the event loop; what follows comes before
    // it.
    void stoppedBeforeItsEndIsNoticed()
    {
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        controller.startCamera();
        QTRY_VERIFY(!controller.latestFrame().isNull());
        unplugBetweenFrames();
        controller.updateSettings(settingsFor(1280, 720));
        controller.stopCamera();
        QVERIFY(!controller.isRunning());
        QTRY_VERIFY(QMediaDevices::videoInputs().isEmpty());
    }

    void startedAfterItsEndUnnoticed()
    {
        CameraController controller;
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        simcam({QStringLiteral("unplug")});
        QCOMPARE(QMediaDevices::videoInputs().size(), 1);
        controller.startCamera();
        QTRY_COMPARE(errors.size(), 1);
        QVERIFY(!controller.isRunning());
        QTRY_VERIFY(QMediaDevices::videoInputs().isEmpty());
    }

    void destroyedInACalibrationOnADeadCamera()
    {
        auto controller = std::make_unique<CameraController>();
        controller->updateSettings(settingsFor(640, 480));
        controller->startCamera();
        controller->startCalibration(3);
        const SignalRecorder blobs(controller.get(), &CameraController::blobsDetected);
        QTRY_VERIFY(!blobs.isEmpty());
        unplugBetweenFrames();
        controller.reset();
        QTRY_VERIFY(QMediaDevices::videoInputs().isEmpty());
    }

    void damagedFramesPassThrough_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::newRow("truncated JPEG") << QStringLiteral("truncate=1");
        QTest::newRow("error flag") << QStringLiteral("error-frames=1");
    }

    void damagedFramesPassThrough()
    {
        QFETCH(QString, fault);
        CameraController controller;
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        controller.updateSettings(settingsFor(640, 480));
        controller.startCamera();
        QTRY_VERIFY(frames.size() >= 1);
        simcam({QStringLiteral("set"), fault});
        // Some pass through the live path and some through that of a calibration.
        const auto framesOfTheCamera = [] {
            return simcam({QStringLiteral("get"), QStringLiteral("frames")}).toInt();
        };
        const int faulty = framesOfTheCamera();
        QTRY_VERIFY(framesOfTheCamera() > faulty + 5);
        controller.startCalibration(3);
        QTRY_VERIFY(framesOfTheCamera() > faulty + 10);
        controller.cancelCalibration();
        simcam({QStringLiteral("set"), fault.section(u'=', 0, 0) + QStringLiteral("=0")});
        const qsizetype before = frames.size();
        QTRY_VERIFY(frames.size() > before);
        QVERIFY(controller.isRunning());
    }

    void silentCameraIsWarnedAboutOnce()
    {
        CameraController controller;
        const SignalRecorder statuses(&controller, &CameraController::statusChanged);
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        controller.updateSettings(settingsFor(640, 480));
        controller.setFrameTimeout(300ms);
        controller.startCamera();
        QTRY_VERIFY(frames.size() >= 1);
        const MessageRecorder warnings(QtWarningMsg);
        simcam({QStringLiteral("set"), QStringLiteral("stall=1")});
        QTRY_COMPARE(warnings.lines(),
                     QStringList("[camera] Kein Bild seit 0.3 s: Meridax Simulated Camera"));
        simcam({QStringLiteral("set"), QStringLiteral("stall=0")});
        const qsizetype before = frames.size();
        QTRY_VERIFY(frames.size() > before);
        QVERIFY(controller.isRunning());
        QCOMPARE(warnings.lines().size(), 1);
        simcam({QStringLiteral("set"), QStringLiteral("stall=1")});
        QTRY_COMPARE(warnings.lines().size(), 2);
        controller.stopCamera();
        const QList<QVariantList> told{{"Kamera startet…"},          {""},
                                       {"Kamera liefert kein Bild"}, {""},
                                       {"Kamera liefert kein Bild"}, {""}};
        QCOMPARE(static_cast<const QList<QVariantList> &>(statuses), told);
    }

    void failingCameraIsGivenUp()
    {
        CameraController controller;
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        const SignalRecorder running(&controller, &CameraController::runningChanged);
        controller.updateSettings(settingsFor(640, 480));
        controller.setFrameTimeout(300ms);
        controller.startCamera();
        QTRY_VERIFY(frames.size() >= 1);
        const MessageRecorder warnings(QtWarningMsg);
        simcam({QStringLiteral("set"), QStringLiteral("dqbuf-errno=EIO")});
        QTRY_COMPARE(errors.size(), 1);
        QVERIFY(!controller.isRunning());
        QCOMPARE(running.last()[0].toBool(), false);
        QCOMPARE(warnings.lines().last(), "[camera] QCamera error: Gerät meldet nur noch Fehler: "
                                          "Meridax Simulated Camera");
        simcam({QStringLiteral("set"), QStringLiteral("dqbuf-errno=0")});
        const qsizetype before = frames.size();
        controller.startCamera();
        QTRY_VERIFY(frames.size() > before);
    }

    // Qt calls both of them active (6.8).
    void startsWithoutAPictureAreTold()
    {
        CameraController controller;
        const SignalRecorder statuses(&controller, &CameraController::statusChanged);
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        controller.setFrameTimeout(300ms);
        const MessageRecorder warnings(QtWarningMsg);
        simcam({QStringLiteral("set"), QStringLiteral("streamon-errno=ENOSPC")});
        controller.startCamera();
        QTRY_VERIFY(!statuses.isEmpty());
        QTRY_COMPARE(statuses.last(), QVariantList{"Kamera liefert kein Bild"});
        controller.stopCamera();

        simcam({QStringLiteral("set"), QStringLiteral("streamon-errno=0"),
                QStringLiteral("open-errno=EACCES")});
        const qsizetype before = statuses.size();
        controller.startCamera();
        simcam({QStringLiteral("set"), QStringLiteral("open-errno=0")});
        QCOMPARE(errors.size(), 1);
        QVERIFY(!controller.isRunning());
        QCOMPARE(statuses.size(), before);
    }

    // The camera list is equal before and after, so that Qt tells nothing.
    void pluggedAnewUnnoticedIsTheEndOfTheStream()
    {
        CameraController controller;
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        controller.setFrameTimeout(300ms);
        controller.startCamera();
        QTRY_VERIFY(!controller.latestFrame().isNull());
        const MessageRecorder warnings(QtWarningMsg);
        unplugBetweenFrames();
        simcam({QStringLiteral("plug")});
        QTRY_COMPARE(errors.size(), 1);
        QVERIFY(!controller.isRunning());
    }

    void aCameraThatHangsHoldsUpNothing()
    {
        auto controller = std::make_unique<CameraController>();
        const SignalRecorder statuses(controller.get(), &CameraController::statusChanged);
        AppSettings settings = settingsFor(640, 480);
        controller->updateSettings(settings);
        controller->startCamera();
        QTRY_VERIFY(!controller->latestFrame().isNull());
        QTRY_COMPARE(statuses.last(), QVariantList{""});
        const MessageRecorder warnings(QtWarningMsg);
        const auto brightness = [&](int value) {
            settings.camera.brightness = value;
            QElapsedTimer clock;
            clock.start();
            controller->updateSettings(settings);
            return std::chrono::milliseconds(clock.elapsed());
        };

        simcam({QStringLiteral("set"), QStringLiteral("control-hang=0.4"),
                QStringLiteral("hang-errno=ETIMEDOUT")});
        QVERIFY(brightness(10) < 300ms);
        QTRY_COMPARE(statuses.last(), QVariantList{"Kamera antwortet nicht"});
        QVERIFY(warnings.lines().first().startsWith(
            "[camera] V4L2-Kamera Meridax Simulated Camera antwortet nicht: "));
        QVERIFY2(controller->isRunning(), "the picture goes on");

        simcam({QStringLiteral("set"), QStringLiteral("control-hang=0")});
        brightness(20);
        QTRY_COMPARE(statuses.last(), QVariantList{""});
        QTRY_COMPARE(control("brightness"), 20);

        simcam({QStringLiteral("set"), QStringLiteral("control-hang=60")});
        const int calls = controlCalls();
        QVERIFY(brightness(30) < 300ms);
        QTRY_VERIFY(controlCalls() > calls);
        QElapsedTimer clock;
        clock.start();
        controller->stopCamera();
        controller.reset();
        QVERIFY(std::chrono::milliseconds(clock.elapsed()) < 2000ms);
        QVERIFY(ControlThread::anyLeftBehind());
        simcam({QStringLiteral("set"), QStringLiteral("control-hang=0")});
        QTRY_VERIFY(!ControlThread::anyLeftBehind());
    }

    void ordersOfBackendAndQt_data()
    {
        QTest::addColumn<bool>("isFirst");
        QTest::addColumn<bool>("takes");
        QTest::addColumn<bool>("qtWrites");
        QTest::newRow("backend first, takes") << true << true << false;
        QTest::newRow("backend first, refuses") << true << false << true;
        QTest::newRow("Qt first, backend takes") << false << true << true;
        QTest::newRow("Qt first, backend refuses") << false << false << true;
    }

    void ordersOfBackendAndQt()
    {
        QFETCH(bool, isFirst);
        QFETCH(bool, takes);
        QFETCH(bool, qtWrites);
        simcam({QStringLiteral("unplug")}); // for the values of a camera just switched on
        QTRY_VERIFY(QMediaDevices::videoInputs().isEmpty());
        simcam({QStringLiteral("plug")});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
        const auto backend = std::make_shared<IdleBackend>(takes);
        CameraController controller(
            nullptr, {backend, isFirst ? ControlOrder::BackendFirst : ControlOrder::QtFirst});
        const SignalRecorder caps(&controller, &CameraController::cameraCapabilitiesDetected);
        AppSettings settings = settingsFor(640, 480);
        settings.camera.focusValue = 40;
        controller.updateSettings(settings);
        controller.startCamera();
        QTRY_VERIFY(!controller.latestFrame().isNull());
        QTRY_COMPARE(caps.size(), 1); // follows the last write
        QVERIFY(backend->calls > 0);
        QTRY_COMPARE(control("focus_automatic_continuous"), qtWrites ? 0 : 1);
    }

    // What Qt's camera class makes of the same values on V4L2 must not reach the device.
    void valuesReachTheHardwareOfARunningCamera()
    {
        // When the stream starts, behind the back of its driver.
        simcam({QStringLiteral("set"), QStringLiteral("forgets=1")});
        CameraController controller;
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        const SignalRecorder caps(&controller, &CameraController::cameraCapabilitiesDetected);
        const SignalRecorder focusRanges(&controller, &CameraController::focusRangeDetected);
        AppSettings settings = settingsFor(640, 480);
        settings.camera.captureTimeMs = -56;
        settings.camera.focusValue = 380;
        controller.updateSettings(settings);
        controller.startCamera();
        QTRY_COMPARE(caps.size(), 1);
        const auto detected = caps[0][0].value<CameraCapabilities>();
        QCOMPARE(detected.gain, (ControlRange{0, 100, 1, 0, true, false}));
        QCOMPARE(focusRanges.size(), 1);
        QCOMPARE(focusRanges[0], (QVariantList{0, 1023}));
        QTRY_VERIFY(frames.size() >= 1);

        settings.camera.gain = 20;
        settings.camera.focusValue = 400;
        controller.updateSettings(settings);
        QTRY_COMPARE(control("auto_exposure"), 1);
        QTRY_COMPARE(control("exposure_time_absolute"), 206);
        QTRY_COMPARE(control("focus_automatic_continuous"), 0);
        QTRY_COMPARE(control("focus_absolute"), 400);
        QTRY_COMPARE(control("gain"), 20);

        settings.camera.captureTimeMs = -133;
        settings.camera.focusValue = 0;
        controller.updateSettings(settings);
        QTRY_COMPARE(control("auto_exposure"), 3);
        QTRY_COMPARE(control("focus_automatic_continuous"), 1);
        QTRY_COMPARE(control("focus_absolute"), 400);
    }

    void cameraWithoutControlsFallsBack()
    {
        simcam({QStringLiteral("set"), QStringLiteral("controls=0")});
        CameraController controller;
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        const SignalRecorder caps(&controller, &CameraController::cameraCapabilitiesDetected);
        const MessageRecorder messages(QtInfoMsg);
        controller.updateSettings(settingsFor(640, 480));
        controller.startCamera();
        QTRY_COMPARE(messages.lines(),
                     QStringList("[CameraCaps] queryCameraCapabilities returned false — UI fällt "
                                 "auf Default-Ranges zurück"));
        QTRY_VERIFY(frames.size() >= 1);
        QCOMPARE(caps.size(), 0);
    }

private:
    static int control(const char *name)
    {
        return simcam({QStringLiteral("get"), QStringLiteral("control.") + QLatin1String(name)})
            .toInt();
    }

    static int controlCalls()
    {
        return simcam({QStringLiteral("get"), QStringLiteral("control-calls")}).toInt();
    }

    static AppSettings settingsFor(int width, int height)
    {
        AppSettings settings;
        settings.camera.cameraResolutionX = width;
        settings.camera.cameraResolutionY = height;
        return settings;
    }

    /// Unplugs a camera that writes no frame at that moment.
    static void unplugBetweenFrames()
    {
        simcam({QStringLiteral("set"), QStringLiteral("stall=1")});
        simcam({QStringLiteral("unplug")});
    }

    /// Runs the camera's command line tool and returns what it prints.
    static QByteArray simcam(const QStringList &arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("LD_PRELOAD"));
        process.setProcessEnvironment(environment);
        process.start(qEnvironmentVariable("SIMCAM_TOOL"), arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("%s", process.readAllStandardError().constData());
        return process.readAllStandardOutput().trimmed();
    }
};

QTEST_MAIN(TestCameraController)
#include "tst_cameracontroller.moc"
