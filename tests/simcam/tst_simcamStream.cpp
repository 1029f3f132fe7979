// The simulated camera as a program sees it that uses Video4Linux: the picture and the stream.

#include "SimcamTool.h"
#include "V4l2Client.h"

#include <QImage>
#include <QPointF>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cmath>
#include <csignal>
#include <unistd.h>

namespace {

constexpr quint32 kMjpeg = V4L2_PIX_FMT_MJPEG;
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

/// Centroid of what is darker than the ground around `guess`, weighted by how much.
QPointF darkCentroid(const Luma &luma, QPointF guess, double radius)
{
    const int left = std::max(0, int(guess.x() - 1.5 * radius));
    const int top = std::max(0, int(guess.y() - 1.5 * radius));
    const int right = std::min(luma.width, int(guess.x() + 1.5 * radius) + 2);
    const int bottom = std::min(luma.height, int(guess.y() + 1.5 * radius) + 2);
    const int ground = luma.at(left, top);
    double sum = 0;
    double sumX = 0;
    double sumY = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const double weight = ground - luma.at(x, y);
            sum += weight;
            sumX += weight * x;
            sumY += weight * y;
        }
    }
    return {sumX / sum, sumY / sum};
}

bool isWholeJpeg(const QByteArray &data)
{
    return data.startsWith("\xff\xd8") && data.endsWith("\xff\xd9");
}

QPointF point(const QMap<QByteArray, QByteArray> &values, const QByteArray &name)
{
    return {values[name + "_x"].toDouble(), values[name + "_y"].toDouble()};
}

} // namespace

class tst_simcamStream : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void streamsFrames_data();
    void streamsFrames();
    void markIsWhereTheTruthSays_data();
    void markIsWhereTheTruthSays();
    void turnIsSeenInTheNextFrames();
    void autoTurnVisitsItsPositions();
    void numberOfMarks();
    void controlsChangeThePicture_data();
    void controlsChangeThePicture();
    void playsRecordedFrames();
    void keepsDistanceBetweenFrames();
};

void tst_simcamStream::init()
{
    simcam({"unplug"});
    QCOMPARE(simcam({"plug", "--new", "--node", "video0"}).output, "video0\n");
}

void tst_simcamStream::streamsFrames_data()
{
    QTest::addColumn<quint32>("format");
    QTest::addColumn<quint32>("memory");
    QTest::newRow("MJPEG mapped") << kMjpeg << quint32(V4L2_MEMORY_MMAP);
    QTest::newRow("MJPEG user pointer") << kMjpeg << quint32(V4L2_MEMORY_USERPTR);
    QTest::newRow("YUYV mapped") << kYuyv << quint32(V4L2_MEMORY_MMAP);
    QTest::newRow("YUYV user pointer") << kYuyv << quint32(V4L2_MEMORY_USERPTR);
}

void tst_simcamStream::streamsFrames()
{
    QFETCH(quint32, format);
    QFETCH(quint32, memory);
    V4l2Client camera;
    QCOMPARE(camera.setFormat(format, 640, 480), 0);
    QCOMPARE(camera.start(memory), 0);
    QByteArray before;
    qint64 sequence = -1;
    for (int i = 0; i < 5; ++i) {
        const CapturedFrame frame = camera.take();
        QCOMPARE(frame.error, 0);
        QCOMPARE_GT(qint64(frame.sequence), sequence);
        QVERIFY(format == kMjpeg ? isWholeJpeg(frame.data) : frame.data.size() == 2 * 640 * 480);
        QVERIFY2(frame.data != before, "the noise has to differ");
        sequence = frame.sequence;
        before = frame.data;
    }
}

