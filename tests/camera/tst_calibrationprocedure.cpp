#include "SignalRecorder.h"
#include "TestFrames.h"
#include "TestWarnings.h"
#include "camera/CameraController.h"
#include "measurement/BlobAdvice.h"

#include <QTest>
#include <QtMath>

#include <cmath>
#include <functional>

using namespace meridax;

namespace {

const QSize kSize(1280, 720);
const QPointF kCentre(651.3, 347.8);
constexpr double kRadius = 210.0;

QPointF markAt(double degrees)
{
    const double t = qDegreesToRadians(degrees);
    return kCentre + kRadius * QPointF(std::cos(t), std::sin(t));
}

/// A controller with a calibration, fed with drawn frames one by one.
class Procedure
{
public:
    explicit Procedure(int positions, int framesPerPosition = 2)
    {
        m_settings.calibrationMeasureFrames = framesPerPosition;
        m_settings.camera.centerX = kSize.width() / 2.0;
        m_settings.camera.centerY = kSize.height() / 2.0;
        controller.updateSettings(m_settings);
        controller.startCamera();
        QObject::connect(&controller, &CameraController::frameReady, &m_context,
                         [this](const QImage &frame) {
                             last = frame;
                             ++m_arrived;
                         });
        record("guide", &CameraController::guideIndexChanged);
        record("progress", &CameraController::measureProgressChanged);
        record("captured", &CameraController::blobMeasurementCaptured);
        record("fit", &CameraController::calibrationFitDetails);
        record("quality", &CameraController::calibrationQualityDetails);
        record("completed", &CameraController::calibrationCompleted);
        record("error", &CameraController::errorOccurred);
        events.clear();
        controller.startCalibration(positions);
    }

    /// Feeds one frame and waits until it has come out.
    bool feed(const QList<QPointF> &marks)
    {
        const int before = m_arrived;
        return offerWhenFree(controller, frameWithMarks(kSize, marks, radius)) &&
               QTest::qWaitFor([&] { return m_arrived > before; });
    }

    /// Feeds marks of that size until the advice fits.
    bool feedUntil(const QList<QPointF> &marks, double markRadius,
                   const std::function<bool(const BlobAdvice &)> &fits)
    {
        BlobAdvice advice;
        const QMetaObject::Connection connection =
            QObject::connect(&controller, &CameraController::blobAdviceChanged, &m_context,
                             [&advice](const BlobAdvice &told) { advice = told; });
        radius = markRadius;
        for (int frames = 0; frames < 200 && !fits(advice); ++frames) {
            if (!feed(marks))
                break;
            QCoreApplication::processEvents();
        }
        QObject::disconnect(connection);
        return fits(advice);
    }

    void setBlobSettings(const BlobSettings &blob)
    {
        m_settings.blob = blob;
        controller.updateSettings(m_settings);
    }

    bool measure(const QList<QPointF> &marks)
    {
        controller.measurePosition();
        bool fed = true;
        for (int i = 0; i < m_settings.calibrationMeasureFrames; ++i)
            fed = fed && feed(marks);
        return fed;
    }

    CameraController controller;
    QStringList events;
    QImage last;
    double radius = 24.0;

private:
    template <typename Signal>
    void record(const char *name, Signal signal)
    {
        QObject::connect(&controller, signal, &m_context,
                         [this, name] { events << QString::fromLatin1(name); });
    }

    QObject m_context;
    AppSettings m_settings;
    int m_arrived = 0;
};

} // namespace

