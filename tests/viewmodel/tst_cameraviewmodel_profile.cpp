#include "TestWarnings.h"
#include "ViewModelFixture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace meridax;

// Against the simulated camera: what comes back when a camera connects.
class TestCameraViewModelProfile : public QObject
{
    Q_OBJECT

    static void choose(CameraViewModel &viewModel, const QString &size)
    {
        const QRegularExpression start(QStringLiteral("^%1 .*").arg(size));
        viewModel.setSelectedResolutionIndex(
            static_cast<int>(viewModel.resolutionOptions().indexOf(start)));
    }

    static void calibrate(CameraViewModel &viewModel, const QPointF &center)
    {
        emit viewModel.controller()->calibrationCompleted(center);
        viewModel.acceptPendingCenter();
        viewModel.setProfileRestoreOnConnect(true);
        viewModel.setProfileRestoreCalibration(true);
        viewModel.saveCameraProfile();
    }

    static QPointF centerOf(const CameraViewModel &viewModel)
    {
        return {viewModel.centerX(), viewModel.centerY()};
    }

private slots:
    void initTestCase() { fixture::prepareProcess(); }
    void init() { QTest::failOnWarning(unexpectedWarning()); }

    void twoResolutionsKeepTheirCentersAcrossARestart()
    {
        auto viewModel = fixture::firstStart();
        choose(*viewModel, QStringLiteral("640 x 480"));
        calibrate(*viewModel, {310, 250});
        choose(*viewModel, QStringLiteral("1280 x 720"));
        QCOMPARE(viewModel->profileCenterX(), 0.0);
        viewModel->setBrightness(21);
        calibrate(*viewModel, {651.25, 347.5});
        QCOMPARE(viewModel->profileCenterX(), 651.25);
        choose(*viewModel, QStringLiteral("640 x 480"));
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
        QTRY_VERIFY(viewModel->running());
        QTRY_VERIFY(viewModel->calibrated());
        QVERIFY(viewModel->locked());

        // What the user changes in between stays, at another resolution its own centre comes back.
        viewModel->stopCamera();
        viewModel->setBrightness(3);
        viewModel->setCenterX(700);
        viewModel->startCamera();
        QCOMPARE(centerOf(*viewModel), QPointF(700, 347.5));
        viewModel->stopCamera();
        choose(*viewModel, QStringLiteral("640 x 480"));
        QVERIFY(!viewModel->calibrated());
        viewModel->startCamera();
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QCOMPARE(viewModel->brightness(), 3);
        QTRY_VERIFY(viewModel->calibrated());

        // To look at another resolution costs nothing.
        viewModel->stopCamera();
        choose(*viewModel, QStringLiteral("1280 x 720"));
        choose(*viewModel, QStringLiteral("640 x 480"));
        QVERIFY(!viewModel->calibrated());
        const QSignalSpy profile(viewModel.get(), &CameraViewModel::profileSettingsChanged);
        viewModel->startCamera();
        QCOMPARE(profile.size(), 1);
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QTRY_VERIFY(viewModel->calibrated());
    }

    void aCameraThatDoesNotStartStaysUncalibrated()
    {
        auto viewModel = fixture::firstStart();
        choose(*viewModel, QStringLiteral("640 x 480"));
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
        viewModel->startCamera();
        QTRY_VERIFY(viewModel->running());
        QVERIFY2(!viewModel->calibrated(), "the calibration was tried once");
    }

    void centerWithoutCalibration()
    {
        auto viewModel = fixture::firstStart();
        choose(*viewModel, QStringLiteral("640 x 480"));
        calibrate(*viewModel, {310, 250});
        viewModel->setProfileRestoreCalibration(false);
        viewModel.reset();
        viewModel = fixture::startWith(loadSettings());
        viewModel->startCamera();
        QTRY_VERIFY(viewModel->running());
        QCOMPARE(centerOf(*viewModel), QPointF(310, 250));
        QVERIFY(!viewModel->calibrated());
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