void tst_simcamStream::markIsWhereTheTruthSays_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QStringList>("scene");
    QTest::addColumn<double>("tolerance");
    const QStringList quiet{"noise=0"};
    const QStringList form{"noise=0", "form2=3", "phase2=40", "form5=-1.5", "center-x=-12.25"};
    QTest::newRow("640x480") << QSize(640, 480) << quiet << 0.005;
    QTest::newRow("1280x720") << QSize(1280, 720) << quiet << 0.005;
    QTest::newRow("1920x1080") << QSize(1920, 1080) << quiet << 0.005;
    QTest::newRow("3264x2448") << QSize(3264, 2448) << quiet << 0.005;
    QTest::newRow("form error") << QSize(640, 480) << form << 0.005;
    QTest::newRow("out of focus") << QSize(640, 480) << QStringList{"noise=0", "defocus=2"} << 0.01;
    QTest::newRow("pixel noise") << QSize(640, 480) << QStringList{"noise=2"} << 0.3;
    QTest::newRow("position noise")
        << QSize(640, 480) << QStringList{"noise=0", "dwell-noise=2", "frame-noise=1"} << 0.005;
}

void tst_simcamStream::markIsWhereTheTruthSays()
{
    QFETCH(QSize, size);
    QFETCH(QStringList, scene);
    QFETCH(double, tolerance);
    QCOMPARE(simcam(QStringList{"set"} + scene).exitCode, 0);
    V4l2Client camera;
    QCOMPARE(camera.setFormat(kYuyv, unsigned(size.width()), unsigned(size.height())), 0);
    for (const char *angle : {"-179.3", "-45", "12.7", "101"}) {
        QCOMPARE(simcam({"turn", "--to", angle}).exitCode, 0);
        // A stream of its own for each angle, with a single buffer: its first frame holds the
        // angle, and it is the last one rendered when the truth is asked.
        QCOMPARE(camera.start(V4L2_MEMORY_MMAP, 1), 0);
        const CapturedFrame frame = camera.takeAndKeep();
        camera.stop();
        QCOMPARE(frame.error, 0);
        const auto truth = simcamValues("truth");
        const double radius = truth["mark_radius"].toDouble();
        const Luma luma{frame.data, size.width(), size.height()};
        const QPointF shown = point(truth, "shown");
        const QPointF found = darkCentroid(luma, shown, radius);
        const QPointF error = found - shown;
        QVERIFY2(std::hypot(error.x(), error.y()) < tolerance,
                 qPrintable(QString("at %1: %2, %3").arg(angle).arg(error.x()).arg(error.y())));

        // The truth itself, by its definition.
        const double a = truth["angle"].toDouble() * M_PI / 180;
        double distance = truth["radius"].toDouble();
        for (int k = 2; k <= 7; ++k) {
            const QByteArray form = "form" + QByteArray::number(k);
            distance += truth[form + "_amplitude"].toDouble() *
                        std::cos(k * a + truth[form + "_phase"].toDouble() * M_PI / 180);
        }
        const QPointF mark = point(truth, "center") + distance * QPointF(std::cos(a), std::sin(a));
        const QPointF deviation = mark - point(truth, "mark");
        QCOMPARE_LT(std::hypot(deviation.x(), deviation.y()), 0.001);
    }
}

void tst_simcamStream::turnIsSeenInTheNextFrames()
{
    V4l2Client camera;
    QCOMPARE(camera.setFormat(kYuyv, 640, 480), 0);
    QCOMPARE(camera.start(), 0);
    QCOMPARE(camera.take().error, 0);
    QCOMPARE(simcam({"turn", "--to", "90"}).exitCode, 0);
    const auto truth = simcamValues("truth");
    QCOMPARE(truth["angle"].toDouble(), 90.0);
    const QPoint mark = point(truth, "mark").toPoint();
    // The frames that waited in the two buffers, then two more.
    int dark = -1;
    for (int i = 0; i < 4 && dark < 0; ++i) {
        const CapturedFrame frame = camera.take();
        QCOMPARE(frame.error, 0);
        if (Luma{frame.data, 640, 480}.at(mark.x(), mark.y()) < 60)
            dark = i;
    }
    QCOMPARE_GE(dark, 0);
    QCOMPARE(simcam({"turn", "--by", "-135.5"}).exitCode, 0);
    QCOMPARE(simcamValues("truth")["angle"].toDouble(), -45.5);
}

