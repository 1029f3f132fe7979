#include "CirclePoints.h"
#include "measurement/GuideGeometry.h"

#include <QTest>

using namespace meridax;
using meridax::testing::polar;

class tst_GuideGeometry : public QObject
{
    Q_OBJECT

private slots:
    void sector_data()
    {
        QTest::addColumn<QPointF>("offset"); // from the centre of the sector
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("positions");
        QTest::addColumn<SectorState>("expected");

        const QSize frame(1000, 800);
        const QPointF origin;
        const auto row = [](const char *name, QPointF offset, QSize size, int index, int positions,
                            const SectorState &expected) {
            QTest::newRow(name) << offset << size << index << positions << expected;
        };
        const SectorState outside{false, 0.0};
        const SectorState middle{true, 1.0};

        row("middle line, upper right", {200, -200}, frame, 0, 8, middle);
        row("next one counter-clockwise", {0, -200}, frame, 1, 8, middle);
        row("other half way", polar(origin, 200, -51), frame, 0, 8, {true, std::sqrt(0.5)});
        row("just outside", polar(origin, 200, -32.9999), frame, 0, 8, outside);
        // Spacing 3: -45 - 101 * 3 = -348, and the angle of the blob is exactly 0.
        row("exactly on the edge", {200, 0}, frame, 101, 120, {true, 0.0});
        row("across the seam", polar(origin, 200, 175), frame, 3, 8, {true, std::sqrt(7.0 / 12.0)});
        row("after more than a turn", polar(origin, 200, 75), frame, 2, 3, middle);
        row("20 degrees across the seam", polar(origin, 200, 160), frame, 3, 8, outside);
        row("at the smallest radius", {0, -40}, frame, 1, 8, middle);
        row("nearer", {0, -39.99}, frame, 1, 8, outside);
        row("small upright frame", {0, -20}, QSize(100, 640), 1, 8, middle);
        row("nearer, in it", {0, -19.99}, QSize(100, 640), 1, 8, outside);
        row("not a number", {qQNaN(), 0}, frame, 0, 8, outside);
    }

    void sector()
    {
        QFETCH(QPointF, offset);
        QFETCH(QSize, frame);
        QFETCH(int, index);
        QFETCH(int, positions);
        QFETCH(SectorState, expected);

        const QPointF centre(512, 384);
        const SectorState state = evaluateSector(centre + offset, centre, frame, index, positions);
        QCOMPARE(state.inSector, expected.inSector);
        QCOMPARE_LT(std::abs(state.alignment - expected.alignment), 1e-7);
    }

    void overlayCentreFollowsOffset()
    {
        CameraSettings settings;
        settings.centerX = 1000.5;
        settings.centerY = 700.0;
        settings.centerOffsetX = -3.0;
        settings.centerOffsetY = 8.25;
        settings.centerOffsetEnabled = true;
        QCOMPARE(overlayCentre(settings), QPointF(997.5, 708.25));
        settings.centerOffsetEnabled = false;
        QCOMPARE(overlayCentre(settings), QPointF(1000.5, 700.0));
    }
};

QTEST_APPLESS_MAIN(tst_GuideGeometry)
#include "tst_guidegeometry.moc"
