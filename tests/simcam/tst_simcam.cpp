// The simulated camera as the tests of the program rely on it: the picture against the truth, the
// controls, the failures, unplugging, and how programs are run with it.

#include "SimcamTool.h"
#include "V4l2Client.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QPointF>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <cerrno>
#include <cmath>
#include <csignal>
#include <thread>

namespace {

constexpr quint32 kYuyv = V4L2_PIX_FMT_YUYV;

/// The grey levels of a YUYV frame.
struct Luma
{
    const QByteArray &data;
    int width;
    int height;

    int at(int x, int y) const { return quint8(data[2 * (qsizetype(y) * width + x)]); }
};

double meanLuma(const QByteArray &yuyv)
{
    qint64 sum = 0;
    for (qsizetype i = 0; i < yuyv.size(); i += 2)
        sum += quint8(yuyv[i]);
    return 2.0 * double(sum) / double(yuyv.size());
}

/// Mean difference of neighbours in a row: what focus is judged by.
double structure(const QByteArray &yuyv)
{
    qint64 sum = 0;
    for (qsizetype i = 2; i < yuyv.size(); i += 2)
        sum += std::abs(int(quint8(yuyv[i])) - int(quint8(yuyv[i - 2])));
    return 2.0 * double(sum) / double(yuyv.size());
}

/// Mean distance of the colours from grey.
double colour(const QByteArray &yuyv)
{
    qint64 sum = 0;
    for (qsizetype i = 1; i < yuyv.size(); i += 2)
        sum += std::abs(int(quint8(yuyv[i])) - 128);
    return 2.0 * double(sum) / double(yuyv.size());
}

/// Centroid of what is darker than in the picture `empty` around `guess`, weighted by the part of
/// the light that is missing.
QPointF darkCentroid(const Luma &luma, const Luma &empty, QPointF guess, double radius)
{
    constexpr double black = 16;
    const int left = std::max(0, int(guess.x() - 1.5 * radius));
    const int top = std::max(0, int(guess.y() - 1.5 * radius));
    const int right = std::min(luma.width, int(guess.x() + 1.5 * radius) + 2);
    const int bottom = std::min(luma.height, int(guess.y() + 1.5 * radius) + 2);
    double sum = 0;
    QPointF moment;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const double weight = 1 - (luma.at(x, y) - black) / (empty.at(x, y) - black);
            sum += weight;
            moment += weight * QPointF(x, y);
        }
    }
    return moment / sum;
}

QPointF point(const QMap<QByteArray, QByteArray> &values, const QByteArray &name)
{
    return {values[name + "_x"].toDouble(), values[name + "_y"].toDouble()};
}

double length(QPointF p)
{
    return std::hypot(p.x(), p.y());
}

/// True while the camera's thread runs in this process.
bool makesFrames()
{
    const auto threads = QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::any_of(threads.begin(), threads.end(), [](const QString &thread) {
        QFile name("/proc/self/task/" + thread + "/comm");
        return name.open(QIODevice::ReadOnly) && name.readAll() == "simcam\n";
    });
}

QStringList nodes()
{
    return QDir("/dev").entryList({"video*"}, QDir::System, QDir::Name);
}

} // namespace

class tst_simcam : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void markIsWhereTheTruthSays_data();
    void markIsWhereTheTruthSays();
    void controlsChangeThePicture_data();
    void controlsChangeThePicture();
    void forgetsControlsBehindTheDriversBack();
    void failsAsTold_data();
    void failsAsTold();
    void callsHang();
    void unpluggingEndsTheStream();
    void writesNothingAfterUnplugging();
    void comesBackUnderAnotherNumber();
    void runReturnsTheStatus_data();
    void runReturnsTheStatus();
    void runPassesSignalsOn();
};

void tst_simcam::init()
{
    simcam({"unplug"});
    QCOMPARE(simcam({"plug", "--new", "--node", "video0"}).output, "video0\n");
}

