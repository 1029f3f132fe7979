#include "CirclePoints.h"
#include "measurement/FitQuality.h"

#include <QTest>

using namespace meridax;
using meridax::testing::circlePoints;
using meridax::testing::polar;

namespace {

const QPointF centre(1600, 1200);
constexpr double radius = 500.0;

/// Form of a path: a constant and two harmonics, amplitudes in px.
struct Form
{
    double constant = 0.0;
    int order = 0;
    double amplitude = 0.0;
    int order2 = 0;
    double amplitude2 = 0.0;

    double operator()(int, double angle) const
    {
        return constant + amplitude * std::cos(order * angle) +
               amplitude2 * std::cos(order2 * angle);
    }
};

FitQuality analyseForm(int n, const Form &form)
{
    return analyseFitQuality(circlePoints(n, centre, radius, 0.0, 360.0 / n, form), centre, radius);
}

bool near(double value, double expected, double tolerance = 1e-9)
{
    return std::abs(value - expected) <= tolerance;
}

} // namespace

class tst_FitQuality : public QObject
{
    Q_OBJECT

private slots:
    void resolvesOrdersUpToHalfThePoints_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("order");
        QTest::addColumn<int>("expectedOrder");
        QTest::addColumn<double>("expectedAmp");

        // At exactly half the number of points a harmonic shows with twice its amplitude.
        QTest::newRow("4 points") << 4 << 2 << 2 << 2.0;
        QTest::newRow("6 points") << 6 << 3 << 3 << 2.0;
        QTest::newRow("8 points") << 8 << 4 << 4 << 2.0;
        QTest::newRow("13 points") << 13 << 6 << 6 << 1.0;
        QTest::newRow("14 points") << 14 << 7 << 7 << 2.0;
        QTest::newRow("8 points cannot tell 5 from 3") << 8 << 5 << 3 << 1.0;
        QTest::newRow("15 points cannot tell 8 from 7") << 15 << 8 << 7 << 1.0;
    }

    void resolvesOrdersUpToHalfThePoints()
    {
        QFETCH(int, n);
        QFETCH(int, order);
        const FitQuality quality = analyseForm(n, {.order = order, .amplitude = 1.0});
        QTEST(quality.dominantOrder, "expectedOrder");
        QFETCH(double, expectedAmp);
        QVERIFY(near(quality.dominantAmp, expectedAmp));
    }

    void centerSigma_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<Form>("form");
        QTest::addColumn<double>("variance");

        QTest::newRow("3 points: nothing left over") << 3 << Form{.constant = 0.5} << 0.0;
        QTest::newRow("4 points: one degree of freedom")
            << 4 << Form{.order = 2, .amplitude = 1.0} << 4.0;
        QTest::newRow("5 points: form stays in") << 5 << Form{.order = 2, .amplitude = 1.0} << 1.25;
        QTest::newRow("order 1 is never examined")
            << 5 << Form{.order = 1, .amplitude = 2.0, .order2 = 2, .amplitude2 = 1.0} << 6.25;
        QTest::newRow("6 points: form is taken out")
            << 6 << Form{.order = 2, .amplitude = 2.0, .order2 = 3, .amplitude2 = 0.5} << 6.0;
        QTest::newRow("more form than scatter: stays in")
            << 6 << Form{.order = 3, .amplitude = 1.0} << 2.0;
        QTest::newRow("form below the noise floor: stays in")
            << 8 << Form{.constant = 1.0, .order = 2, .amplitude = 0.2} << 8.16 / 5.0;
        QTest::newRow("only the strongest harmonic is taken out")
            << 12 << Form{.order = 2, .amplitude = 2.0, .order2 = 3, .amplitude2 = 1.0}
            << (30.0 - 0.5 * (4.0 - 30.0 / 36.0) * 12.0) / 7.0;
    }

    void centerSigma()
    {
        QFETCH(int, n);
        QFETCH(Form, form);
        QFETCH(double, variance);
        const FitQuality quality = analyseForm(n, form);
        QVERIFY2(near(quality.centerSigma, std::sqrt(variance * 2.0 / n)),
                 qPrintable(QString::number(quality.centerSigma)));
        QCOMPARE(quality.dominantOrder, n == 3 ? 0 : std::max(2, form.order));
    }

    void coverageGap_data()
    {
        QTest::addColumn<QList<double>>("angles");
        QTest::addColumn<double>("gap");

        QTest::newRow("gap inside, unsorted") << QList<double>{100, -120, 20, -60} << 140.0;
        QTest::newRow("gap across the seam") << QList<double>{120, 0, -100} << 140.0;
        QTest::newRow("half a turn") << QList<double>{10, 30, 50, 70, 90, 110, 130, 150} << 220.0;
    }

    void coverageGap()
    {
        QFETCH(QList<double>, angles);
        QFETCH(double, gap);
        std::vector<QPointF> points;
        for (const double angle : angles)
            points.push_back(polar(centre, radius, angle));
        QVERIFY(near(analyseFitQuality(points, centre, radius).coverageGapDeg, gap));
    }

    void isZeroWithoutCircle()
    {
        const std::vector<QPointF> two{{0, 0}, {10, 0}};
        const std::vector<QPointF> three{{0, 0}, {10, 0}, {0, 10}};
        for (const FitQuality &quality :
             {analyseFitQuality({}, centre, radius), analyseFitQuality(two, centre, radius),
              analyseFitQuality(three, centre, 0.0), analyseFitQuality(three, centre, qQNaN())}) {
            QCOMPARE(quality.centerSigma, 0.0);
            QCOMPARE(quality.coverageGapDeg, 0.0);
            QCOMPARE(quality.dominantOrder, 0);
            QCOMPARE(quality.dominantAmp, 0.0);
        }
    }

    void logsItsFigures()
    {
        const std::vector<QPointF> points{{102, 0}, {0, 98}, {-102, 0}, {0, -98}};
        QTest::ignoreMessage(
            QtDebugMsg, "[Calibration] Messguete: 4 Punkte, sigma= 2 px (davon zufaellig 4 px) "
                        "-> Zentrum +/- 2.82843 px je Achse; groesste Winkelluecke 90 Grad; "
                        "dominante Ordnung n= 2 mit 4 px");
        analyseFitQuality(points, QPointF(0, 0), 100.0);
    }

    void rating_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<double>("sigma");
        QTest::addColumn<double>("gap");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<bool>("poor");
        QTest::addColumn<bool>("assessable");
        QTest::addColumn<int>("level");

        const auto row = [](const char *name, int n, double sigma, double gap, bool valid,
                            bool poor, bool assessable, int level) {
            QTest::newRow(name) << n << sigma << gap << valid << poor << assessable << level;
        };
        row("no result", 0, 0.0, 0.0, false, false, false, 3);
        row("three points, wide gap", 3, 0.0, 190.0, true, true, false, 3);
        row("four points", 4, 0.1, 90.0, true, false, false, 3);
        row("five points are good at best", 5, 0.1, 72.0, true, false, true, 1);
        row("no scatter at all", 8, 0.0, 45.0, true, false, false, 3);
        row("scatter of rounding errors", 8, 1e-15, 45.0, true, false, true, 0);
        row("excellent up to 0.2", 8, 0.2, 45.0, true, false, true, 0);
        row("good above 0.2", 8, 0.2001, 45.0, true, false, true, 1);
        row("usable above 0.5", 8, 0.5001, 45.0, true, false, true, 2);
        row("inaccurate above 1.5", 8, 1.5001, 45.0, true, false, true, 3);
        row("gap of twice the spacing", 8, 0.1, 90.0, true, false, true, 0);
        row("gap above twice the spacing", 8, 0.1, 90.01, true, true, true, 2);
        row("poor coverage spares no bad sigma", 8, 2.0, 220.0, true, true, true, 3);
    }

    void rating()
    {
        QFETCH(int, n);
        QFETCH(double, sigma);
        QFETCH(double, gap);
        QTEST(fitResultValid(n), "valid");
        QTEST(coveragePoor(n, gap), "poor");
        QTEST(qualityAssessable(n, sigma), "assessable");
        QTEST(qualityLevel(n, sigma, gap), "level");
    }
};

QTEST_APPLESS_MAIN(tst_FitQuality)
#include "tst_fitquality.moc"
