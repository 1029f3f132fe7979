#include "SignalRecorder.h"
#include "camera/CameraController.h"
#include "simcam/SimcamTool.h"
#include "simcam/V4l2Client.h"

#include <QElapsedTimer>
#include <QMediaDevices>
#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <random>

using namespace meridax;

// The sweep with the simulated camera's motor and optics. MERIDAX_SWEEPS sets the number of random
// best positions.
class TestSpotFocus : public QObject
{
    Q_OBJECT

    static AppSettings settingsFor(int width, int height)
    {
        AppSettings settings;
        settings.camera.cameraResolutionX = width;
        settings.camera.cameraResolutionY = height;
        settings.camera.focusValue = 77;
        settings.camera.captureTimeMs = -49;
        return settings;
    }

    static QPointF mark()
    {
        const auto truth = simcamValues(QStringLiteral("truth"));
        return {truth["mark_x"].toDouble(), truth["mark_y"].toDouble()};
    }

    static int deviceFocus() { return V4l2Client().control(V4L2_CID_FOCUS_ABSOLUTE); }

    /// Starts the camera and waits until its focus range is known.
    static bool start(CameraController &controller)
    {
        const SignalRecorder range(&controller, &CameraController::focusRangeDetected);
        controller.startCamera();
        return QTest::qWaitFor(
            [&] { return !range.isEmpty() && !controller.latestFrame().isNull(); }, 10000);
    }

private slots:
    void initTestCase()
    {
        const QMediaDevices devices; // may warn where there is no sound server
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
    }

    void init() { QTest::failOnWarning(); }

    void cleanup()
    {
        simcam({QStringLiteral("set"), QStringLiteral("controls=2"),
                QStringLiteral("focus-best=380"), QStringLiteral("frame-delay=0"),
                QStringLiteral("noise=2")});
    }

    void endsAtTheSharpest_data()
    {
        QTest::addColumn<QString>("delay");
        QTest::addColumn<int>("runs");
        const int runs = std::max(1, qEnvironmentVariableIntValue("MERIDAX_SWEEPS"));
        QTest::newRow("30 fps") << QStringLiteral("0") << runs;
        if (runs > 1)
            QTest::newRow("5 fps") << QStringLiteral("0.1667") << runs;
    }

    void endsAtTheSharpest()
    {
        QFETCH(QString, delay);
        QFETCH(int, runs);
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        QVERIFY(start(controller));
        simcam({QStringLiteral("set"), QStringLiteral("frame-delay=") + delay});
        const SignalRecorder progress(&controller, &CameraController::focusSweepProgress);
        SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        std::mt19937 random(11);
        const double fineStep = 1023 / 11 / 4.0;
        double worst = 0.0;
        double seconds = 0.0;
        for (int run = 0; run < runs; ++run) {
            const int best = std::uniform_int_distribution<>(1, 1023)(random);
            simcam({QStringLiteral("set"), QStringLiteral("focus-best=%1").arg(best)});
            const QPointF target = mark();
            QElapsedTimer clock;
            clock.start();
            controller.startFocusSweep(target.x(), target.y());
            controller.startFocusSweep(0, 0); // ignored
            QTRY_COMPARE_WITH_TIMEOUT(finished.size(), run + 1, 60000);
            seconds += clock.elapsed() / 1000.0;
            QCOMPARE(finished[run][1].toInt(), 0);
            const int found = finished[run][0].toInt();
            worst = std::max(worst, std::abs(found - best) * 1.0);
            QTRY_COMPARE(deviceFocus(), found);
            QVERIFY2(std::abs(found - best) <= std::ceil(fineStep),
                     qPrintable(QStringLiteral("%1 instead of %2").arg(found).arg(best)));
        }
        QVERIFY(progress.last()[0].toInt() <= 21);
        qInfo("%d sweeps, %.2f s each, worst error %.0f of a fine step of %.0f", runs,
              seconds / runs, worst, fineStep);
    }

