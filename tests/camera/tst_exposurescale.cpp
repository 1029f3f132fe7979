#include "camera/ExposureScale.h"

#include <QTest>

#include <limits>

using namespace meridax;

namespace {

ControlRange range(int min, int max, int step = 1, bool canAuto = false)
{
    return {.min = min, .max = max, .step = step, .supported = true, .canAuto = canAuto};
}

} // namespace

class TestExposureScale : public QObject
{
    Q_OBJECT

private slots:
    // Of all times that a driver may name.
    void unitsAndBack()
    {
        int previous = std::numeric_limits<int>::min();
        for (int units = 1; units <= 6156; ++units) {
            const int exposure = exposureOfUnits(units);
            QVERIFY2(exposure >= previous, "monotonic");
            QVERIFY2(exposure < -6, "the former scale and 0 lie outside");
            const int again = unitsOfExposure(exposure);
            QCOMPARE(exposureOfUnits(again), exposure);
            QVERIFY2(std::abs(again - units) <= 0.0353 * units + 0.5, "half a step");
            previous = exposure;
        }
        QCOMPARE(exposureOfUnits(1000000), -7);
        QCOMPARE(exposureOfUnits(-5), exposureOfUnits(1));
        for (const int exposure : {-90, -50, -17})
            QVERIFY(std::abs(unitsOfExposure(exposure + 10) - 2 * unitsOfExposure(exposure)) <= 1);
        QCOMPARE(unitsOfExposure(std::numeric_limits<int>::max()), 6156);
        QCOMPARE(unitsOfExposure(std::numeric_limits<int>::min()), 0);
    }

    void migrated_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<ControlRange>("range");
        QTest::addColumn<int>("expected");
        QTest::newRow("quarter") << -3 << range(0, 1000) << 250;
        QTest::newRow("below the former scale") << -7 << range(0, 1000) << 0;
        QTest::newRow("above the former scale") << 2000 << range(0, 1000) << 1000;
        QTest::newRow("inside, whatever scale") << -5 << range(-13, -1) << -5;
        QTest::newRow("half rounds away from 0") << 0 << range(-14, -1) << -8;
        QTest::newRow("nothing chosen, automatic or not") << 0 << range(-13, -1, 1, true) << -7;
        QTest::newRow("grid from the minimum, down") << -3 << range(1, 1001, 100) << 301;
        QTest::newRow("grid point beyond the range") << 6 << range(10, 25, 10) << 25;
        QTest::newRow("one value") << 0 << range(5, 5) << 5;
        QTest::newRow("empty range") << 0 << range(10, 5) << 0;
        QTest::newRow("unsupported") << -3 << ControlRange{.min = 0, .max = 1000} << -3;
        const int lowest = std::numeric_limits<int>::min();
        QTest::newRow("width beyond 32 bits") << 6 << range(lowest, -7) << -7;
    }

    void migrated()
    {
        QFETCH(int, value);
        QFETCH(ControlRange, range);
        QTEST(migratedExposure(value, range, ExposureScale::Stops), "expected");
    }

    void migratedToTenthsOfAStop_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("driverMin");
        QTest::addColumn<bool>("canAuto");
        QTest::addColumn<int>("expected");
        QTest::newRow("inside") << -50 << 1 << true << -50;
        QTest::newRow("nothing chosen") << 0 << 1 << true << -133;
        QTest::newRow("nothing chosen, no automatic mode") << 0 << 1 << false << -72;
        QTest::newRow("former scale") << 3 << 1 << true << -41;
        QTest::newRow("driver's unit, automatic") << 1 << 1 << true << -133;
        QTest::newRow("driver's unit, automatic from 3") << 3 << 3 << true << -117;
        QTest::newRow("driver's unit, 20 ms") << 200 << 1 << true << -56;
        QTest::newRow("driver's unit, longest") << 5000 << 1 << true << -10;
        QTest::newRow("a longer time than the camera has") << -8 << 1 << true << -10;
        QTest::newRow("a shorter one") << -150 << 1 << true << -133;
    }

    void migratedToTenthsOfAStop()
    {
        QFETCH(int, value);
        QFETCH(int, driverMin);
        QFETCH(bool, canAuto);
        const ControlRange units = range(driverMin, 5000, 4, canAuto);
        QTEST(migratedExposure(value, exposureRangeOfUnits(units), ExposureScale::TenthsOfAStop),
              "expected");
    }

    void times()
    {
        QCOMPARE(exposureMs(-7, ExposureScale::Stops), 7.8125);
        QCOMPARE(exposureMs(-70, ExposureScale::TenthsOfAStop), 7.8125);
    }
};

QTEST_APPLESS_MAIN(TestExposureScale)
#include "tst_exposurescale.moc"
