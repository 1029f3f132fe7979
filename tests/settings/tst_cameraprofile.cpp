#include "settings/AppSettings.h"
#include "settings/CameraProfile.h"
#include "settings/SettingsJson.h"

#include <QJsonDocument>
#include <QTest>

using namespace meridax;

/// What a profile takes from a camera, gives back and how it stands in the file.
class TestCameraProfile : public QObject
{
    Q_OBJECT

    static CameraSettings unusualCamera()
    {
        CameraSettings camera;
        camera.cameraResolutionX = 1280;
        camera.cameraResolutionY = 720;
        camera.focusValue = 321;
        camera.captureTimeMs = -4;
        camera.brightness = 7;
        camera.contrast = 33;
        camera.saturation = 44;
        camera.gain = 12;
        camera.centerX = 651.3;
        camera.centerY = 347.8;
        camera.calibrated = true;
        return camera;
    }

private slots:
    void roundTripThroughTheFile()
    {
        AppSettings settings;
        CameraProfile &profile = settings.cameraProfiles[QStringLiteral("/dev/video0")];
        takeIntoProfile(profile, unusualCamera(), true);
        profile.restoreOnConnect = true;
        profile.restoreCalibration = true;
        CameraSettings other = unusualCamera();
        other.cameraResolutionX = 640;
        other.cameraResolutionY = 480;
        takeIntoProfile(profile, other, true);
        QCOMPARE(profile.perResolution.size(), 2);
        const AppSettings read = appSettingsFromJson(toJson(settings), AppSettings());
        QCOMPARE(read.cameraProfiles, settings.cameraProfiles);
    }

    void givesBackWhatItTook()
    {
        CameraProfile profile;
        const CameraSettings before = unusualCamera();
        takeIntoProfile(profile, before, true);
        CameraSettings after;
        restoreValues(profile, after);
        // The centre and its worth are not given back with the values.
        after.centerX = before.centerX;
        after.centerY = before.centerY;
        after.calibrated = true;
        QCOMPARE(after, before);
    }

    void gainOfACameraWithoutGainStays()
    {
        CameraProfile profile;
        profile.gain = 99;
        takeIntoProfile(profile, unusualCamera(), false);
        QCOMPARE(profile.gain, 99);
    }

    void reading_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("resolutions");
        QTest::newRow("from before centres were kept per resolution")
            << QByteArray(R"({"centerX":640,"centerY":360,"resolutionX":1280,"resolutionY":720})")
            << QStringList{QStringLiteral("1280x720")};
        QTest::newRow("calibrated at 0, 0")
            << QByteArray(R"({"calibrated":true,"resolutionX":8,"resolutionY":6})")
            << QStringList{QStringLiteral("8x6")};
        QTest::newRow("without a centre")
            << QByteArray(R"({"centerX":0,"centerY":0,"resolutionX":1280,"resolutionY":720})")
            << QStringList();
        QTest::newRow("without a resolution")
            << QByteArray(R"({"centerX":640,"centerY":360})") << QStringList();
        QTest::newRow("both")
            << QByteArray(
                   R"({"centerX":1,"resolutionX":8,"resolutionY":6,"perResolution":{"a":3}})")
            << QStringList{QStringLiteral("a")};
        QTest::newRow("wrong types")
            << QByteArray(R"({"centerX":"1","perResolution":[1],"restoreOnConnect":1})")
            << QStringList();
    }

    void reading()
    {
        QFETCH(QByteArray, json);
        const CameraProfile profile =
            cameraProfileFromJson(QJsonDocument::fromJson(json).object(), CameraProfile());
        QTEST(QStringList(profile.perResolution.keys()), "resolutions");
        QVERIFY(!profile.restoreOnConnect);
        QCOMPARE(profile.contrast, 50);
    }
};

QTEST_APPLESS_MAIN(TestCameraProfile)
#include "tst_cameraprofile.moc"
