#include "viewmodel/CameraList.h"

#include <QTest>

#include <limits>

using namespace meridax;

/// What the camera list is computed from, without a camera.
class TestCameraList : public QObject
{
    Q_OBJECT

private slots:
    void formatsFoldBySize()
    {
        const QList<CameraFormatInfo> folded = foldFormats({{640, 480, 15, 30},
                                                            {1280, 720, 5, 10},
                                                            {640, 480, 5, 25},
                                                            {-1, -1, 1, 1},
                                                            {640, 480, 20, 60}});
        QCOMPARE(folded, (QList<CameraFormatInfo>{{640, 480, 5, 60}, {1280, 720, 5, 10}}));
    }

    void formatsAreSorted()
    {
        // Equal areas go by width; the area of the last is beyond 32 bits.
        const QList<CameraFormatInfo> sorted = foldFormats(
            {{100000, 100000, 1, 1}, {800, 300, 1, 1}, {600, 400, 1, 1}, {320, 240, 1, 1}});
        QCOMPARE(
            sorted,
            (QList<CameraFormatInfo>{
                {320, 240, 1, 1}, {600, 400, 1, 1}, {800, 300, 1, 1}, {100000, 100000, 1, 1}}));
    }

    void nearestFormat_data()
    {
        QTest::addColumn<QSize>("wanted");
        QTest::addColumn<int>("index");
        QTest::newRow("exact") << QSize(640, 480) << 0;
        QTest::newRow("smaller sum") << QSize(1000, 1000) << 1;
        QTest::newRow("first of equals") << QSize(960, 600) << 0;
        const int highest = std::numeric_limits<int>::max();
        QTest::newRow("highest") << QSize(highest, highest) << 1;
    }

    void nearestFormat()
    {
        QFETCH(QSize, wanted);
        QTEST(nearestFormatIndex({{640, 480, 1, 1}, {1280, 720, 1, 1}}, wanted), "index");
        QCOMPARE(nearestFormatIndex({}, wanted), -1);
    }

    void remembered()
    {
        const QList<CameraDeviceInfo> cameras{{"id0", "Kamera 0", {}}, {"id1", "Kamera 1", {}}};
        QCOMPARE(rememberedCameraIndex(cameras, "id1", "Kamera 0"), 1);
        QCOMPARE(rememberedCameraIndex(cameras, "gone", "gone"), 0);
        QCOMPARE(rememberedCameraIndex({}, "id1", "Kamera 0"), 0);
    }

    void texts()
    {
        const QStringList expected{"640 x 480  @ 30 fps", "1280 x 720", "1920 x 1080  @ 8 fps"};
        QCOMPARE(resolutionTexts({{640, 480, 5, 29.97F}, {1280, 720, 0, 0}, {1920, 1080, 1, 7.5F}}),
                 expected);
        QCOMPARE(resolutionTexts({}), QStringList());
    }

    void limits()
    {
        const ResolutionLimits found =
            resolutionLimits({{640, 480, 1, 1}, {1280, 400, 1, 1}, {800, 600, 1, 1}});
        QCOMPARE(found.smallest, QSize(640, 400));
        QCOMPARE(found.largest, QSize(1280, 600));
        QCOMPARE(resolutionLimits({{0, 0, 1, 1}}).smallest, QSize(1, 1));
        QCOMPARE(resolutionLimits({{0, 0, 1, 1}}).largest, QSize(1, 1));
    }
};

QTEST_APPLESS_MAIN(TestCameraList)
#include "tst_cameralist.moc"
