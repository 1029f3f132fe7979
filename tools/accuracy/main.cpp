// Measures how good circle fit and quality analysis are on random circles with a known centre, and
// prints the result as Markdown. The same on every run; see docs/accuracy.md.

#include "Simulation.h"
#include "measurement/CircleFit.h"
#include "measurement/FitQuality.h"
#include "measurement/GuideGeometry.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cmath>
#include <cstdio>
#include <functional>

using namespace meridax;
using namespace meridax::accuracy;

namespace {

constexpr int circlesPerCell = 10000;
constexpr int fewestPositions = 3;
constexpr int mostPositions = 15;

struct Coverage
{
    const char *name;
    double spanDeg;
};
constexpr std::array<Coverage, 4> coverages{
    {{"full turn", 360.0}, {"270°", 270.0}, {"180°", 180.0}, {"90°", 90.0}}};

/// Results of many circles with the same number of positions and the same coverage.
struct Tally
{
    int circles = 0;
    double errorSquares = 0.0;    ///< of the error over its bound, both axes
    double reportedSquares = 0.0; ///< of the reported uncertainty over the bound, both axes
    int within1 = 0;              ///< axes with the true centre within the reported uncertainty
    int within2 = 0;              ///< the same for twice the uncertainty
    int poor = 0;                 ///< circles whose coverage is rated poor
    int fallbacks = 0;            ///< circles whose fit fell back to the algebraic circle

