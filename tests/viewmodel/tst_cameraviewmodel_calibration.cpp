#include "ViewModelFixture.h"
#include "measurement/BlobAdvice.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <thread>

using namespace meridax;

/// The calibration as the interface sees it; the controller's signals are given by hand.
class TestCameraViewModelCalibration : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture::prepareProcess(); }

    void init()
    {
        QTest::failOnWarning();
        m_viewModel.reset();
        m_viewModel = fixture::firstStart();
    }

    void startClearsTheLastResult()
    {
        QCOMPARE(m_viewModel->totalGuidePositions(), 4);
        emit controller().blobMeasurementCaptured(QPointF(1, 2), 0);
        complete(QPointF(100, 50));
        emit controller().measureProgressChanged(1, 3);
        m_viewModel->setCalibrationPositions(5);

        QSignalSpy active(m_viewModel.get(), &CameraViewModel::calibrationActiveChanged);
        m_viewModel->setFocusTapModeActive(true);
        m_viewModel->startCalibration();
        QVERIFY(m_viewModel->calibrationActive());
        QVERIFY2(!m_viewModel->focusTapModeActive(), "a tap would move the lens");
        QCOMPARE(active.size(), 1);
        QVERIFY(m_viewModel->measurements().isEmpty());
        QVERIFY(!m_viewModel->hasPendingCenter());
        QVERIFY(!m_viewModel->fitResultValid());
        QCOMPARE(m_viewModel->fitRadius(), 0.0);
        QCOMPARE(m_viewModel->fitStdDev(), 0.0);
        QVERIFY(!m_viewModel->measureInProgress());
        QTRY_COMPARE(m_viewModel->totalGuidePositions(), 5);
        QCOMPARE(m_viewModel->currentGuideIndex(), 0);

        emit controller().runningChanged(false);
        QVERIFY2(!m_viewModel->calibrationActive(), "the camera stopped");
    }

    /// The processing thread's signals are queued: what was on its way when the calibration ended
    /// is none of the present state's.
    void lateSignalsAreDropped_data()
    {
        QTest::addColumn<std::function<void()>>("end");
        const auto row = [](const char *name, const std::function<void()> &end) {
            QTest::newRow(name) << end;
        };
        row("cancelled", [this] { m_viewModel->cancelCalibration(); });
        row("camera stopped", [this] { emit controller().runningChanged(false); });
        row("started anew", [this] { m_viewModel->startCalibration(); });
    }

    void lateSignalsAreDropped()
    {
        QFETCH(std::function<void()>, end);
        m_viewModel->startCalibration();
        std::thread([this] {
            emit controller().measureProgressChanged(2, 3);
            emit controller().blobMeasurementCaptured(QPointF(1, 2), 0);
            emit controller().blobInSectorChanged(true);
            complete(QPointF(100, 50));
        }).join();
        end();
        QCoreApplication::processEvents();
        QVERIFY(!m_viewModel->hasPendingCenter());
        QVERIFY(m_viewModel->measurements().isEmpty());
        QVERIFY(!m_viewModel->measureInProgress());
        QVERIFY(!m_viewModel->blobInSector());
        QVERIFY(!m_viewModel->fitResultValid());

        m_viewModel->startCalibration();
        complete(QPointF(100, 50));
        QVERIFY(m_viewModel->hasPendingCenter());
    }

    /// Otherwise the next start of the camera would go on measuring, unseen.
    void aStopEndsTheControllersCalibration()
    {
        m_viewModel->startCalibration();
        emit controller().runningChanged(false);
        QSignalSpy progress(&controller(), &CameraController::measureProgressChanged);
        controller().measurePosition();
        QCOMPARE(progress.size(), 0);
    }

    void measurementsAndProgress()
    {
        QSignalSpy progress(m_viewModel.get(), &CameraViewModel::measureProgressChanged);
        QCOMPARE(m_viewModel->measureProgressRatio(), 0.0);
        emit controller().measureProgressChanged(1, 4);
        emit controller().measureProgressChanged(1, 4);
        QCOMPARE(progress.size(), 1);
        QVERIFY(m_viewModel->measureInProgress());
        QCOMPARE(m_viewModel->measureProgressRatio(), 0.25);
        emit controller().measureProgressChanged(0, 0);
        QVERIFY(!m_viewModel->measureInProgress());

        emit controller().blobMeasurementCaptured(QPointF(10.5, 20.25), 0);
        emit controller().blobMeasurementCaptured(QPointF(30, 40), 1);
        const QVariantList expected{QVariantMap{{"step", 1}, {"x", 10.5}, {"y", 20.25}},
                                    QVariantMap{{"step", 2}, {"x", 30.0}, {"y", 40.0}}};
        QCOMPARE(m_viewModel->measurements(), expected);
        m_viewModel->cancelCalibration();
        QCOMPARE(m_viewModel->measurements(), expected);
    }

    void fitRating()
    {
        complete(QPointF(100, 50));
        QVERIFY(m_viewModel->qualityAssessable());
        QCOMPARE(m_viewModel->qualityLevel(), 0);
        QCOMPARE(m_viewModel->fitRadius(), 120.5);
        QCOMPARE(m_viewModel->fitStdDev(), 0.3);
        QCOMPARE(m_viewModel->dominantOrder(), 3);
        QCOMPARE(m_viewModel->dominantAmp(), 0.7);

        emit controller().calibrationQualityDetails(0.1, 220.0, 0, 0.0);
        QVERIFY(m_viewModel->coveragePoor());
        QCOMPARE(m_viewModel->qualityLevel(), 2);
        emit controller().calibrationFitDetails(3, 120.5, 0.0);
        QVERIFY(!m_viewModel->qualityAssessable());
        QCOMPARE(m_viewModel->qualityLevel(), 3);
    }

    void acceptedCentre()
    {
        m_viewModel->setOffsetX(7.0);
        m_viewModel->setOffsetEnabled(true);
        m_viewModel->acceptPendingCenter();
        QVERIFY2(!m_viewModel->calibrated(), "nothing was pending");
        QCOMPARE(m_viewModel->offsetX(), 7.0);

        complete(QPointF(9, 9));
        m_viewModel->discardPendingCenter();
        QVERIFY2(m_viewModel->fitResultValid(), "the figures stay on show");
        m_viewModel->acceptPendingCenter();
        QVERIFY2(!m_viewModel->calibrated(), "it was discarded");

        m_viewModel->startCalibration();
        complete(QPointF(801.25, 602.5));
        QVERIFY(!m_viewModel->calibrationActive());
        QVERIFY(m_viewModel->hasPendingCenter());
        QCOMPARE(m_viewModel->pendingCenterX(), 801.25);
        QCOMPARE(m_viewModel->pendingCenterY(), 602.5);
        QVERIFY(!m_viewModel->calibrated());

        QSignalSpy overlay(m_viewModel.get(), &CameraViewModel::overlaySettingsChanged);
        QSignalSpy calibrated(m_viewModel.get(), &CameraViewModel::calibratedChanged);
        QSignalSpy lock(m_viewModel.get(), &CameraViewModel::lockStateChanged);
        m_viewModel->acceptPendingCenter();
        QCOMPARE(overlay.size(), 1);
        QCOMPARE(calibrated.size(), 1);
        QCOMPARE(lock.size(), 1);
        QVERIFY(!m_viewModel->hasPendingCenter());
        QVERIFY(m_viewModel->calibrated());
        QVERIFY(m_viewModel->locked());
        QCOMPARE(m_viewModel->centerX(), 801.25);
        QCOMPARE(m_viewModel->centerY(), 602.5);
        QCOMPARE(m_viewModel->offsetX(), 0.0);
        QVERIFY(!m_viewModel->offsetEnabled());
        QTRY_VERIFY(loadSettings().camera.calibrated);
        QVERIFY(loadSettings().camera.locked);
    }

    void manualCentreEndsValidity()
    {
        complete(QPointF(800, 600));
        m_viewModel->acceptPendingCenter();
        m_viewModel->setCenterX(800);
        m_viewModel->setCenterY(600);
        QVERIFY(m_viewModel->calibrated());

        QSignalSpy calibrated(m_viewModel.get(), &CameraViewModel::calibratedChanged);
        m_viewModel->setCenterY(600.0000001);
        m_viewModel->setCenterX(801);
        QVERIFY(!m_viewModel->calibrated());
        QCOMPARE(calibrated.size(), 1);
        QVERIFY2(m_viewModel->locked(), "the lock is another matter");
    }

    void adviceIsAppliedAndTakenBack()
    {
        BlobAdvice advice;
        advice.kind = BlobAdvice::Kind::Candidate;
        advice.shown.emplace_back();
        advice.proposal = BlobSettings{.minArea = 120, .minCircularity = 0.81};
        emit controller().blobAdviceChanged(advice);
        QVERIFY2(m_viewModel->blobAdvice().isEmpty(), "no calibration runs");
        m_viewModel->applyBlobAdvice();
        QCOMPARE(m_viewModel->blobMinArea(), 500.0);

        m_viewModel->startCalibration();
        emit controller().blobAdviceChanged(advice);
        const QVariantMap told = m_viewModel->blobAdvice();
        QCOMPARE(told[QStringLiteral("kind")].toString(), QStringLiteral("candidate"));
        QCOMPARE(told[QStringLiteral("changes")].toList().size(), 2);
        QSignalSpy moved(m_viewModel.get(), &CameraViewModel::blobSettingsChanged);
        m_viewModel->applyBlobAdvice();
        QCOMPARE(moved.size(), 2); // the two that differ
        QCOMPARE(m_viewModel->blobMinArea(), 120.0);
        QCOMPARE(m_viewModel->blobMinCircularity(), 0.81);
        QVERIFY(m_viewModel->blobAdviceApplied());
        QVERIFY(m_viewModel->blobAdvice().isEmpty());
        QTRY_COMPARE(loadSettings().blob.minArea, 120.0);

        m_viewModel->undoBlobAdvice();
        QCOMPARE(m_viewModel->blobMinArea(), 500.0);
        QCOMPARE(m_viewModel->blobMinCircularity(), 0.9);
        QVERIFY(!m_viewModel->blobAdviceApplied());

        emit controller().blobAdviceChanged(advice);
        m_viewModel->applyBlobAdvice();
        m_viewModel->setBlobMinArea(130);
        QVERIFY2(!m_viewModel->blobAdviceApplied(), "the user has gone on");
        m_viewModel->undoBlobAdvice();
        QCOMPARE(m_viewModel->blobMinArea(), 130.0);
        emit controller().blobAdviceChanged(advice);
        m_viewModel->cancelCalibration();
        QVERIFY(m_viewModel->blobAdvice().isEmpty());
    }

    void lock()
    {
        QSignalSpy lock(m_viewModel.get(), &CameraViewModel::lockStateChanged);
        m_viewModel->unlockCalibration();
        QCOMPARE(lock.size(), 0);
        m_viewModel->lockCalibration();
        m_viewModel->lockCalibration();
        QCOMPARE(lock.size(), 1);
        QVERIFY(m_viewModel->locked());
        QVERIFY(!m_viewModel->calibrated());
        QTRY_VERIFY(loadSettings().camera.locked);
        m_viewModel->unlockCalibration();
        QVERIFY(!m_viewModel->locked());
    }

private:
    CameraController &controller() { return *m_viewModel->controller(); }

    /// What the controller reports after the last position.
    void complete(const QPointF &center)
    {
        emit controller().calibrationFitDetails(8, 120.5, 0.3);
        emit controller().calibrationQualityDetails(0.1, 45.0, 3, 0.7);
        emit controller().calibrationCompleted(center);
    }

    fixture::ViewModel m_viewModel;
};

QTEST_MAIN(TestCameraViewModelCalibration)
#include "tst_cameraviewmodel_calibration.moc"