void tst_simcam::markIsWhereTheTruthSays_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QStringList>("scene");
    const QStringList quiet{"noise=0"};
    QTest::newRow("640x480") << QSize(640, 480) << quiet;
    QTest::newRow("3264x2448") << QSize(3264, 2448) << quiet;
    QTest::newRow("form error") << QSize(640, 480)
                                << QStringList{"noise=0", "form2=3", "phase2=40", "form5=-1.5"};
    QTest::newRow("position noise")
        << QSize(640, 480) << QStringList{"noise=0", "dwell-noise=2", "frame-noise=1"};
    // Black on nearly white: the rounding to whole grey levels would shift the centroid of less.
    const QStringList real{"noise=0", "photon-noise=0", "scene=1", "ground-grey=220",
                           "mark-grey=0"};
    QTest::newRow("real, small and oblique")
        << QSize(1280, 720) << real + QStringList{"mark-radius=0.009", "mark-axes=0.7", "form3=2"};
    QTest::newRow("real, out of focus, uneven light, dusty")
        << QSize(1280, 720)
        << real +
               QStringList{"defocus=6", "light-fall=0.5", "vignetting=0.5", "dust=200", "grain=8"};
}

void tst_simcam::markIsWhereTheTruthSays()
{
    QFETCH(QSize, size);
    QFETCH(QStringList, scene);
    QCOMPARE(simcam(QStringList{"set"} + scene).exitCode, 0);
    V4l2Client camera;
    QCOMPARE(camera.setFormat(kYuyv, unsigned(size.width()), unsigned(size.height())), 0);
    // A stream of its own for each picture, with a single buffer: its first frame holds the angle,
    // and it is the last one rendered when the truth is asked.
    const auto shoot = [&](const QString &setting) {
        simcam({"set", setting});
        camera.start(V4L2_MEMORY_MMAP, 1);
        const CapturedFrame frame = camera.takeAndKeep();
        camera.stop();
        return frame.error ? QByteArray() : frame.data;
    };
    for (const char *angle : {"-45", "12.7", "101"}) {
        QCOMPARE(simcam({"turn", "--to", angle}).exitCode, 0);
        const QByteArray empty = shoot("marks=0");
        const QByteArray frame = shoot("marks=1");
        QVERIFY(!empty.isEmpty() && !frame.isEmpty());
        const auto truth = simcamValues("truth");
        const QPointF shown = point(truth, "shown");
        const Luma luma{frame, size.width(), size.height()};
        const Luma ground{empty, size.width(), size.height()};
        const QPointF found = darkCentroid(luma, ground, shown, truth["mark_radius"].toDouble());
        QCOMPARE_LT(length(found - shown), 0.005);

        // The truth itself, by its definition.
        const double a = truth["angle"].toDouble() * M_PI / 180;
        double distance = truth["radius"].toDouble();
        for (int k = 2; k <= 7; ++k) {
            const QByteArray form = "form" + QByteArray::number(k);
            distance += truth[form + "_amplitude"].toDouble() *
                        std::cos(k * a + truth[form + "_phase"].toDouble() * M_PI / 180);
        }
        const QPointF mark = point(truth, "center") + distance * QPointF(std::cos(a), std::sin(a));
        QCOMPARE_LT(length(mark - point(truth, "mark")), 0.001);
    }
}

