#include "camera/V4l2Backend.h"
#include "simcam/SimcamTool.h"
#include "simcam/V4l2Client.h"

#include <QRegularExpression>
#include <QTest>

using namespace meridax;

namespace {

ControlRange range(int min, int max, int defaultValue, bool canAuto)
{
    return {min, max, 1, defaultValue, true, canAuto};
}

// The simulated camera's ranges.
const ControlRange brightness = range(-64, 64, 0, false);
const ControlRange contrast = range(0, 64, 32, false);
const ControlRange exposure = range(-133, -10, -49, true); // of 0.1 ms to 0.5 s, 33 ms
const ControlRange focus = range(0, 1023, 0, true);
const ControlRange whiteBalance = range(2800, 6500, 4600, true);

CameraCapabilities commonCamera()
{
    return {.exposure = exposure,
            .focus = focus,
            .brightness = brightness,
            .contrast = contrast,
            .saturation = range(0, 128, 64, false),
            .gain = range(0, 100, 0, false),
            .gamma = range(72, 500, 100, false),
            .whiteBalance = whiteBalance,
            .exposureScale = ExposureScale::TenthsOfAStop};
}

/// All controls on values of their own, manual where there is a choice.
CameraSettings manualSettings()
{
    CameraSettings settings;
    settings.cameraId = QStringLiteral("/dev/video0");
    settings.captureTimeMs = -56;
    settings.focusValue = 380;
    settings.brightness = 7;
    settings.contrast = 40;
    settings.saturation = 70;
    settings.gain = 5;
    return settings;
}

int counter(const char *key)
{
    return simcamValues(QStringLiteral("get")).value(key).toInt();
}

} // namespace

// Against the simulated camera, with a second V4L2 program that reads the device.
class TestV4l2Backend : public QObject
{
    Q_OBJECT

private slots:
    void init() { plug(QStringLiteral("controls=2")); }

