#include "TestWarnings.h"
#include "ViewModelFixture.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

using namespace meridax;

// Against the simulated camera: what comes back when a camera connects.
class TestCameraViewModelProfile : public QObject
{
    Q_OBJECT

    static void calibrate(CameraViewModel &viewModel, const QPointF &center,
                          bool intoProfile = true)
    {
        emit viewModel.controller()->calibrationCompleted(center);
        viewModel.acceptPendingCenter(intoProfile);
    }

    static QPointF centerOf(const CameraViewModel &viewModel)
    {
        return {viewModel.centerX(), viewModel.centerY()};
    }

    /// Starts and waits for the picture that belongs to it.
    static bool runs(CameraViewModel &viewModel)
    {
        viewModel.startCamera();
        return QTest::qWaitFor([&] { return viewModel.running(); }, 10000);
    }

    static CameraProfile storedProfile(fixture::ViewModel &viewModel)
    {
        viewModel.reset(); // writes the file
        const AppSettings settings = loadSettings();
        return settings.cameraProfiles.value(settings.camera.cameraId);
    }

private slots:
    void initTestCase() { fixture::prepareProcess(); }

    void init()
    {
        QTest::failOnWarning(unexpectedWarning());
        // A test that failed may have left it unplugged.
        if (QMediaDevices::videoInputs().isEmpty())
            fixture::simcam({QStringLiteral("plug")});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
    }

    void twoResolutionsKeepTheirCentersAcrossARestart()
    {
        auto viewModel = fixture::firstStart();
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        calibrate(*viewModel, {310, 250});
        fixture::choose(*viewModel, QStringLiteral("1280 x 720"));
        QCOMPARE(viewModel->profileCenterX(), 0.0);
        viewModel->setBrightness(21);
        calibrate(*viewModel, {651.25, 347.5});
        QCOMPARE(viewModel->profileCenterX(), 651.25);
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        QCOMPARE(viewModel->profileCenterX(), 310.0);
        QVERIFY(viewModel->profileCalibrated());
        viewModel->setBrightness(5);

        viewModel.reset();
        viewModel = fixture::startWith(loadSettings());
        QCOMPARE(centerOf(*viewModel), QPointF(320, 240));
        viewModel->startCamera();
        // The profile was saved last at 1280 x 720.
        QCOMPARE(centerOf(*viewModel), QPointF(651.25, 347.5));
        QCOMPARE(viewModel->brightness(), 21);
        QTRY_VERIFY(viewModel->calibrated());
        QVERIFY(viewModel->locked());
        QTRY_COMPARE(viewModel->frameInfo(), "1280 x 720");

        // What the user changes in between stays, at another resolution its own centre comes back.
        viewModel->stopCamera();
        viewModel->setBrightness(3);
        viewModel->setCenterX(700);
        viewModel->startCamera();
        QCOMPARE(centerOf(*viewModel), QPointF(700, 347.5));
        viewModel->stopCamera();
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        QVERIFY(!viewModel->calibrated());
        viewModel->startCamera();
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QCOMPARE(viewModel->brightness(), 3);
        QTRY_VERIFY(viewModel->calibrated());

        // To look at another resolution costs nothing, whether the centre is measured or not.
        viewModel->stopCamera();
        fixture::choose(*viewModel, QStringLiteral("1280 x 720"));
        QCOMPARE(centerOf(*viewModel), QPointF(700, 347.5));
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        QVERIFY(!viewModel->calibrated());
        viewModel->startCamera();
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QTRY_VERIFY(viewModel->calibrated());
    }

    void aCameraThatDoesNotStartStaysUncalibrated()
    {
        auto viewModel = fixture::firstStart();
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        calibrate(*viewModel, {310, 250});
        viewModel.reset();
        viewModel = fixture::startWith(loadSettings());
        fixture::simcam({QStringLiteral("unplug")});
        QTRY_VERIFY(QMediaDevices::videoInputs().isEmpty());
        viewModel->startCamera();
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QVERIFY(!viewModel->calibrated());
        fixture::simcam({QStringLiteral("plug")});
        QTRY_VERIFY(!QMediaDevices::videoInputs().isEmpty());
        QVERIFY(runs(*viewModel));
        QVERIFY2(!viewModel->calibrated(), "the calibration was tried once");
    }

    /// The centre was accepted without its profile; only then a restore was asked for.
    void aMeasuredCenterOutlivesARestoreThatKnowsNone_data()
    {
        QTest::addColumn<QString>("profiled");
        QTest::newRow("a box ticked without a profile") << QString();
        QTest::newRow("a profile of another resolution") << QStringLiteral("1280 x 720");
    }

