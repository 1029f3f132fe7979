#include "viewmodel/ExposureMigration.h"

#include <QTest>

#include <limits>

using namespace meridax;

class TestExposureMigration : public QObject
{
    Q_OBJECT

private slots:
    void migrated_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<ControlRange>("range");
        QTest::addColumn<int>("expected");
        const auto range = [](int min, int max, int step) {
            return ControlRange{.min = min, .max = max, .step = step, .supported = true};
        };
        QTest::newRow("quarter") << -3 << range(0, 1000, 1) << 250;
        QTest::newRow("below the former scale") << -7 << range(0, 1000, 1) << 0;
        QTest::newRow("above the former scale") << 2000 << range(0, 1000, 1) << 1000;
        QTest::newRow("inside, whatever scale") << -5 << range(-13, -1, 1) << -5;
        QTest::newRow("half rounds away from 0") << 0 << range(-14, -1, 1) << -8;
        QTest::newRow("grid from the minimum, down") << -3 << range(1, 1001, 100) << 301;
        QTest::newRow("grid point beyond the range") << 6 << range(10, 25, 10) << 25;
        QTest::newRow("one value") << 0 << range(5, 5, 1) << 5;
        QTest::newRow("empty range") << 0 << range(10, 5, 1) << 0;
        QTest::newRow("unsupported") << -3 << ControlRange{.min = 0, .max = 1000} << -3;
        const int lowest = std::numeric_limits<int>::min();
        QTest::newRow("width beyond 32 bits") << 6 << range(lowest, -7, 1) << -7;
    }

    void migrated()
    {
        QFETCH(int, value);
        QFETCH(ControlRange, range);
        QTEST(migratedExposure(value, range), "expected");
    }
};

QTEST_APPLESS_MAIN(TestExposureMigration)
#include "tst_exposuremigration.moc"
