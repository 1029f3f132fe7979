#include "camera/DeviceChoice.h"

#include <QTest>

using namespace meridax;

using Cameras = QList<AttachedCamera>;
Q_DECLARE_METATYPE(Cameras)

namespace {

AttachedCamera camera(const QString &node, const QString &name, const QString &byId,
                      const QString &byPath)
{
    AttachedCamera result;
    result.node = node;
    result.name = name;
    result.byId = byId;
    result.byPath = byPath;
    return result;
}

} // namespace

class TestCameraIdentity : public QObject
{
    Q_OBJECT

private slots:
    void ids_data()
    {
        QTest::addColumn<Cameras>("cameras");
        QTest::addColumn<QStringList>("ids");
        QTest::newRow("links of its own, whatever the socket")
            << Cameras{camera("/dev/video0", "Laptop", "id/L", "path/1"),
                       camera("/dev/video2", "Okular", "id/O", "path/2")}
            << QStringList{"id/L", "id/O"};
        QTest::newRow("twins with serial numbers")
            << Cameras{camera("/dev/video0", "Okular", "id/O_1", "path/1"),
                       camera("/dev/video2", "Okular", "id/O_2", "path/2")}
            << QStringList{"id/O_1", "id/O_2"};
        // udev gives the link that both claim to one of them, and the next time to the other.
        QTest::newRow("twins without") << Cameras{camera("/dev/video0", "Okular", "", "path/1"),
                                                  camera("/dev/video2", "Okular", "id/O", "path/2"),
                                                  camera("/dev/video4", "Laptop", "id/L", "path/3")}
                                       << QStringList{"id/O@path/1", "id/O@path/2", "id/L"};
        QTest::newRow("no maker and model: socket and name")
            << Cameras{camera("/dev/video0", "Sensor", "", "path/1")}
            << QStringList{"path/1@Sensor"};
        QTest::newRow("no links: node and name")
            << Cameras{camera("/dev/video0", "Okular", "", ""),
                       camera("/dev/video1", "Okular", "id/O", "path/1")}
            << QStringList{"/dev/video0@Okular", "id/O"};
        QTest::newRow("other platforms") << Cameras{camera("\\\\?\\usb#vid_1", "Okular", "", "")}
                                         << QStringList{"\\\\?\\usb#vid_1"};
    }

    void ids()
    {
        QFETCH(Cameras, cameras);
        nameLasting(cameras);
        QStringList found;
        for (const AttachedCamera &camera : std::as_const(cameras))
            found << camera.id;
        QTEST(found, "ids");
    }

    void formerNodes()
    {
        AttachedCamera okular = camera("/dev/video0", "Okular", "id/O", "path/1");
        okular.id = "id/O";
        QVERIFY(isFormerly(okular, "/dev/video0", "Okular"));
        QVERIFY2(!isFormerly(okular, "/dev/video0", "Laptop"), "another camera at the old node");
        QVERIFY(!isFormerly(okular, "/dev/video2", "Okular"));
    }

    void choice_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("chosen");
        QTest::newRow("id before an earlier name") << "id/2" << "Eins" << 0 << 1;
        QTest::newRow("name, id unknown") << "id/9" << "ZWEI" << 0 << 1;
        QTest::newRow("both unknown") << "id/9" << "Neun" << 1 << -1;
        QTest::newRow("id alone, unknown") << "id/9" << "" << 1 << -1;
        QTest::newRow("index, nothing named") << "" << "" << 1 << 1;
        QTest::newRow("index beyond the list") << "" << "" << 7 << 1;
        QTest::newRow("index below it") << "" << "" << -3 << 0;
    }

    void choice()
    {
        QFETCH(QString, id);
        QFETCH(QString, name);
        QFETCH(int, index);
        Cameras cameras{camera("", "Eins", "", ""), camera("", "Zwei", "", "")};
        cameras[0].id = "id/1";
        cameras[1].id = "id/2";
        CameraSettings wanted;
        wanted.cameraId = id;
        wanted.cameraName = name;
        wanted.cameraIndex = index;
        QTEST(int(chooseDevice(cameras, wanted)), "chosen");
        QCOMPARE(chooseDevice({}, wanted), -1);
    }
};

QTEST_APPLESS_MAIN(TestCameraIdentity)
#include "tst_cameraidentity.moc"