    /// Focus ranges from 1 are common, and there 1 is automatic.
    void neverAutomatic()
    {
        simcam(
            {QStringLiteral("set"), QStringLiteral("controls=4"), QStringLiteral("focus-best=1")});
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        QVERIFY(start(controller));
        const auto isAutomatic = [] { return V4l2Client().control(V4L2_CID_FOCUS_AUTO); };
        connect(&controller, &CameraController::focusSweepProgress, this,
                [=] { QCOMPARE(isAutomatic(), 0); });
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        controller.startFocusSweep(mark().x(), mark().y());
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60000);
        QCOMPARE(finished[0][1].toInt(), 0);
        QVERIFY(finished[0][0].toInt() >= 2 && finished[0][0].toInt() < 30);
        QTRY_COMPARE(deviceFocus(), finished[0][0].toInt());
        QCOMPARE(isAutomatic(), 0);
    }

    void aBlankAreaLeavesTheFocus()
    {
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        QVERIFY(start(controller));
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        simcam({QStringLiteral("set"), QStringLiteral("noise=0")});
        controller.startFocusSweep(60, 420); // outside the sleeve it is dark
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 20000);
        QCOMPARE(finished[0][1].toInt(), 1);
        QCOMPARE(finished[0][0].toInt(), 77);
        QTRY_COMPARE(deviceFocus(), 77);
    }

    void interrupted_data()
    {
        QTest::addColumn<QByteArray>("by");
        QTest::newRow("cancel") << QByteArray("cancel");
        QTest::newRow("cancel, another focus was chosen") << QByteArray("choice");
        QTest::newRow("stop") << QByteArray("stop");
    }

    void interrupted()
    {
        QFETCH(QByteArray, by);
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        QVERIFY(start(controller));
        const SignalRecorder progress(&controller, &CameraController::focusSweepProgress);
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        controller.startFocusSweep(mark().x(), mark().y());
        QTRY_VERIFY(progress.size() >= 2);
        QTRY_VERIFY(deviceFocus() != 77);
        AppSettings settings = settingsFor(640, 480);
        if (by == "choice") {
            settings.camera.focusValue = 99;
            controller.updateSettings(settings);
        }
        if (by == "stop")
            controller.stopCamera();
        else
            controller.cancelFocusSweep();
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished[0], (QVariantList{settings.camera.focusValue, 3}));
        QTRY_COMPARE(deviceFocus(), settings.camera.focusValue);
    }

    void aControlMovedMeanwhileStays()
    {
        CameraController controller;
        AppSettings settings = settingsFor(640, 480);
        controller.updateSettings(settings);
        QVERIFY(start(controller));
        const SignalRecorder progress(&controller, &CameraController::focusSweepProgress);
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        controller.startFocusSweep(mark().x(), mark().y());
        QTRY_VERIFY(progress.size() >= 2);
        settings.camera.captureTimeMs = -44;
        controller.updateSettings(settings);
        QVERIFY2(deviceFocus() != 77, "the lens went back in the middle of the sweep");
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60000);
        QCOMPARE(finished[0][1].toInt(), 0);
        QTRY_COMPARE(deviceFocus(), finished[0][0].toInt());
        QCOMPARE(V4l2Client().control(V4L2_CID_EXPOSURE_ABSOLUTE), 474);
    }

    void unpluggedInTheMiddle()
    {
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        QVERIFY(start(controller));
        const SignalRecorder progress(&controller, &CameraController::focusSweepProgress);
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        controller.startFocusSweep(mark().x(), mark().y());
        QTRY_VERIFY(progress.size() >= 2);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^\\[camera\\]")));
        simcam({QStringLiteral("unplug")});
        QTRY_COMPARE(errors.size(), 1);
        QVERIFY(!controller.isRunning());
        controller.cancelFocusSweep(); // as the interface does when the camera stops
        QCOMPARE(finished.last(), (QVariantList{77, 3}));
        simcam({QStringLiteral("plug")});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
    }

    void endsWhenTheCameraDoesNotAnswer()
    {
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        QVERIFY(start(controller));
        const SignalRecorder progress(&controller, &CameraController::focusSweepProgress);
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        controller.startFocusSweep(mark().x(), mark().y());
        QTRY_VERIFY(progress.size() >= 2);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("antwortet nicht: ")));
        simcam({QStringLiteral("set"), QStringLiteral("control-hang=0.5"),
                QStringLiteral("hang-errno=ETIMEDOUT")});
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(finished[0], (QVariantList{77, 2}));
        simcam({QStringLiteral("set"), QStringLiteral("control-hang=0")});
    }

    // Frames that were exposed before the lens has been told where to go say nothing.
    void waitsForASlowCamera()
    {
        CameraController controller;
        controller.updateSettings(settingsFor(640, 480));
        QVERIFY(start(controller));
        simcam({QStringLiteral("set"), QStringLiteral("control-hang=0.05"),
                QStringLiteral("hang-errno=0")});
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        controller.startFocusSweep(mark().x(), mark().y());
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60000);
        simcam({QStringLiteral("set"), QStringLiteral("control-hang=0")});
        QCOMPARE(finished[0][1].toInt(), 0);
        QVERIFY2(std::abs(finished[0][0].toInt() - 380) <= std::ceil(1023 / 11 / 4.0),
                 qPrintable(finished[0][0].toString()));
    }

    void withoutARange()
    {
        CameraController controller;
        const SignalRecorder finished(&controller, &CameraController::focusSweepFinished);
        controller.startFocusSweep(10, 10);
        QCOMPARE(finished[0][1].toInt(), 0); // no camera: nothing to report
        AppSettings settings = settingsFor(640, 480);
        controller.updateSettings(settings);
        QVERIFY(start(controller));
        settings.camera.focusRangeMax = 0; // as for a camera without a motor
        controller.updateSettings(settings);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("Kein nutzbarer Fokusbereich")));
        controller.startFocusSweep(10, 10);
        QCOMPARE(finished[1], (QVariantList{77, 2}));
    }
};

QTEST_MAIN(TestSpotFocus)
#include "tst_spotfocus.moc"