void tst_simcam::controlsChangeThePicture_data()
{
    using Measure = double (*)(const QByteArray &);
    using Settings = QList<std::pair<quint32, int>>;
    QTest::addColumn<QString>("camera");
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<Measure>("measure");
    QTest::addColumn<double>("lowest"); // of the measure, relative to the picture before
    QTest::addColumn<double>("highest");
    const std::pair<quint32, int> manual{V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_MANUAL};
    const std::pair<quint32, int> noAutofocus{V4L2_CID_FOCUS_AUTO, 0};
    const auto row = [](const char *name, const Settings &settings, Measure measure, double lowest,
                        double highest, const char *camera = "controls=2") {
        QTest::newRow(name) << QString(camera) << settings << measure << lowest << highest;
    };
    const Settings long1{manual, {V4L2_CID_EXPOSURE_ABSOLUTE, 500}};
    const Settings long2{manual, {V4L2_CID_EXPOSURE_ABSOLUTE, 2500}};
    row("bright", {{V4L2_CID_BRIGHTNESS, 40}}, meanLuma, 1.2, 2);
    row("no contrast", {{V4L2_CID_CONTRAST, 0}}, structure, 0, 0.9);
    row("gain", {{V4L2_CID_GAIN, 25}}, meanLuma, 1.2, 1.6);
    row("short exposure", {manual, {V4L2_CID_EXPOSURE_ABSOLUTE, 166}}, meanLuma, 0.45, 0.7);
    row("cut to 1/30 s", long1, meanLuma, 0.97, 1.03);
    row("long exposure", long1, meanLuma, 1.2, 1.6, "long-exposures=1");
    row("white", long2, meanLuma, 1.9, 3, "long-exposures=1");
    row("slowed down", Settings{{V4L2_CID_EXPOSURE_AUTO_PRIORITY, 1}} + long1, meanLuma, 1.2, 1.6);
    row("grey", {{V4L2_CID_SATURATION, 0}}, colour, 0, 0.01);
    row("best focus", {noAutofocus, {V4L2_CID_FOCUS_ABSOLUTE, 380}}, structure, 0.98, 1.02);
    row("off focus", {noAutofocus, {V4L2_CID_FOCUS_ABSOLUTE, 500}}, structure, 0, 0.85,
        "controls=4");
    row("warm", {{V4L2_CID_AUTO_WHITE_BALANCE, 0}, {V4L2_CID_WHITE_BALANCE_TEMPERATURE, 6500}},
        colour, 1.5, 20);
}

void tst_simcam::controlsChangeThePicture()
{
    using Measure = double (*)(const QByteArray &);
    using Settings = QList<std::pair<quint32, int>>;
    QFETCH(QString, camera);
    QFETCH(Settings, settings);
    QFETCH(Measure, measure);
    QFETCH(double, lowest);
    QFETCH(double, highest);
    QCOMPARE(simcam({"set", camera}).exitCode, 0);
    V4l2Client client;
    QCOMPARE(client.setFormat(kYuyv, 640, 480), 0);
    QCOMPARE(client.start(), 0);
    const double before = measure(client.take().data);
    client.stop();
    for (const auto &[id, value] : settings) {
        QCOMPARE(client.setControl(id, value), 0);
        QCOMPARE(client.control(id), value);
    }
    QCOMPARE(client.start(), 0);
    const double ratio = measure(client.take().data) / before;
    QVERIFY2(ratio >= lowest && ratio <= highest, qPrintable(QString::number(ratio)));
}

void tst_simcam::forgetsControlsBehindTheDriversBack()
{
    QCOMPARE(simcam({"set", "forgets=1"}).exitCode, 0);
    V4l2Client camera;
    QCOMPARE(camera.setControl(V4L2_CID_BRIGHTNESS, 7), 0);
    QCOMPARE(simcam({"get", "control.brightness"}).output, "7\n");
    QCOMPARE(camera.start(), 0);
    QCOMPARE(camera.control(V4L2_CID_BRIGHTNESS), 7);
    QCOMPARE(simcam({"get", "control.brightness"}).output, "0\n");
    QCOMPARE(camera.setControl(V4L2_CID_BRIGHTNESS, 7), 0);
    QCOMPARE(simcam({"get", "control.brightness"}).output, "7\n");
}