class TestCalibrationProcedure : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(unexpectedWarning()); }

    void findsTheCentre()
    {
        Procedure run(8);
        const SignalRecorder completed(&run.controller, &CameraController::calibrationCompleted);
        const SignalRecorder captured(&run.controller, &CameraController::blobMeasurementCaptured);
        const SignalRecorder guide(&run.controller, &CameraController::guideIndexChanged);
        const SignalRecorder inSector(&run.controller, &CameraController::blobInSectorChanged);
        for (int i = 0; i < 8; ++i) {
            QVERIFY(run.feed({markAt(-45 - i * 45)}));
            QVERIFY(inSector.last()[0].toBool());
            run.events.clear();
            QVERIFY(run.measure({markAt(-45 - i * 45)}));
        }
        QTRY_COMPARE(completed.size(), 1);
        const QPointF error = completed[0][0].toPointF() - kCentre;
        QVERIFY2(std::hypot(error.x(), error.y()) < 0.03,
                 qPrintable(QString::number(std::hypot(error.x(), error.y()))));
        QCOMPARE(captured.size(), 8);
        QCOMPARE(captured[7][1].toInt(), 7);
        QCOMPARE(guide.last(), (QVariantList{8, 8}));
        // The figures come before the centre, since that opens the dialog which shows them.
        QCOMPARE(run.events, (QStringList{"progress", "progress", "progress", "progress",
                                          "captured", "guide", "fit", "quality", "completed"}));
    }

    void oneFrameFewMarksAreMarkedAndOthersDoNotCount()
    {
        Procedure run(3, 2);
        const SignalRecorder progress(&run.controller, &CameraController::measureProgressChanged);
        const SignalRecorder blobs(&run.controller, &CameraController::blobsDetected);
        const QPointF mark = markAt(-45);
        QVERIFY(run.feed({mark}));
        QTRY_COMPARE(blobs.last()[0].toInt(), 1);
        // A green ring of 0.55 times the diameter.
        const QPoint ring = (mark + QPointF(0.55 * 48, 0)).toPoint();
        QVERIFY(run.last.pixelColor(ring).green() > 200);
        QVERIFY(run.last.pixelColor(ring).red() < 100);

        run.controller.measurePosition();
        QVERIFY(run.feed({mark}));
        QVERIFY(run.feed({mark, markAt(100)})); // two: neither counts
        QTRY_COMPARE(blobs.last()[0].toInt(), 2);
        QVERIFY(run.last.pixelColor(ring).red() > 200);
        QVERIFY(run.feed({})); // none: does not count
        QTRY_COMPARE(blobs.last()[0].toInt(), 0);
        QTRY_COMPARE(progress.last(), (QVariantList{1, 2}));
        QVERIFY(run.feed({mark}));
        QTRY_COMPARE(progress.last(), (QVariantList{0, 0}));
        QCOMPARE(run.events.count(QStringLiteral("captured")), 1);
    }

    void coincidentPointsEndWithoutACentre()
    {
        Procedure run(3, 1);
        const SignalRecorder errors(&run.controller, &CameraController::errorOccurred);
        for (int i = 0; i < 3; ++i)
            QVERIFY(run.measure({markAt(-45)}));
        QTRY_COMPARE(errors.size(), 1);
        QCOMPARE(errors[0][0].toString(),
                 QStringLiteral("Kalibrierungszentrum konnte nicht berechnet werden."));
        QVERIFY(!run.events.contains(QStringLiteral("completed")));
        // Frames take the live path again, where nothing is searched.
        const SignalRecorder blobs(&run.controller, &CameraController::blobsDetected);
        QVERIFY(run.feed({markAt(-45), markAt(45)}));
        QCOMPARE(blobs.size(), 0);
    }

    void cancelAndAnewStartForgetThePoints()
    {
        Procedure run(3, 1);
        const SignalRecorder captured(&run.controller, &CameraController::blobMeasurementCaptured);
        QVERIFY(run.measure({markAt(-45)}));
        run.controller.cancelCalibration();
        run.controller.measurePosition();   // ignored: none is active
        run.controller.startCalibration(2); // at least three
        for (int i = 0; i < 3; ++i)
            QVERIFY(run.measure({markAt(-45 - i * 120)}));
        QTRY_COMPARE(captured.size(), 4);
        QCOMPARE(captured[1][1].toInt(), 0);
        QTRY_VERIFY(run.events.contains(QStringLiteral("completed")));
    }

    void stoppingInTheMiddleLeavesNoTraceOfAFrame()
    {
        Procedure run(3, 5);
        run.controller.measurePosition();
        QVERIFY(run.feed({markAt(-45)}));
        offer(run.controller, frameWithMarks(kSize, {markAt(-45)}));
        run.controller.stopCamera();
        run.controller.startCamera();
        run.controller.startCalibration(3);
        QVERIFY(run.measure({markAt(-45)}));
        QTRY_VERIFY(run.events.contains(QStringLiteral("captured")));
    }

    void blobSettingsReachTheNextFrame()
    {
        CameraController controller;
        AppSettings settings;
        controller.startCamera();
        controller.startCalibration(3);
        const SignalRecorder blobs(&controller, &CameraController::blobsDetected);
        const QImage frame = frameWithMarks(kSize, {{600, 400}}, 60.0);
        QVERIFY(offer(controller, frame));
        settings.blob.minArea = 40000; // while the frame from before it is being searched
        controller.updateSettings(settings);
        QVERIFY(offerWhenFree(controller, frame));
        QTRY_COMPARE(blobs.size(), 2);
        QCOMPARE(blobs[0][0].toInt(), 1);
        QCOMPARE(blobs[1][0].toInt(), 0);
    }

    void saysWhyAndMends()
    {
        using Kind = BlobAdvice::Kind;
        Procedure run(3);
        const SignalRecorder told(&run.controller, &CameraController::blobAdviceChanged);
        const SignalRecorder blobs(&run.controller, &CameraController::blobsDetected);
        const QPointF mark = markAt(-45);
        for (int i = 0; i < 8; ++i)
            QVERIFY(run.feed({mark}));
        QTRY_COMPARE(blobs.size(), 1);
        QCOMPARE(told.size(), 0); // nothing is searched while one blob is found

        std::optional<BlobSettings> proposal;
        QVERIFY(run.feedUntil({mark}, 10.0, [&](const BlobAdvice &advice) {
            proposal = advice.proposal;
            return advice.kind == Kind::Candidate && advice.proposal &&
                   advice.shown[0].shortfalls[0].filter == BlobFilter::MinArea &&
                   QLineF(advice.shown[0].centre, mark).length() < 1.0;
        }));
        run.setBlobSettings(*proposal);
        QVERIFY(run.feedUntil({mark}, 10.0, [&](const BlobAdvice &advice) {
            return advice.kind == Kind::None && blobs.last()[0].toInt() == 1;
        }));
        QVERIFY(run.feedUntil({mark, markAt(90)}, 10.0, [](const BlobAdvice &advice) {
            return advice.kind == Kind::Several && advice.shown.size() == 2 && advice.inTheWay;
        }));
        QVERIFY(run.feedUntil({}, 10.0, [](const BlobAdvice &advice) {
            return advice.kind == Kind::Fault && advice.fault == PictureFault::NoContrast;
        }));
    }

    void startAndCancelTellEverything()
    {
        CameraController controller;
        const SignalRecorder progress(&controller, &CameraController::measureProgressChanged);
        const SignalRecorder inSector(&controller, &CameraController::blobInSectorChanged);
        const SignalRecorder alignment(&controller, &CameraController::blobSectorAlignmentChanged);
        const SignalRecorder guide(&controller, &CameraController::guideIndexChanged);
        controller.measurePosition();
        QCOMPARE(progress.size(), 0);
        controller.startCalibration(5);
        QCOMPARE(guide.last(), (QVariantList{0, 5}));
        controller.cancelCalibration();
        QCOMPARE(progress.last(), (QVariantList{0, 0}));
        QCOMPARE(inSector.size(), 2);
        QCOMPARE(alignment.size(), 2);
        QVERIFY(!inSector.last()[0].toBool());
        QCOMPARE(alignment.last()[0].toDouble(), 0.0);
        QCOMPARE(guide.size(), 1);
    }

    void aFrameFromBeforeAStartDoesNotOpenThePipeline()
    {
        CameraController controller;
        controller.startCamera();
        controller.startCalibration(3);
        FrameGate gate(controller);
        const auto drawn = [](int width, int height) {
            return frameWithMarks({width, height}, {});
        };
        QVERIFY(offer(controller, drawn(640, 480)));
        gate.awaitFrame();
        controller.startCalibration(3); // gives the first frame up
        QVERIFY(offer(controller, drawn(480, 360)));
        gate.letGo();
        gate.awaitFrame();
        const bool takenBesideTheSecond = offer(controller, drawn(320, 240));
        gate.letGo();
        QVERIFY(offerWhenFree(controller, drawn(160, 120)));
        gate.awaitFrame();
        gate.letGo();
        QVERIFY(!takenBesideTheSecond);
        QCOMPARE(gate.widths(), QList<int>({640, 480, 160}));
    }

    void liveFrameStaysTheLastOneFromBefore()
    {
        Procedure run(3, 1);
        QVERIFY(run.controller.latestFrame().isNull());
        QVERIFY(run.feed({markAt(-45)}));
        QVERIFY(run.controller.latestFrame().isNull());
        run.controller.cancelCalibration();
        QVERIFY(run.feed({}));
        QVERIFY(!run.controller.latestFrame().isNull());
    }
};

QTEST_MAIN(TestCalibrationProcedure)
#include "tst_calibrationprocedure.moc"
