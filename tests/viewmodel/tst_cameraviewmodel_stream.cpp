#include "SignalRecorder.h"
#include "ViewModelFixture.h"

#include <QMediaDevices>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

using namespace meridax;

/// The view model with the simulated camera: choice, stream and loss of the camera.
class TestCameraViewModelStream : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture::prepareProcess(); }

    void init()
    {
        // A test that failed may have left it unplugged.
        if (QMediaDevices::videoInputs().isEmpty())
            fixture::simcam({QStringLiteral("plug")});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
    }

    void listsTheCamera()
    {
        AppSettings settings;
        settings.camera.cameraResolutionX = 1270;
        settings.camera.cameraResolutionY = 730;
        settings.camera.gain = 11;
        auto viewModel = fixture::startWith(settings);
        const QCameraDevice device = QMediaDevices::videoInputs().constFirst();
        QCOMPARE(viewModel->cameraNames(), QStringList{device.description()});
        QCOMPARE(viewModel->selectedCameraName(), device.description());
        QVERIFY(viewModel->resolutionOptions().size() > 1);
        QVERIFY(viewModel->resolutionOptions()
                    .at(viewModel->selectedResolutionIndex())
                    .startsWith("1280 x 720  @ "));
        QCOMPARE(viewModel->resolutionX(), 1280);
        QCOMPARE(viewModel->centerX(), 640.0);
        QCOMPARE(viewModel->centerY(), 360.0);
        QVERIFY(!viewModel->offsetEnabled());
        QVERIFY(viewModel->resolutionMinX() < viewModel->resolutionMaxX());
        viewModel.reset();
        QCOMPARE(loadSettings().camera.cameraId,
                 "/dev/v4l/by-id/usb-Meridax_Simulated_Camera-video-index0");
    }

    // Which node a camera gets depends on what was plugged in before it.
    void whatIsStoredStaysWithItsCamera_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("same");
        const QString name = QStringLiteral("Meridax Simulated Camera");
        QTest::newRow("file of an earlier version") << "/dev/video0" << name << true;
        QTest::newRow("another camera at the old node") << "/dev/video0" << "Okular" << false;
        QTest::newRow("plugged in elsewhere")
            << "/dev/v4l/by-id/usb-Meridax_Simulated_Camera-video-index0" << name << true;
    }

    void whatIsStoredStaysWithItsCamera()
    {
        QFETCH(QString, id);
        QFETCH(QString, name);
        QFETCH(bool, same);
        AppSettings settings;
        settings.camera.cameraId = id;
        settings.camera.cameraName = name;
        settings.camera.brightness = 17;
        settings.camera.locked = true;
        settings.cameraProfiles[id].restoreOnConnect = true;
        const auto viewModel = fixture::startWith(settings);
        QCOMPARE(viewModel->brightness(), same ? 17 : 0);
        QCOMPARE(viewModel->locked(), same);
        QCOMPARE(viewModel->profileRestoreOnConnect(), same);
    }

    void aSecondCameraChangesNothingOfTheRunningOne_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("another") << "Zweite";
        QTest::newRow("twin") << "Meridax Simulated Camera";
    }

    void aSecondCameraChangesNothingOfTheRunningOne()
    {
        QFETCH(QString, name);
        const auto viewModel = fixture::firstStart();
        viewModel->setBrightness(30);
        viewModel->startCamera();
        QTRY_COMPARE(viewModel->focusRangeMax(), 1023);
        emit viewModel->controller()->calibrationCompleted(QPointF(10, 20));
        viewModel->acceptPendingCenter();
        fixture::simcam({"plug", "--new", "--node", "video40", "--name", name});
        const auto unplug = qScopeGuard([] { fixture::simcam({"unplug", "--node", "video40"}); });
        QTRY_COMPARE(viewModel->cameraNames().size(), 2);
        QCOMPARE(viewModel->focusRangeMax(), 1023);
        QCOMPARE(viewModel->brightness(), 30);
        QVERIFY(viewModel->calibrated() && viewModel->locked());
        QVERIFY(viewModel->running());
        viewModel->stopCamera();
    }

    void resolutionChangeDropsTheCalibration()
    {
        const auto viewModel = fixture::firstStart();
        emit viewModel->controller()->calibrationCompleted(QPointF(10, 20));
        viewModel->acceptPendingCenter();
        viewModel->setOffsetX(3);

        viewModel->setSelectedResolutionIndex(viewModel->selectedResolutionIndex());
        QVERIFY2(viewModel->calibrated(), "the same resolution");
        QCOMPARE(viewModel->centerX(), 10.0);
        viewModel->setSelectedResolutionIndex(-1);
        viewModel->setSelectedResolutionIndex(int(viewModel->resolutionOptions().size()));
        QVERIFY(viewModel->calibrated());

        emit viewModel->controller()->calibrationCompleted(QPointF(30, 40));
        QVERIFY(viewModel->hasPendingCenter());
        viewModel->setSelectedResolutionIndex(0);
        QVERIFY2(!viewModel->hasPendingCenter(), "it is in pixels of the old resolution");
        QCOMPARE(viewModel->selectedResolutionIndex(), 0);
        QVERIFY(!viewModel->calibrated());
        QVERIFY(!viewModel->locked());
        QCOMPARE(viewModel->centerX(), viewModel->resolutionX() * 0.5);
        QCOMPARE(viewModel->centerY(), viewModel->resolutionY() * 0.5);
        QCOMPARE(viewModel->offsetX(), 0.0);
        QTRY_COMPARE(loadSettings().camera.cameraResolutionX, viewModel->resolutionX());
    }

    /// The stored camera has another id, so the present one starts from the defaults.
    void anotherCameraResetsTheValues()
    {
        AppSettings settings;
        settings.camera.cameraId = QStringLiteral("gone");
        settings.camera.cameraName = QMediaDevices::videoInputs().constFirst().description();
        settings.camera.focusValue = 7;
        settings.camera.captureTimeMs = 3;
        settings.camera.contrast = 70;
        settings.camera.saturation = 80;
        settings.camera.locked = true;
        const auto viewModel = fixture::startWith(settings);
        QCOMPARE(viewModel->focusValue(), 0);
        QCOMPARE(viewModel->exposure(), 0);
        QCOMPARE(viewModel->contrast(), 50);
        QCOMPARE(viewModel->saturation(), 50);
        QVERIFY(!viewModel->locked());
    }

    void choiceBetweenTwoCameras()
    {
        const auto viewModel = fixture::firstStart();
        const QString first = viewModel->selectedCameraName();
        fixture::simcam({"plug", "--new", "--node", "video40", "--name", "Zweite"});
        auto unplugSecond = qScopeGuard([] { fixture::simcam({"unplug", "--node", "video40"}); });
        QTRY_COMPARE(viewModel->cameraNames().size(), 2);
        QCOMPARE(viewModel->selectedCameraName(), first);

        viewModel->setBrightness(30);
        viewModel->setGain(5);
        viewModel->addFocusPreset("der ersten Kamera");
        emit viewModel->controller()->calibrationCompleted(QPointF(10, 20));
        viewModel->acceptPendingCenter();
        emit viewModel->controller()->calibrationCompleted(QPointF(30, 40));
        const int second = int(viewModel->cameraNames().indexOf("Zweite"));
        viewModel->setSelectedCameraIndex(2);
        QCOMPARE(viewModel->brightness(), 30);
        QCOMPARE(viewModel->focusPresets().size(), 1);
        QSignalSpy list(viewModel.get(), &CameraViewModel::cameraListChanged);
        viewModel->setSelectedCameraIndex(second);
        QCOMPARE(list.size(), 1);
        QCOMPARE(viewModel->selectedCameraName(), "Zweite");
        QCOMPARE(viewModel->brightness(), 0);
        QCOMPARE(viewModel->gain(), 5);
        QVERIFY(viewModel->focusPresets().isEmpty());
        QCOMPARE(viewModel->activeFocusPresetIndex(), -1);
        QVERIFY(!viewModel->calibrated());
        QVERIFY(!viewModel->hasPendingCenter());
        QVERIFY(!viewModel->locked());
        QTRY_COMPARE(loadSettings().camera.cameraName, "Zweite");

        // The choice outlives a restart, and the first camera takes over when the second is gone.
        QCOMPARE(fixture::startWith(loadSettings())->selectedCameraName(), "Zweite");
        viewModel->setBrightness(7);
        unplugSecond.dismiss();
        fixture::simcam({"unplug", "--node", "video40"});
        QTRY_COMPARE(viewModel->selectedCameraName(), first);
        QCOMPARE(viewModel->brightness(), 0);
    }

    void streams()
    {
        AppSettings settings;
        settings.camera.cameraResolutionX = 640;
        settings.camera.cameraResolutionY = 480;
        const auto viewModel = fixture::startWith(settings);
        const SignalRecorder frames(viewModel->controller(), &CameraController::frameReady);
        QVERIFY(!viewModel->running());
        emit viewModel->controller()->errorOccurred("alt");
        viewModel->startCamera();
        QTRY_VERIFY(viewModel->running());
        QTRY_COMPARE(viewModel->frameInfo(), "640 x 480");
        QVERIFY(viewModel->status().isEmpty());
        QVERIFY(viewModel->connected());
        QTRY_VERIFY(frames.size() >= 3);

        viewModel->setSelectedResolutionIndex(
            int(viewModel->resolutionOptions().indexOf(QRegularExpression("^1280 x 720 .*"))));
        QTRY_COMPARE(viewModel->frameInfo(), "1280 x 720");
        viewModel->refreshCameras();
        QVERIFY2(viewModel->running(), "listing leaves the stream alone");

        QSignalSpy running(viewModel.get(), &CameraViewModel::runningChanged);
        viewModel->stopCamera();
        QTRY_VERIFY(!viewModel->running());
        QTRY_VERIFY(running.size() >= 1);
    }

    void theFirstPictureShowsTheScene_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("expected");
        QTest::newRow("nothing stored") << 0 << -133;
        QTest::newRow("automatic, in the unit of earlier versions") << 1 << -133;
        QTest::newRow("25 ms, in that unit") << 250 << -53;
    }

    void theFirstPictureShowsTheScene()
    {
        QFETCH(int, stored);
        QFETCH(int, expected);
        fixture::simcam({QStringLiteral("set"), QStringLiteral("long-exposures=1")});
        const auto reset = qScopeGuard(
            [] { fixture::simcam({QStringLiteral("set"), QStringLiteral("long-exposures=0")}); });
        AppSettings settings;
        settings.camera.captureTimeMs = stored;
        const auto viewModel = stored ? fixture::startWith(settings) : fixture::firstStart();
        QList<int> greys;
        int sinceMigration = 0;
        const QObject context; // whose end is the end of the connection, before what it captures
        connect(viewModel->controller(), &CameraController::frameReady, &context,
                [&](const QImage &frame) {
                    greys << qGray(
                        frame.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .pixel(0, 0));
                    sinceMigration += viewModel->exposureSupported();
                });
        viewModel->startCamera();
        QTRY_VERIFY_WITH_TIMEOUT(sinceMigration >= 5, 20000);
        QCOMPARE(viewModel->exposure(), expected);
        for (const int grey : std::as_const(greys))
            QVERIFY2(grey >= 40 && grey <= 215, qPrintable(QString::number(grey)));
    }

    void unplugging()
    {
        const auto viewModel = fixture::firstStart();
        const QString name = viewModel->selectedCameraName();
        viewModel->startCamera();
        QTRY_VERIFY(viewModel->running());

        fixture::simcam({QStringLiteral("unplug")});
        QTRY_VERIFY(!viewModel->running());
        QTRY_VERIFY(viewModel->cameraNames().isEmpty());
        QVERIFY(!viewModel->status().isEmpty());
        QCOMPARE(viewModel->selectedCameraName(), QString());

        viewModel->setBrightness(12);
        fixture::simcam({QStringLiteral("plug")});
        QTRY_COMPARE(viewModel->selectedCameraName(), name);
        QCOMPARE(viewModel->brightness(), 12);
        QVERIFY(!viewModel->running());
    }
};

QTEST_MAIN(TestCameraViewModelStream)
#include "tst_cameraviewmodel_stream.moc"