void tst_simcam::failsAsTold_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<int>("openError");
    QTest::addColumn<int>("startError");
    QTest::addColumn<int>("takeError");
    QTest::addColumn<bool>("isFaulty");
    QTest::addColumn<QByteArray>("end"); // of the frame
    const QByteArray nothing;
    QTest::newRow("none") << "stall=0" << 0 << 0 << 0 << false << QByteArray("\xff\xd9");
    QTest::newRow("open") << "open-errno=EACCES" << EACCES << 0 << 0 << false << nothing;
    QTest::newRow("start") << "streamon-errno=ENOSPC" << 0 << ENOSPC << 0 << false << nothing;
    QTest::newRow("take") << "dqbuf-errno=EIO" << 0 << 0 << EIO << false << nothing;
    QTest::newRow("no frames") << "stall=1" << 0 << 0 << ETIMEDOUT << false << nothing;
    QTest::newRow("cut") << "truncate=1" << 0 << 0 << 0 << false << nothing;
    QTest::newRow("stray") << "stray-bytes=3" << 0 << 0 << 0 << false
                           << QByteArray("\0\0\0\xff\xd9", 5);
    QTest::newRow("flagged") << "error-frames=1" << 0 << 0 << 0 << true << nothing;
    QTest::newRow("no user pointers") << "no-userptr=1" << 0 << EINVAL << 0 << false << nothing;
}

void tst_simcam::failsAsTold()
{
    QFETCH(QString, setting);
    QFETCH(int, openError);
    QFETCH(int, startError);
    QFETCH(int, takeError);
    QFETCH(bool, isFaulty);
    QFETCH(QByteArray, end);
    QCOMPARE(simcam({"set", setting}).exitCode, 0);
    V4l2Client camera;
    QCOMPARE(camera.openError(), openError);
    if (openError)
        return;
    QCOMPARE(camera.start(V4L2_MEMORY_USERPTR), startError);
    if (startError)
        return;
    const CapturedFrame frame = camera.take(takeError == ETIMEDOUT ? 300 : 5000);
    QCOMPARE(frame.error, takeError);
    QCOMPARE(frame.isFaulty, isFaulty);
    QVERIFY(frame.data.endsWith(end));
    QCOMPARE(frame.data.endsWith("\xff\xd9"), !end.isEmpty());
}

void tst_simcam::callsHang()
{
    QCOMPARE(simcam({"set", "control-hang=0.2", "query-hang=0.3", "open-hang=0.4"}).exitCode, 0);
    QElapsedTimer timer;
    timer.start();
    V4l2Client camera;
    QCOMPARE_GE(timer.restart(), 400);
    QCOMPARE(camera.setControl(V4L2_CID_BRIGHTNESS, 7), 0);
    QCOMPARE_GE(timer.restart(), 200);
    v4l2_queryctrl query{};
    query.id = V4L2_CID_BRIGHTNESS;
    QCOMPARE(simcam({"set", "hang-errno=ETIMEDOUT"}).exitCode, 0);
    timer.restart();
    QCOMPARE(camera.request(VIDIOC_QUERYCTRL, &query), ETIMEDOUT);
    QCOMPARE_GE(timer.elapsed(), 300);

    // Pictures come all the while, and pulling the camera out ends the call.
    QCOMPARE(simcam({"set", "control-hang=600"}).exitCode, 0);
    QCOMPARE(camera.start(), 0);
    int error = 0;
    std::thread hanging([&] { error = camera.setControl(V4L2_CID_BRIGHTNESS, 9); });
    const CapturedFrame frame = camera.take();
    simcam({"unplug"});
    hanging.join();
    QCOMPARE(frame.error, 0);
    QCOMPARE(error, ENODEV);
}

void tst_simcam::unpluggingEndsTheStream()
{
    QFileSystemWatcher watcher({"/dev"});
    const QSignalSpy changed(&watcher, &QFileSystemWatcher::directoryChanged);
    V4l2Client camera;
    QCOMPARE(camera.start(), 0);
    QCOMPARE(camera.take().error, 0);
    QCOMPARE(simcam({"unplug"}).exitCode, 0);
    int error = 0;
    for (int i = 0; i < 10 && error == 0; ++i) // frames taken before may still wait
        error = camera.take().error;
    QCOMPARE(error, ENODEV);
    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(nodes(), QStringList());
    QCOMPARE(V4l2Client().openError(), ENOENT);

    // The old descriptor stays dead although the camera is back at its old place.
    QCOMPARE(simcam({"plug", "--node", "video0"}).exitCode, 0);
    v4l2_capability capability{};
    QCOMPARE(camera.request(VIDIOC_QUERYCAP, &capability), ENODEV);
    V4l2Client again;
    QCOMPARE(again.start(), 0);
    QCOMPARE(again.take().error, 0);
}