void tst_simcamStream::autoTurnVisitsItsPositions()
{
    QCOMPARE(simcam({"auto-turn", "4", "--dwell", "1", "--move", "0"}).exitCode, 0);
    for (const double angle : {-45.0, -135.0, 135.0, 45.0, -45.0})
        QTRY_COMPARE(simcamValues("truth")["angle"].toDouble(), angle);
    QCOMPARE(simcam({"auto-turn", "off"}).exitCode, 0);
    const QByteArray angle = simcamValues("truth")["angle"];
    QCOMPARE(std::remainder(angle.toDouble() + 45, 90), 0.0);
    QCOMPARE(simcam({"get", "turn-positions"}).output, "0\n");
}

void tst_simcamStream::numberOfMarks()
{
    const auto darkPixels = [] {
        V4l2Client camera;
        camera.setFormat(kYuyv, 640, 480);
        camera.start();
        const CapturedFrame frame = camera.take();
        int count = 0;
        for (qsizetype i = 0; i < frame.data.size(); i += 2)
            count += quint8(frame.data[i]) < 50;
        return count;
    };
    const int one = darkPixels();
    QCOMPARE_GT(one, 500);
    QCOMPARE(simcam({"set", "marks=2"}).exitCode, 0);
    QCOMPARE_LT(std::abs(darkPixels() - 2 * one), one / 20);
    QCOMPARE(simcam({"set", "marks=0"}).exitCode, 0);
    QCOMPARE(darkPixels(), 0);
}

void tst_simcamStream::controlsChangeThePicture_data()
{
    using Measure = double (*)(const QByteArray &);
    using Settings = QList<std::pair<quint32, int>>;
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<Measure>("measure");
    QTest::addColumn<double>("lowest"); // of the measure, relative to the picture before
    QTest::addColumn<double>("highest");
    const std::pair<quint32, int> manual{V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_MANUAL};
    const std::pair<quint32, int> noAutofocus{V4L2_CID_FOCUS_AUTO, 0};
    const auto row = [](const char *name, const Settings &settings, Measure measure, double lowest,
                        double highest) {
        QTest::newRow(name) << settings << measure << lowest << highest;
    };
    row("bright", {{V4L2_CID_BRIGHTNESS, 40}}, meanLuma, 1.2, 2);
    row("dark", {{V4L2_CID_BRIGHTNESS, -40}}, meanLuma, 0.5, 0.8);
    row("no contrast", {{V4L2_CID_CONTRAST, 0}}, structure, 0, 0.9);
    row("gain", {{V4L2_CID_GAIN, 25}}, meanLuma, 1.2, 1.6);
    row("gamma", {{V4L2_CID_GAMMA, 200}}, meanLuma, 1.1, 2);
    row("short exposure", {manual, {V4L2_CID_EXPOSURE_ABSOLUTE, 166}}, meanLuma, 0.45, 0.7);
    row("long exposure",
        {manual, {V4L2_CID_EXPOSURE_AUTO_PRIORITY, 1}, {V4L2_CID_EXPOSURE_ABSOLUTE, 500}}, meanLuma,
        1.2, 1.6);
    row("cut to 1/30 s", {manual, {V4L2_CID_EXPOSURE_ABSOLUTE, 5000}}, meanLuma, 0.97, 1.03);
    row("grey", {{V4L2_CID_SATURATION, 0}}, colour, 0, 0.01);
    row("best focus", {noAutofocus, {V4L2_CID_FOCUS_ABSOLUTE, 380}}, structure, 0.98, 1.02);
    row("off focus", {noAutofocus, {V4L2_CID_FOCUS_ABSOLUTE, 500}}, structure, 0, 0.85);
    row("softer", {{V4L2_CID_SHARPNESS, 0}}, structure, 0, 0.98);
    row("sharper", {{V4L2_CID_SHARPNESS, 6}}, structure, 1.02, 3);
    row("warm", {{V4L2_CID_AUTO_WHITE_BALANCE, 0}, {V4L2_CID_WHITE_BALANCE_TEMPERATURE, 6500}},
        colour, 1.5, 20);
}

