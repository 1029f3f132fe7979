// The simulated camera when something goes wrong: failing calls, bad frames, unplugging, other
// programs that use the same device, and callers that do not keep to the rules.

#include "SimcamTool.h"
#include "V4l2Client.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

constexpr quint32 kMjpeg = V4L2_PIX_FMT_MJPEG;
constexpr char kExitWhileStreaming[] = "--exit-while-streaming";

QStringList nodes()
{
    return QDir("/dev").entryList({"video*"}, QDir::System, QDir::Name);
}

ToolResult v4l2Ctl(const QStringList &arguments)
{
    QProcess process;
    process.start("v4l2-ctl", arguments);
    if (!process.waitForFinished(20000))
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class tst_simcamFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void failsAsTold_data();
    void failsAsTold();
    void frozenPictureRepeatsItself();
    void slowFrames();
    void unpluggingEndsTheStream();
    void comesBackUnderAnotherNumber();
    void metadataNode();
    void processesShareTheDevice();
    void badCallersGetErrors();
    void exitWhileStreaming();
};

void tst_simcamFaults::init()
{
    simcam({"unplug"});
    QCOMPARE(simcam({"plug", "--new", "--node", "video0"}).output, "video0\n");
}

void tst_simcamFaults::failsAsTold_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<int>("openError");
    QTest::addColumn<int>("startError");
    QTest::addColumn<int>("takeError");
    QTest::addColumn<bool>("isFaulty");
    QTest::addColumn<bool>("isComplete");
    QTest::newRow("none") << "stall=0" << 0 << 0 << 0 << false << true;
    QTest::newRow("open") << "open-errno=EACCES" << EACCES << 0 << 0 << false << false;
    QTest::newRow("take") << "dqbuf-errno=EIO" << 0 << 0 << EIO << false << false;
    QTest::newRow("no frames") << "stall=1" << 0 << 0 << ETIMEDOUT << false << false;
    QTest::newRow("cut") << "truncate=1" << 0 << 0 << 0 << false << false;
    QTest::newRow("flagged") << "error-frames=1" << 0 << 0 << 0 << true << false;
    QTest::newRow("no user pointers") << "no-userptr=1" << 0 << EINVAL << 0 << false << false;
}

void tst_simcamFaults::failsAsTold()
{
    QFETCH(QString, setting);
    QFETCH(int, openError);
    QFETCH(int, startError);
    QFETCH(int, takeError);
    QFETCH(bool, isFaulty);
    QFETCH(bool, isComplete);
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
    QCOMPARE(frame.data.endsWith("\xff\xd9"), isComplete);
}

void tst_simcamFaults::frozenPictureRepeatsItself()
{
    QCOMPARE(simcam({"set", "freeze=1"}).exitCode, 0);
    V4l2Client camera;
    QCOMPARE(camera.start(), 0);
    const QByteArray first = camera.take().data;
    QCOMPARE(simcam({"turn", "--by", "30"}).exitCode, 0);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(camera.take().data, first);
    QCOMPARE(simcam({"set", "freeze=0"}).exitCode, 0);
    QTRY_VERIFY(camera.take().data != first);
}

void tst_simcamFaults::slowFrames()
{
    QCOMPARE(simcam({"set", "frame-delay=0.2"}).exitCode, 0);
    V4l2Client camera;
    QCOMPARE(camera.start(), 0);
    const double first = camera.take().timestamp;
    QCOMPARE_GT(camera.take().timestamp - first, 0.2);
}

void tst_simcamFaults::unpluggingEndsTheStream()
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

void tst_simcamFaults::comesBackUnderAnotherNumber()
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

void tst_simcamFaults::metadataNode()
{
    QCOMPARE(nodes(), QStringList({"video0", "video1"}));
    const V4l2Client metadata("/dev/video1");
    v4l2_capability capability{};
    QCOMPARE(metadata.request(VIDIOC_QUERYCAP, &capability), 0);
    QVERIFY(capability.device_caps & V4L2_CAP_META_CAPTURE);
    QVERIFY(!(capability.device_caps & V4L2_CAP_VIDEO_CAPTURE));
    QCOMPARE(simcam({"unplug"}).exitCode, 0);
    QCOMPARE(simcam({"plug", "--no-metadata"}).exitCode, 0);
    QCOMPARE(nodes(), QStringList({"video0"}));
}

void tst_simcamFaults::processesShareTheDevice()
{
    V4l2Client camera;
    QCOMPARE(v4l2Ctl({"-c", "brightness=20"}).exitCode, 0);
    QCOMPARE(camera.control(V4L2_CID_BRIGHTNESS), 20);
    QCOMPARE(camera.setControl(V4L2_CID_CONTRAST, 11), 0);
    QCOMPARE(v4l2Ctl({"-C", "contrast"}).output, "contrast: 11\n");
    QCOMPARE(simcam({"get", "control.contrast"}).output, "11\n");

    QCOMPARE(camera.start(), 0);
    QVERIFY(v4l2Ctl({"--stream-mmap", "--stream-count=1"}).errors.contains("Device or resource"));
    QCOMPARE(V4l2Client().setFormat(kMjpeg, 1280, 720), EBUSY);
    camera.stop();
    QCOMPARE(V4l2Client().setFormat(kMjpeg, 1280, 720), 0);
}

void tst_simcamFaults::badCallersGetErrors()
{
    const V4l2Client camera;
    v4l2_capability capability{};
    QCOMPARE(camera.request(VIDIOC_QUERYCAP, nullptr), EFAULT);
    QCOMPARE(camera.request(VIDIOC_QUERYCAP, reinterpret_cast<void *>(16)), EFAULT);
    // Some callers keep requests in an int, which sign-extends those with the highest bit.
    const auto extended = static_cast<unsigned long>(static_cast<int>(VIDIOC_QUERYCAP));
    QCOMPARE(camera.request(extended, &capability), 0);
    QCOMPARE(camera.request(VIDIOC_G_FBUF, &capability), ENOTTY);
    // Out of range: clamped. Under automatic rule: refused.
    QCOMPARE(camera.setControl(V4L2_CID_BRIGHTNESS, 1000), 0);
    QCOMPARE(camera.control(V4L2_CID_BRIGHTNESS), 64);
    QCOMPARE(camera.setControl(V4L2_CID_EXPOSURE_ABSOLUTE, 100), EACCES);
    QCOMPARE(camera.setControl(V4L2_CID_EXPOSURE_AUTO, V4L2_EXPOSURE_AUTO), EINVAL);
    // No stream without buffers.
    int type = V4L2_BUF_TYPE_VIDEO_CAPTURE;
    QCOMPARE(camera.request(VIDIOC_STREAMON, &type), EINVAL);
}

void tst_simcamFaults::exitWhileStreaming()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kExitWhileStreaming});
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    // The buffers of a process that has ended hold nobody up.
    V4l2Client camera;
    QCOMPARE(camera.start(), 0);
}

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], kExitWhileStreaming) == 0) {
        auto *camera = new V4l2Client; // not stopped by its destructor
        const bool streams = camera->start() == 0 && camera->take().error == 0;
        std::exit(streams ? 0 : 1);
    }
    const QCoreApplication application(argc, argv);
    tst_simcamFaults test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_simcamFaults.moc"