    void capabilities_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<CameraCapabilities>("expected");
        QTest::newRow("common camera") << "controls=2" << commonCamera();
        CameraCapabilities simple = commonCamera();
        simple.exposureScale = ExposureScale::Stops;
        simple.exposure = simple.focus = simple.gain = simple.gamma = simple.whiteBalance = {};
        QTest::newRow("image controls only") << "controls=1" << simple;
        CameraCapabilities odd = commonCamera();
        odd.brightness.canAuto = odd.gain.canAuto = true;
        odd.saturation = odd.gamma = {}; // read-only, disabled
        QTest::newRow("odd camera") << "controls=3" << odd;
        QTest::newRow("no controls") << "controls=0" << CameraCapabilities();
        QTest::newRow("no answers") << "query-errno=EIO" << CameraCapabilities();
    }

    void capabilities()
    {
        QFETCH(QString, setting);
        QFETCH(CameraCapabilities, expected);
        set(setting);
        CameraCapabilities caps;
        caps.gain.step = 99; // what an earlier call has left
        QCOMPARE(m_backend.queryCameraCapabilities(manualSettings(), &caps, nullptr),
                 expected != CameraCapabilities());
        QCOMPARE(caps, expected);
    }

    void valuesArrive_data()
    {
        QTest::addColumn<QString>("setting");
        for (const auto *const setting : {"controls=2", "controls=3", "refuse-first=4"})
            QTest::newRow(setting) << setting;
    }

    void valuesArrive()
    {
        QFETCH(QString, setting);
        plug(setting);
        const V4l2Client other; // holds the device open, as the stream does
        if (setting == QStringLiteral("controls=3"))
            QCOMPARE(other.setControl(V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_SHUTTER_PRIORITY), 0);
        QVERIFY(apply(manualSettings()));
        QCOMPARE(other.control(V4L2_CID_EXPOSURE_AUTO), V4L2_EXPOSURE_MANUAL);
        QCOMPARE(other.control(V4L2_CID_EXPOSURE_ABSOLUTE), 206);
        QCOMPARE(other.control(V4L2_CID_FOCUS_AUTO), 0);
        QCOMPARE(other.control(V4L2_CID_FOCUS_ABSOLUTE), 380);
        QCOMPARE(other.control(V4L2_CID_BRIGHTNESS), 7);
        QCOMPARE(other.control(V4L2_CID_CONTRAST), 40);
        QCOMPARE(other.control(V4L2_CID_GAIN), 5);
        const bool isReadOnly = setting == QStringLiteral("controls=3");
        QCOMPARE(other.control(V4L2_CID_SATURATION), isReadOnly ? 64 : 70);
    }

    void automaticModes_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<int>("exposureMode");
        QTest::newRow("aperture priority") << "controls=2" << int(V4L2_EXPOSURE_APERTURE_PRIORITY);
        QTest::newRow("full automatic, the other one refused")
            << "controls=3" << int(V4L2_EXPOSURE_AUTO);
    }

    void automaticModes()
    {
        QFETCH(QString, setting);
        QFETCH(int, exposureMode);
        plug(setting);
        const V4l2Client other;
        CameraSettings settings = manualSettings();
        QVERIFY(apply(settings));
        settings.captureTimeMs = -133;
        settings.focusValue = 0;
        settings.brightness = -64;
        settings.gain = 0;
        QVERIFY(apply(settings));
        QCOMPARE(other.control(V4L2_CID_EXPOSURE_AUTO), exposureMode);
        QCOMPARE(other.control(V4L2_CID_FOCUS_AUTO), 1);
        if (setting == QStringLiteral("controls=3")) {
            QCOMPARE(other.control(V4L2_CID_AUTOBRIGHTNESS), 1);
            QCOMPARE(other.control(V4L2_CID_AUTOGAIN), 1);
        } else {
            QCOMPARE(other.control(V4L2_CID_BRIGHTNESS), -64);
            QCOMPARE(other.control(V4L2_CID_GAIN), 0);
        }
    }

    void onlyWhatDiffersIsWritten()
    {
        CameraSettings settings = manualSettings();
        QVERIFY(apply(settings));
        const int writes = counter("control-writes");
        QVERIFY2(apply(settings), "counts as taken");
        QCOMPARE(counter("control-writes"), writes);
        settings.focusValue = 381;
        QVERIFY(apply(settings));
        QCOMPARE(counter("control-writes"), writes + 1);
        settings.focusValue = 0;
        for (int i = 0; i < 2; ++i)
            QVERIFY(apply(settings));
        QCOMPARE(counter("control-writes"), writes + 2);
        // The driver remembers them, the camera may not: six values and the modes of two.
        QVERIFY(apply(settings, ControlWrites::All));
        QCOMPARE(counter("control-writes"), writes + 2 + 7);
        // Somebody else has moved it.
        QCOMPARE(V4l2Client().setControl(V4L2_CID_CONTRAST, 1), 0);
        QVERIFY(apply(settings));
        QCOMPARE(V4l2Client().control(V4L2_CID_CONTRAST), settings.contrast);
    }

    void costOfACall_data()
    {
        QTest::addColumn<bool>("changes");
        QTest::addColumn<int>("requests"); // for controls, without opening and closing the device
        QTest::newRow("nothing changed") << false << 20;
        QTest::newRow("focus changed") << true << 21;
    }

    void costOfACall()
    {
        QFETCH(bool, changes);
        QFETCH(int, requests);
        CameraSettings settings = manualSettings();
        QVERIFY(apply(settings));
        const int before = counter("control-calls");
        settings.focusValue += changes;
        QVERIFY(apply(settings));
        QCOMPARE(counter("control-calls") - before, requests);
        QBENCHMARK
        {
            settings.focusValue += changes;
            apply(settings);
        }
    }

    void clampedAndLogged()
    {
        CameraSettings settings = manualSettings();
        settings.focusValue = 5000;
        settings.gain = 250;
        settings.brightness = -1000;
        const auto line = [](quint32 id, const char *rest) {
            return QStringLiteral("[ProcAmp] prop=%1 %2").arg(id).arg(QLatin1StringView(rest));
        };
        const QString gainLine =
            line(V4L2_CID_GAIN, "requested=100 flagsUsed=2 setHR=OK readBack=100 readBackFlags=2");
        const QString brightnessLine = line(
            V4L2_CID_BRIGHTNESS, "requested=-64 flagsUsed=2 setHR=OK readBack=-64 readBackFlags=2");
        QTest::ignoreMessage(QtInfoMsg, qPrintable(gainLine));
        QTest::ignoreMessage(QtInfoMsg, qPrintable(brightnessLine));
        QVERIFY(apply(settings));
        QCOMPARE(V4l2Client().control(V4L2_CID_FOCUS_ABSOLUTE), 1023);
        QCOMPARE(V4l2Client().control(V4L2_CID_GAIN), 100);
    }

    void refusedWrites()
    {
        set(QStringLiteral("control-errno=EACCES"));
        QTest::ignoreMessage(
            QtInfoMsg,
            QRegularExpression(QStringLiteral("prop=%1 requested=5 flagsUsed=2 setHR=FAIL "
                                              "readBack=0 readBackFlags=2")
                                   .arg(V4L2_CID_GAIN)));
        QVERIFY(!apply(manualSettings()));
        QCOMPARE(V4l2Client().control(V4L2_CID_FOCUS_AUTO), 1);
    }

    void noAnswerEndsTheRound_data()
    {
        QTest::addColumn<QString>("error");
        QTest::addColumn<bool>("ends");
        for (const auto *const error : {"ETIMEDOUT", "EIO", "EPROTO", "ENODEV"})
            QTest::newRow(error) << error << true;
        QTest::newRow("EACCES") << "EACCES" << false;
    }

    void noAnswerEndsTheRound()
    {
        QFETCH(QString, error);
        QFETCH(bool, ends);
        set(QStringLiteral("control-errno=") + error);
        const int before = counter("control-calls");
        QString text;
        const ApplyResult result =
            m_backend.applySettings(manualSettings(), ControlWrites::All, &text);
        QVERIFY(!result.taken);
        QCOMPARE(result.noAnswer, ends);
        QCOMPARE(text.startsWith("V4L2-Kamera Meridax Simulated Camera antwortet nicht: "), ends);
        const int calls = counter("control-calls") - before;
        QVERIFY2((calls < 8) == ends, qPrintable(QString::number(calls)));
    }

    void rangesUnknown()
    {
        const V4l2Client other;
        QCOMPARE(other.setControl(V4L2_CID_FOCUS_AUTO, 0), 0);
        QCOMPARE(other.setControl(V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_MANUAL), 0);
        set(QStringLiteral("query-errno=EIO"));
        QVERIFY(apply(manualSettings()));
        QCOMPARE(other.control(V4L2_CID_FOCUS_ABSOLUTE), 380);
        QCOMPARE(other.control(V4L2_CID_GAIN), 5);
        QVERIFY2(other.control(V4L2_CID_EXPOSURE_ABSOLUTE) != 206, "needs its range");
    }

    void failuresAreTold()
    {
        set(QStringLiteral("controls=0"));
        QString error = QStringLiteral("of an earlier call");
        QVERIFY(!apply(manualSettings(), ControlWrites::Changed, &error));
        QCOMPARE(error, "V4L2-Kamera Meridax Simulated Camera hat keinen Wert angenommen.");
        CameraCapabilities caps;
        QVERIFY(!m_backend.queryCameraCapabilities(manualSettings(), &caps, &error));
        QCOMPARE(error, "V4L2-Kamera Meridax Simulated Camera nennt keine Bereiche.");
        set(QStringLiteral("controls=2"));
        QVERIFY(apply(manualSettings(), ControlWrites::Changed, &error));
        QCOMPARE(error, QString());
    }

    void deviceChoice_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("index");
        QTest::addColumn<QByteArray>("node");
        const QByteArray second("/dev/video4");
        QTest::newRow("id before name")
            << "/dev/video4" << "Meridax Simulated Camera" << 0 << second;
        QTest::newRow("name ignoring case") << "" << "caméra ω" << 0 << second;
        QTest::newRow("name, id gone") << "/dev/video9" << "Caméra Ω" << 0 << second;
        QTest::newRow("name, id of the metadata") << "/dev/video1" << "Caméra Ω" << 0 << second;
        QTest::newRow("index") << "" << "" << 1 << second;
        QTest::newRow("none, name unknown") << "" << "Other" << 0 << QByteArray();
        QTest::newRow("last, index too large") << "" << "" << 7 << second;
    }

    void deviceChoice()
    {
        QFETCH(QString, id);
        QFETCH(QString, name);
        QFETCH(int, index);
        QFETCH(QByteArray, node);
        QCOMPARE(simcam({"plug", "--new", "--node", "video4", "--name", "Caméra Ω"}).exitCode, 0);
        CameraSettings settings = manualSettings();
        settings.cameraId = id;
        settings.cameraName = name;
        settings.cameraIndex = index;
        QCOMPARE(apply(settings), !node.isEmpty());
        for (const auto *const path : {"/dev/video0", "/dev/video4"})
            QCOMPARE(V4l2Client(path).control(V4L2_CID_GAIN), path == node ? settings.gain : 0);
    }

    void cannotBeOpened()
    {
        set(QStringLiteral("open-errno=EACCES"));
        QString error;
        CameraCapabilities caps;
        QVERIFY(!m_backend.queryCameraCapabilities(manualSettings(), &caps, &error));
        QCOMPARE(error, QStringLiteral("V4L2-Kamera /dev/video0 konnte nicht geöffnet werden: "
                                       "Permission denied"));
        simcam({QStringLiteral("unplug")});
        QVERIFY(!apply(manualSettings(), ControlWrites::Changed, &error));
        QCOMPARE(error, QStringLiteral("Keine V4L2-Kameras gefunden."));
        QVERIFY(!apply(manualSettings()));
    }

private:
    /// A new camera at /dev/video0 and no other one.
    static void plug(const QString &setting)
    {
        for (const auto *const node : {"video0", "video4"})
            simcam({"unplug", "--node", node});
        QCOMPARE(simcam({"plug", "--new", "--node", "video0"}).output, "video0\n");
        set(QStringLiteral("controls=2"));
        set(setting);
    }

    static void set(const QString &setting)
    {
        QCOMPARE(simcam({QStringLiteral("set"), setting}).exitCode, 0);
    }

    bool apply(const CameraSettings &settings, ControlWrites writes = ControlWrites::Changed,
               QString *error = nullptr)
    {
        return bool(m_backend.applySettings(settings, writes, error));
    }

    V4l2Backend m_backend;
};

QTEST_GUILESS_MAIN(TestV4l2Backend)
#include "tst_v4l2backend.moc"