void tst_simcamStream::controlsChangeThePicture()
{
    using Measure = double (*)(const QByteArray &);
    using Settings = QList<std::pair<quint32, int>>;
    QFETCH(Settings, settings);
    QFETCH(Measure, measure);
    QFETCH(double, lowest);
    QFETCH(double, highest);
    V4l2Client camera;
    QCOMPARE(camera.setFormat(kYuyv, 640, 480), 0);
    QCOMPARE(camera.start(), 0);
    const double before = measure(camera.take().data);
    camera.stop();
    for (const auto &[id, value] : settings) {
        QCOMPARE(camera.setControl(id, value), 0);
        QCOMPARE(camera.control(id), value);
    }
    QCOMPARE(camera.start(), 0);
    const double ratio = measure(camera.take().data) / before;
    QVERIFY2(ratio >= lowest && ratio <= highest, qPrintable(QString::number(ratio)));
}

void tst_simcamStream::playsRecordedFrames()
{
    const QTemporaryDir folder;
    const auto save = [&](const QString &name, QColor color) {
        QImage image(320, 240, QImage::Format_RGB32);
        image.fill(color);
        return image.save(folder.filePath(name), nullptr, 100);
    };
    QVERIFY(save("a.png", Qt::black));
    QVERIFY(save("b.jpg", Qt::white));
    QCOMPARE(simcam({"play", folder.path()}).exitCode, 0);
    V4l2Client camera;
    QCOMPARE(camera.setFormat(kYuyv, 640, 480), 0);
    const auto lumas = [&] {
        QList<int> list;
        camera.start();
        for (int i = 0; i < 4; ++i)
            list.append(qRound(meanLuma(camera.take().data)));
        camera.stop();
        return list;
    };
    QCOMPARE(lumas(), QList<int>({16, 235, 16, 235}));
    QCOMPARE(simcam({"set", "play-frame=1"}).exitCode, 0);
    QCOMPARE(lumas(), QList<int>({235, 235, 235, 235}));
    QCOMPARE(simcam({"play", "none"}).exitCode, 0);
    const double scene = meanLuma((camera.start(), camera.take().data));
    QVERIFY(scene > 60 && scene < 200);
}

void tst_simcamStream::keepsDistanceBetweenFrames()
{
    constexpr double kPeriod = 1 / 30.0;
    V4l2Client camera;
    QCOMPARE(camera.setFormat(kMjpeg, 640, 480), 0);
    QCOMPARE(camera.start(V4L2_MEMORY_MMAP, 8), 0);
    double before = camera.take().timestamp;
    double shortest = 1;
    double longest = 0;
    for (int i = 0; i < 40; ++i) {
        if (i == 10) { // the whole program stands still for a while
            const QString command = QString("kill -STOP %1; sleep 0.4; kill -CONT %1");
            QVERIFY(QProcess::startDetached("sh", {"-c", command.arg(getpid())}));
        }
        const CapturedFrame frame = camera.take();
        QCOMPARE(frame.error, 0);
        shortest = std::min(shortest, frame.timestamp - before);
        longest = std::max(longest, frame.timestamp - before);
        before = frame.timestamp;
    }
    QCOMPARE_GT(longest, 0.3);
    QCOMPARE_GT(shortest, kPeriod / 2 - 0.001);
}

QTEST_GUILESS_MAIN(tst_simcamStream)
#include "tst_simcamStream.moc"
