#include "CirclePoints.h"
#include "measurement/CircleFit.h"

#include <QTest>

#include <functional>
#include <limits>
#include <random>

using namespace meridax;
using meridax::testing::circlePoints;
using meridax::testing::polar;

using Points = std::vector<QPointF>;
/// What a fit minimises, from mean and variance of the squared distances to the centre.
using Objective = std::function<double(double mean, double variance)>;

namespace {

double objectiveAt(const Points &points, QPointF centre, const Objective &objective)
{
    double mean = 0.0;
    for (const QPointF &point : points)
        mean += QPointF::dotProduct(point - centre, point - centre) / points.size();
    double variance = 0.0;
    for (const QPointF &point : points) {
        const double deviation = QPointF::dotProduct(point - centre, point - centre) - mean;
        variance += deviation * deviation / points.size();
    }
    return objective(mean, variance);
}

bool isMinimum(const Points &points, QPointF centre, double step, const Objective &objective)
{
    const double here = objectiveAt(points, centre, objective);
    for (int degrees = 0; degrees < 360; degrees += 45) {
        if (objectiveAt(points, polar(centre, step, degrees), objective) <= here)
            return false;
    }
    return true;
}

double taubin(double mean, double variance)
{
    return variance / mean;
}

double algebraic(double, double variance)
{
    return variance;
}

} // namespace

class tst_CircleFit : public QObject
{
    Q_OBJECT

private slots:
    void recoversExactCircle_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QPointF>("centre");
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("stepDeg");

        QTest::newRow("three points") << 3 << QPointF(1632, 1224) << 400.0 << 120.0;
        QTest::newRow("most points, large radius") << 15 << QPointF(1650, 1180) << 1200.0 << 24.0;
        QTest::newRow("short arc") << 5 << QPointF(800, 600) << 300.0 << 10.0;
        QTest::newRow("centre outside the frame") << 6 << QPointF(-4000, 9000) << 5000.0 << 15.0;
    }

    void recoversExactCircle()
    {
        QFETCH(int, count);
        QFETCH(QPointF, centre);
        QFETCH(double, radius);
        QFETCH(double, stepDeg);
        const Points points =
            circlePoints(count, centre, radius, 17.0, stepDeg, [](int, double) { return 0.0; });

        const CircleFitResult fit = computeCenterFromMeasurements(points);
        QVERIFY(fit.valid);
        QCOMPARE_LT(std::hypot(fit.centerX - centre.x(), fit.centerY - centre.y()), 1e-6);
        QCOMPARE_LT(std::abs(fit.radius - radius), 1e-6);
        QCOMPARE_LT(fit.stdDev, 1e-6);
    }

    void minimisesTaubinsObjective_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("stepDeg");
        QTest::addColumn<double>("noise");

        QTest::newRow("hardly a circle") << 8 << 45.0 << 40.0;
        QTest::newRow("quarter turn") << 7 << 15.0 << 1.0;
        QTest::newRow("four points on half a turn") << 4 << 60.0 << 2.0;
    }

    void minimisesTaubinsObjective()
    {
        QFETCH(int, count);
        QFETCH(double, stepDeg);
        QFETCH(double, noise);
        constexpr double pattern[] = {1.0, -0.7, 0.3, -1.2, 0.9, 0.1, -0.5, 0.8};
        const Points points = circlePoints(count, QPointF(700, 500), 100.0, -45.0, stepDeg,
                                           [&](int i, double) { return noise * pattern[i]; });

        const CircleFitResult fit = computeCenterFromMeasurements(points);
        QVERIFY(fit.valid);
        QVERIFY(isMinimum(points, fit.center(), 1e-3, taubin));
    }

    void fallsBackWhenDiverging()
    {
        // The characteristic polynomial exceeds 1e20 at 0 for a large circle with coarse scatter.
        constexpr double pattern[] = {20.0, -14.0, 6.0, -24.0, 18.0, 2.0, -10.0};
        const Points points = circlePoints(7, QPointF(3000, 2000), 4000.0, 0.0, 30.0,
                                           [&](int i, double) { return pattern[i]; });

        QTest::ignoreMessage(QtWarningMsg,
                             "[Calibration] Taubin-Newton divergiert, Fallback auf Centroid");
        const CircleFitResult fit = computeCenterFromMeasurements(points);
        QVERIFY(fit.valid);
        QVERIFY(isMinimum(points, fit.center(), 1e-3, algebraic));
        QVERIFY(!isMinimum(points, fit.center(), 1e-3, taubin));
    }

    void reportsMeanDistanceAndPopulationScatter()
    {
        const Points points{{101, 0}, {0, 99}, {-101, 0}, {0, -99}};

        QTest::ignoreMessage(QtDebugMsg, "[Calibration] Taubin-Fit aus 4 Punkten: Center=( 0 , 0 ) "
                                         "Radius= 100 Std= 1 px");
        const CircleFitResult fit = computeCenterFromMeasurements(points);
        QVERIFY(fit.valid);
        QCOMPARE(fit.radius, 100.0);
        QCOMPARE(fit.stdDev, 1.0);
    }

    void rejectsWhatIsNoCircle_data()
    {
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        QTest::addColumn<Points>("points");

        QTest::newRow("none") << Points{};
        QTest::newRow("coincident") << Points(8, QPointF(512, 384));
        QTest::newRow("not a number") << Points{{100, 0}, {0, nan}, {-100, 0}};
        QTest::newRow("beyond the range of double") << Points{{1e120, 0}, {0, 1e120}, {-1e120, 0}};
    }

    void rejectsWhatIsNoCircle()
    {
        QFETCH(Points, points);
        QVERIFY(!computeCenterFromMeasurements(points).valid);
    }

    void rejectsDegenerateSetsEverywhere()
    {
        std::mt19937 random(7);
        const auto within = [&random](double low, double high) {
            return std::uniform_real_distribution(low, high)(random);
        };
        for (int round = 0; round < 2000; ++round) {
            const QPointF start(within(0, 4000), within(0, 3000));
            const QPointF direction = polar({}, std::pow(10.0, within(-1, 3)), within(0, 360));
            Points line;
            for (int i = 3 + round % 6; i > 0; --i)
                line.push_back(start + direction * within(-1, 1));
            QVERIFY(!computeCenterFromMeasurements(line).valid);
            const QPointF other(within(0, 4000), within(0, 3000));
            QVERIFY(!computeCenterFromMeasurements(Points{start, start, other}).valid);
        }
    }

    void acceptsNearlyCollinearPoints()
    {
        const Points points{{0, 100}, {500, 100.03}, {1000, 100}};
        const CircleFitResult fit = computeCenterFromMeasurements(points);
        QVERIFY(fit.valid);
        QCOMPARE_GT(fit.radius, 1e6);
    }
};

QTEST_APPLESS_MAIN(tst_CircleFit)
#include "tst_circlefit.moc"
