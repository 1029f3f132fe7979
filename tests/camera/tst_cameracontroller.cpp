#include "SignalRecorder.h"
#include "camera/CameraController.h"

#include <QMediaDevices>
#include <QProcess>
#include <QTest>

using namespace meridax;

// Against the simulated camera, which Qt Multimedia takes for a USB camera.
class TestCameraController : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // A test that failed may have left it unplugged.
        if (QMediaDevices::videoInputs().isEmpty())
            simcam({QStringLiteral("plug")});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
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

private:
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