    void aMeasuredCenterOutlivesARestoreThatKnowsNone()
    {
        QFETCH(QString, profiled);
        auto viewModel = fixture::firstStart();
        if (!profiled.isEmpty()) {
            fixture::choose(*viewModel, profiled);
            viewModel->saveCameraProfile();
            viewModel->setProfileRestoreOnConnect(true);
        }
        QVERIFY(runs(*viewModel));
        viewModel->stopCamera();
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        QVERIFY(runs(*viewModel));
        calibrate(*viewModel, {310, 250}, false);
        viewModel->setBrightness(17);
        viewModel->setProfileRestoreOnConnect(true);
        viewModel->setProfileRestoreCalibration(true);
        viewModel->stopCamera();
        QVERIFY(runs(*viewModel));
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QCOMPARE(viewModel->brightness(), 17);
        QVERIFY(viewModel->calibrated());

        const CameraProfile profile = storedProfile(viewModel);
        if (profiled.isEmpty())
            QCOMPARE(profile.brightness, 17);
        QCOMPARE(profile.perResolution.contains("640x480"), profiled.isEmpty());
    }

    void centerWithoutCalibration()
    {
        auto viewModel = fixture::firstStart();
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        calibrate(*viewModel, {310, 250});
        viewModel->setProfileRestoreCalibration(false);
        viewModel.reset();
        viewModel = fixture::startWith(loadSettings());
        QVERIFY(runs(*viewModel));
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QVERIFY(!viewModel->calibrated());
        viewModel->saveCameraProfile();
        QVERIFY2(viewModel->profileCalibrated(), "it is still the measured one");
    }

    void eachCameraHasItsOwnProfile()
    {
        auto viewModel = fixture::firstStart();
        fixture::choose(*viewModel, QStringLiteral("640 x 480"));
        viewModel->setBrightness(11);
        calibrate(*viewModel, {310, 250});
        fixture::simcam({"plug", "--new", "--node", "video40", "--name", "Zweite"});
        const auto unplug = qScopeGuard([] { fixture::simcam({"unplug", "--node", "video40"}); });
        QTRY_COMPARE(viewModel->cameraNames().size(), 2);
        const int second = int(viewModel->cameraNames().indexOf("Zweite"));

        viewModel->setSelectedCameraIndex(second);
        QVERIFY(!viewModel->calibrated());
        QCOMPARE(centerOf(*viewModel), QPointF(320, 240));
        viewModel->setBrightness(22);
        calibrate(*viewModel, {333, 222});
        viewModel->setSelectedCameraIndex(1 - second);
        QVERIFY(runs(*viewModel));
        QTRY_VERIFY(viewModel->calibrated());
        QCOMPARE(viewModel->brightness(), 11);
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        viewModel->stopCamera();
        viewModel->setSelectedCameraIndex(second);
        QVERIFY(!viewModel->calibrated());
        QVERIFY(runs(*viewModel));
        QTRY_VERIFY(viewModel->calibrated());
        QCOMPARE(viewModel->brightness(), 22);
        QCOMPARE(centerOf(*viewModel), QPointF(333, 222));
    }

    void gain_data()
    {
        QTest::addColumn<std::optional<bool>>("hasGain");
        QTest::addColumn<bool>("profileBefore");
        QTest::addColumn<int>("stored");
        QTest::newRow("camera with gain") << std::optional(true) << true << 30;
        QTest::newRow("camera without gain") << std::optional(false) << true << 20;
        QTest::newRow("not started yet") << std::optional<bool>() << true << 20;
        QTest::newRow("not started yet, no profile") << std::optional<bool>() << false << 30;
    }

    /// Always saved while stopped, when nothing is known of the camera any more.
    void gain()
    {
        QFETCH(std::optional<bool>, hasGain);
        QFETCH(bool, profileBefore);
        auto viewModel = fixture::firstStart();
        if (profileBefore) {
            viewModel->setGain(20);
            viewModel->saveCameraProfile();
        }
        if (hasGain) {
            CameraCapabilities caps;
            caps.gain = {0, 128, 1, 16, *hasGain, false};
            emit viewModel->controller()->cameraCapabilitiesDetected(caps);
            emit viewModel->controller()->runningChanged(false);
        }
        viewModel->setGain(30);
        viewModel->saveCameraProfile();
        QTEST(storedProfile(viewModel).gain, "stored");
    }

    void clearing()
    {
        const auto viewModel = fixture::firstStart();
        QSignalSpy notified(viewModel.get(), &CameraViewModel::profileSettingsChanged);
        viewModel->clearCameraProfile();
        QCOMPARE(notified.size(), 0);
        viewModel->setProfileRestoreOnConnect(true);
        QVERIFY(viewModel->profileExists());
        viewModel->clearCameraProfile();
        QVERIFY(!viewModel->profileExists());
        QVERIFY(!viewModel->profileRestoreOnConnect());
        QCOMPARE(notified.size(), 2);
    }
};

QTEST_MAIN(TestCameraViewModelProfile)
#include "tst_cameraviewmodel_profile.moc"