    void addAxis(double error, double reported, double bound)
    {
        errorSquares += std::pow(error / bound, 2);
        reportedSquares += std::pow(reported / bound, 2);
        within1 += std::abs(error) <= reported ? 1 : 0;
        within2 += std::abs(error) <= 2.0 * reported ? 1 : 0;
    }
    double errorRatio() const { return std::sqrt(errorSquares / (2.0 * circles)); }
    double reportedRatio() const { return std::sqrt(reportedSquares / (2.0 * circles)); }
    double percent(int axes) const { return 100.0 * axes / (2.0 * circles); }
};

/// What the circles of a tally have in common.
struct Conditions
{
    int positions = 8;
    double spanDeg = 360.0;
    Form form{};
    Range radius{200.0, 1000.0};
    Range sigma{0.05, 0.5}; ///< noise per axis
};

/// Times that a fit fell back to the algebraic circle, counted by its warning.
int &fallbacks()
{
    static int count = 0;
    return count;
}

void countFallbacks(QtMsgType type, const QMessageLogContext &, const QString &)
{
    fallbacks() += type == QtWarningMsg ? 1 : 0;
}

Tally simulate(const Conditions &conditions)
{
    const int positions = conditions.positions;
    RandomNumbers random(1000 * static_cast<std::uint64_t>(conditions.spanDeg) + positions);
    Tally tally;
    fallbacks() = 0;
    for (int i = 0; i < circlesPerCell; ++i) {
        const Circle circle =
            randomCircle(guidedAngles(positions, conditions.spanDeg, guideSectorHalfWidth, random),
                         conditions.radius, random);
        const double sigma = random.uniform(conditions.sigma.low, conditions.sigma.high);
        Form form = conditions.form;
        form.phaseDeg = random.uniform(0.0, 360.0);
        const std::vector<QPointF> points = measure(circle, form, sigma, random);
        const CircleFitResult fit = computeCenterFromMeasurements(points);
        if (!fit.valid)
            continue;
        const FitQuality quality = analyseFitQuality(points, fit.center(), fit.radius);
        const CentreBound bound = centreBound(circle.angles, sigma);
        const QPointF error = fit.center() - circle.centre;
        tally.addAxis(error.x(), quality.centerSigma, bound.x);
        tally.addAxis(error.y(), quality.centerSigma, bound.y);
        tally.poor += coveragePoor(positions, quality.coverageGapDeg) ? 1 : 0;
        ++tally.circles;
    }
    tally.fallbacks = fallbacks();
    return tally;
}

/// Root mean square of the length by which `form` moves the centre, phase and turn at random, no
/// noise.
double centreShift(int positions, Form form, double freedomDeg)
{
    constexpr int circles = 2000;
    RandomNumbers random(7000 + 100 * form.order + positions);
    double squares = 0.0;
    for (int i = 0; i < circles; ++i) {
        const Circle circle = randomCircle(guidedAngles(positions, 360.0, freedomDeg, random),
                                           {200.0, 1000.0}, random);
        form.phaseDeg = random.uniform(0.0, 360.0);
        const std::vector<QPointF> points = measure(circle, form, 0.0, random);
        const QPointF shift = computeCenterFromMeasurements(points).center() - circle.centre;
        squares += QPointF::dotProduct(shift, shift);
    }
    return std::sqrt(squares / circles);
}

void print(const QString &line)
{
    std::puts(qUtf8Printable(line));
}

void printRow(const QStringList &cells)
{
    print(QStringLiteral("| %1 |").arg(cells.join(QStringLiteral(" | "))));
}

void printHead(const QString &title, const QStringList &columns)
{
    print(QStringLiteral("\n### %1\n").arg(title));
    printRow(columns);
    printRow(QStringList(columns.size(), QStringLiteral("---:")));
}

using Cells = std::array<std::array<Tally, coverages.size()>, mostPositions + 1>;

void printTallies(const QString &title, const Cells &cells, int first,
                  const std::function<QString(const Tally &)> &text)
{
    QStringList head{QStringLiteral("positions")};
    for (const Coverage &coverage : coverages)
        head += QString::fromUtf8(coverage.name);
    printHead(title, head);
    for (int positions = first; positions <= mostPositions; ++positions) {
        QStringList row{QString::number(positions)};
        for (const Tally &tally : cells[positions])
            row += text(tally);
        printRow(row);
    }
}

Cells simulateAll(const Form &form)
{
    Cells cells;
    for (int positions = fewestPositions; positions <= mostPositions; ++positions) {
        for (std::size_t i = 0; i < coverages.size(); ++i)
            cells[positions][i] =
                simulate({.positions = positions, .spanDeg = coverages[i].spanDeg, .form = form});
    }
    return cells;
}

QString shares(const Tally &tally)
{
    return QStringLiteral("%1 / %2")
        .arg(tally.percent(tally.within1), 0, 'f', 0)
        .arg(tally.percent(tally.within2), 0, 'f', 0);
}

void printForm(const QString &title, double freedomDeg)
{
    constexpr std::array positionCounts{3, 4, 5, 6, 8, 12, 15};
    QStringList head{QStringLiteral("order")};
    for (const int positions : positionCounts)
        head += QString::number(positions);
    printHead(title, head);
    for (int order = 2; order <= 7; ++order) {
        QStringList row{QString::number(order)};
        for (const int positions : positionCounts)
            row += QString::number(centreShift(positions, {order, 1.0}, freedomDeg), 'f', 2);
        printRow(row);
    }
}

void printFallbacks()
{
    QStringList head{QStringLiteral("noise, px")};
    for (const Coverage &coverage : coverages)
        head += QString::fromUtf8(coverage.name);
    printHead(QStringLiteral("Radius 1200 px, 8 positions: error over bound (fallbacks, %)"), head);
    for (const double sigma : {1.0, 3.0, 6.0, 12.0}) {
        QStringList row{QString::number(sigma)};
        for (const Coverage &coverage : coverages) {
            const Tally tally = simulate(
                {.spanDeg = coverage.spanDeg, .radius = {1200.0, 1200.0}, .sigma = {sigma, sigma}});
            row += QStringLiteral("%1 (%2)")
                       .arg(tally.errorRatio(), 0, 'f', 2)
                       .arg(100.0 * tally.fallbacks / circlesPerCell, 0, 'f', 0);
        }
        printRow(row);
    }
}

} // namespace

int main()
{
    qInstallMessageHandler(countFallbacks);

    const Cells plain = simulateAll({});
    printTallies(QStringLiteral("Error of the centre over its bound"), plain, 3,
                 [](const Tally &tally) { return QString::number(tally.errorRatio(), 'f', 2); });
    printTallies(QStringLiteral("Reported uncertainty over the bound"), plain, 4,
                 [](const Tally &tally) { return QString::number(tally.reportedRatio(), 'f', 2); });
    printTallies(QStringLiteral("True centre within one / two reported uncertainties, %"), plain, 4,
                 shares);
    printTallies(QStringLiteral("Coverage rated poor, %"), plain, 3, [](const Tally &tally) {
        return QString::number(100.0 * tally.poor / tally.circles, 'f', 0);
    });
    printTallies(QStringLiteral("The same shares with a three-lobed form of 1 px on every path, %"),
                 simulateAll({3, 1.0}), 4, shares);
    printForm(QStringLiteral("Shift of the centre by a form of 1 px, exact positions, px"), 0.0);
    printForm(QStringLiteral("Shift of the centre by a form of 1 px, guided positions, px"),
              guideSectorHalfWidth);
    printFallbacks();
    return 0;
}
