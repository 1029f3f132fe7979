#include "SignalRecorder.h"
#include "TestFrames.h"
#include "TestWarnings.h"
#include "camera/CameraController.h"
#include "camera/FrameImage.h"
#include "camera/SoftwareAdjustments.h"

#include <QTest>

#include <opencv2/imgproc.hpp>

using namespace meridax;

// Without a device startCamera() fails, but frames that are handed in are processed and published
// as those of a camera: the pipeline by itself.
class TestFramePipeline : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(unexpectedWarning()); }

    void noDeviceIsReported()
    {
        CameraController controller;
        const SignalRecorder errors(&controller, &CameraController::errorOccurred);
        const SignalRecorder running(&controller, &CameraController::runningChanged);
        controller.startCamera();
        QCOMPARE(errors.size(), 1);
        QCOMPARE(errors[0][0].toString(), QStringLiteral("Keine passende Kamera gefunden."));
        QCOMPARE(running.size(), 1);
        QCOMPARE(running[0][0].toBool(), false);
        QVERIFY(!controller.isRunning());
    }

    void publishesWhatTheStepsGive_data()
    {
        QTest::addColumn<int>("brightness");
        QTest::addColumn<int>("contrast");
        QTest::addColumn<int>("saturation");
        QTest::newRow("neutral") << 0 << 50 << 50;
        QTest::newRow("all set") << 12 << 70 << 80;
        QTest::newRow("black") << 0 << 0 << 50;
    }

    void publishesWhatTheStepsGive()
    {
        QFETCH(int, brightness);
        QFETCH(int, contrast);
        QFETCH(int, saturation);
        AppSettings settings;
        settings.camera.brightness = brightness;
        settings.camera.contrast = contrast;
        settings.camera.saturation = saturation;

        CameraController controller;
        controller.updateSettings(settings);
        controller.startCamera();
        const QImage source = frameWithMarks({641, 480}, {{300.5, 200.25}});
        const QImage published = publish(controller, source);

        cv::Mat bgr;
        cv::cvtColor(wrapRgbImage(source), bgr, cv::COLOR_RGB2BGR);
        applySoftwareAdjustments(bgr, settings.camera);
        const QImage expected = rgbImageFromBgr(bgr);
        const QRect belowTheStamp(0, 40, 641, 440);
        QCOMPARE(published.copy(belowTheStamp), expected.copy(belowTheStamp));
        QVERIFY(published.copy(0, 0, 200, 40) != expected.copy(0, 0, 200, 40));
        QCOMPARE(controller.latestFrame(), published);
        QCOMPARE(source, frameWithMarks({641, 480}, {{300.5, 200.25}}));
    }

    void aFrameDuringAnotherIsDroppedUnread()
    {
        CameraController controller;
        controller.startCamera();
        FrameGate gate(controller);
        QVERIFY(offer(controller, frameWithMarks({640, 480}, {})));
        gate.awaitFrame();
        const bool taken = offer(controller, frameWithMarks({480, 360}, {}));
        gate.letGo();
        QVERIFY(offerWhenFree(controller, frameWithMarks({320, 240}, {})));
        gate.awaitFrame();
        gate.letGo();
        QVERIFY(!taken);
        QCOMPARE(gate.widths(), QList<int>({640, 320}));
    }

    void aFrameOverlappingAStopIsDiscarded()
    {
        CameraController controller;
        controller.startCamera();
        AppSettings slow;
        slow.camera.saturation = 80;
        controller.updateSettings(slow);
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        QVERIFY(offer(controller, frameWithMarks({3264, 2448}, {})));
        controller.stopCamera();
        controller.startCamera();
        const QImage next = publish(controller, frameWithMarks({320, 240}, {}));
        QCOMPARE(next.size(), QSize(320, 240));
        QCOMPARE(frames.size(), 1);
    }

    void uselessFramesPassWithoutATrace()
    {
        CameraController controller;
        controller.startCamera();
        const SignalRecorder frames(&controller, &CameraController::frameReady);
        controller.onVideoFrame(QVideoFrame());
        // A frame without memory behind it: its image is null.
        controller.onVideoFrame(
            QVideoFrame(QVideoFrameFormat({0, 0}, QVideoFrameFormat::Format_Jpeg)));
        QCOMPARE(publish(controller, frameWithMarks({320, 240}, {})).size(), QSize(320, 240));
        QCOMPARE(frames.size(), 1);
    }

    void sizeIsReportedOnceAndInformationEachTime()
    {
        CameraController controller;
        controller.startCamera();
        const SignalRecorder sizes(&controller, &CameraController::actualResolutionChanged);
        const SignalRecorder information(&controller, &CameraController::frameInfoChanged);
        publish(controller, frameWithMarks({320, 240}, {}));
        publish(controller, frameWithMarks({320, 240}, {}));
        publish(controller, frameWithMarks({640, 480}, {}));
        QCOMPARE(sizes.size(), 2);
        QCOMPARE(sizes[1], (QVariantList{640, 480}));
        QCOMPARE(information.size(), 3);
        QCOMPARE(information[2][0].toString(), QStringLiteral("640 x 480"));
    }

private:
    /// Hands in one frame and returns what comes out.
    static QImage publish(CameraController &controller, const QImage &image)
    {
        QImage published;
        QObject context;
        connect(&controller, &CameraController::frameReady, &context,
                [&published](const QImage &frame) { published = frame; });
        const bool arrived = offerWhenFree(controller, image) &&
                             QTest::qWaitFor([&] { return published.size() == image.size(); });
        return arrived ? published : QImage();
    }
};

QTEST_MAIN(TestFramePipeline)
#include "tst_framepipeline.moc"