void tst_simcam::writesNothingAfterUnplugging()
{
    for (int i = 0; i < 3; ++i) {
        // Each frame is made anew and takes longer than its period: one is always under way.
        QCOMPARE(simcam({"set", "frame-noise=1"}).exitCode, 0);
        V4l2Client camera;
        QCOMPARE(camera.setFormat(V4L2_PIX_FMT_MJPEG, 3264, 2448), 0);
        QCOMPARE(camera.start(V4L2_MEMORY_USERPTR, 4), 0);
        QCOMPARE(camera.take().error, 0);
        QVERIFY(makesFrames());
        QCOMPARE(simcam({"unplug"}).exitCode, 0);
        int type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
        QCOMPARE(camera.request(VIDIOC_STREAMOFF, &type), ENODEV);
        camera.markBuffers('\x5a'); // from here on the memory is the program's
        QTRY_VERIFY(!makesFrames());
        QVERIFY(camera.buffersAreMarked('\x5a'));
        QCOMPARE(simcam({"plug"}).exitCode, 0);
    }
}

void tst_simcam::comesBackUnderAnotherNumber()
{
    QCOMPARE(simcam({"set", "radius=0.25", "stall=1"}).exitCode, 0);
    QCOMPARE(V4l2Client().setControl(V4L2_CID_BRIGHTNESS, 7), 0);
    QCOMPARE(simcam({"unplug"}).exitCode, 0);
    QCOMPARE(simcam({"plug", "--node", "video4", "--name", "Other"}).output, "video4\n");
    QCOMPARE(nodes(), QStringList({"video4", "video5"}));
    const V4l2Client camera("/dev/video4");
    v4l2_capability capability{};
    QCOMPARE(camera.request(VIDIOC_QUERYCAP, &capability), 0);
    QCOMPARE(reinterpret_cast<const char *>(capability.card), "Other");
    // What it looks at stays; what was set or broken in the device does not.
    QCOMPARE(camera.control(V4L2_CID_BRIGHTNESS), 0);
    QCOMPARE(simcam({"get", "radius"}).output, "0.25\n");
    QCOMPARE(simcam({"get", "stall"}).output, "0\n");
}

void tst_simcam::runReturnsTheStatus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    const auto shell = [](const char *script) { return QStringList{"--", "sh", "-c", script}; };
    QTest::newRow("failure") << shell("exit 7") << 7;
    QTest::newRow("signal") << shell("kill -9 $$") << 128 + SIGKILL;
    QTest::newRow("no program") << QStringList{"--", "no-such-program"} << 127;
    QTest::newRow("no --") << QStringList{"true"} << 2;
    QTest::newRow("unknown option") << QStringList{"--fast", "--", "true"} << 2;
    QTest::newRow("camera") << QStringList{"--", "test", "-c", "/dev/video0"} << 0;
    QTest::newRow("no camera") << QStringList{"--unplugged"} + shell("test ! -e /dev/video0") << 0;
}

void tst_simcam::runReturnsTheStatus()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QCOMPARE(simcam(QStringList{"run"} + arguments).exitCode, status);
}

void tst_simcam::runPassesSignalsOn()
{
    QProcess process;
    process.start(qEnvironmentVariable("SIMCAM_TOOL"),
                  {"run", "--", "sh", "-c",
                   "trap 'echo caught; exit 5' TERM; echo ready; while :; do sleep 0.05; done"});
    QVERIFY(process.waitForReadyRead(10000));
    QCOMPARE(process.readAllStandardOutput(), "ready\n");
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.readAllStandardOutput(), "caught\n");
    QCOMPARE(process.exitCode(), 5);
}

QTEST_GUILESS_MAIN(tst_simcam)
#include "tst_simcam.moc"
