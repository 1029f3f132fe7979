// Measures under which conditions the mark is found with the default detector values, and under
// which after one click on the values offered, and prints the result as Markdown. The same on every
// run; see docs/accuracy.md.

#include "MarkSearch.h"

#include <QStringList>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <functional>
#include <thread>
#include <vector>

using namespace meridax;
using namespace meridax::accuracy;

namespace {

struct Cell
{
    MarkConditions conditions;
    MarkOutcome outcome;

    /// What a click is expected to master.
    bool isExpected() const
    {
        constexpr double smallest = 8.0;
        return outcome.seenContrast >= 4.0 * conditions.noise && conditions.diameter >= smallest;
    }
};

std::vector<Cell> grid()
{
    std::vector<Cell> cells;
    for (const double noise : {2.0, 5.0, 10.0})
        for (const double contrast : {20.0, 40.0, 80.0})
            for (const double defocus : {0.0, 3.0, 6.0})
                for (const double axes : {1.0, 0.9, 0.75})
                    for (const double diameter : {8.0, 12.0, 20.0, 40.0})
                        cells.push_back({{.noise = noise,
                                          .defocus = defocus,
                                          .contrast = contrast,
                                          .axes = axes,
                                          .diameter = diameter},
                                         {}});
    return cells;
}

void calibrateAll(std::vector<Cell> &cells)
{
    cv::setNumThreads(1);
    std::atomic<size_t> next = 0;
    const auto work = [&] {
        MarkCamera camera;
        for (size_t i = next++; i < cells.size(); i = next++) {
            camera.setUp(cells[i].conditions);
            cells[i].outcome = calibrate(camera);
        }
    };
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
        threads.emplace_back(work);
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

/// "found by default / after a click of all (median error of the centre)".
QString summary(const std::vector<Cell> &cells, const std::function<bool(const Cell &)> &belongs)
{
    int all = 0;
    int byDefault = 0;
    std::vector<double> errors;
    for (const Cell &cell : cells) {
        if (!cell.isExpected() || !belongs(cell))
            continue;
        ++all;
        byDefault += cell.outcome.foundByDefault ? 1 : 0;
        if (cell.outcome.foundAfterClick)
            errors.push_back(cell.outcome.centreError);
    }
    if (all == 0)
        return QStringLiteral("–");
    const QString counts =
        QStringLiteral("%1 / %2 of %3").arg(byDefault).arg(errors.size()).arg(all);
    if (errors.empty())
        return counts;
    const auto middle = errors.begin() + std::ptrdiff_t(errors.size() / 2);
    std::nth_element(errors.begin(), middle, errors.end());
    return QStringLiteral("%1 (%2)").arg(counts).arg(*middle, 0, 'f', 3);
}

QString valuesOf(const BlobSettings &settings)
{
    return QStringLiteral("thresholds %1 to %2, area %3 to %4, circularity %5, inertia %6")
        .arg(settings.minThreshold)
        .arg(settings.maxThreshold)
        .arg(settings.filterByArea ? settings.minArea : 0.0)
        .arg(settings.filterByArea ? settings.maxArea : 0.0)
        .arg(settings.filterByCircularity ? settings.minCircularity : 0.0)
        .arg(settings.filterByInertia ? settings.minInertiaRatio : 0.0);
}

void printPresets()
{
    printHead(QStringLiteral("Presets of the simulated camera"),
              {QStringLiteral("preset"), QStringLiteral("by default"),
               QStringLiteral("after one click"), QStringLiteral("error of the centre, px"),
               QStringLiteral("values set")});
    MarkCamera camera;
    for (const simcam::Preset &preset : simcam::presets()) {
        camera.setUp(preset);
        const MarkOutcome outcome = calibrate(camera);
        const auto found = [](bool is) {
            return is ? QStringLiteral("found") : QStringLiteral("not found");
        };
        printRow({QString::fromUtf8(preset.name), found(outcome.foundByDefault),
                  found(outcome.foundAfterClick), QString::number(outcome.centreError, 'f', 3),
                  outcome.set ? valuesOf(*outcome.set) : QStringLiteral("–")});
    }
}

using Value = double MarkConditions::*;

std::vector<double> valuesOf(const std::vector<Cell> &cells, Value value)
{
    std::vector<double> values;
    for (const Cell &cell : cells)
        if (const double v = cell.conditions.*value; std::ranges::find(values, v) == values.end())
            values.push_back(v);
    return values;
}

void printTable(const QString &title, const std::vector<Cell> &cells, const QString &rowName,
                Value row, const QString &columnName, Value column)
{
    QStringList head{rowName};
    for (const double c : valuesOf(cells, column))
        head += QStringLiteral("%1 %2").arg(columnName).arg(c);
    printHead(title, head);
    for (const double r : valuesOf(cells, row)) {
        QStringList line{QString::number(r)};
        for (const double c : valuesOf(cells, column))
            line += summary(cells, [&](const Cell &cell) {
                return cell.conditions.*row == r && cell.conditions.*column == c;
            });
        printRow(line);
    }
}

void printMisses(const std::vector<Cell> &cells, bool expected)
{
    for (const Cell &cell : cells) {
        const MarkConditions &c = cell.conditions;
        const MarkOutcome &o = cell.outcome;
        if (o.foundAfterClick || cell.isExpected() != expected)
            continue;
        QStringList line{QString::number(c.noise),
                         QString::number(c.contrast),
                         QString::number(c.defocus),
                         QString::number(c.axes),
                         QString::number(c.diameter),
                         QString::number(o.seenContrast, 'f', 0),
                         o.reason};
        if (o.set)
            line.last() += QStringLiteral("; ") + valuesOf(*o.set);
        printRow(line);
    }
}

void printTotal(const std::vector<Cell> &cells)
{
    int expected = 0;
    int found = 0;
    double worst = 0.0;
    for (const Cell &cell : cells) {
        expected += cell.isExpected() ? 1 : 0;
        if (cell.isExpected() && cell.outcome.foundAfterClick) {
            ++found;
            worst = std::max(worst, cell.outcome.centreError);
        }
    }
    print(QStringLiteral("\n%1 of %2 found after one click at most: %3 %. Largest error of the "
                         "centre %4 px.")
              .arg(found)
              .arg(expected)
              .arg(100.0 * found / expected, 0, 'f', 1)
              .arg(worst, 0, 'f', 2));
}

} // namespace

int main()
{
    std::vector<Cell> cells = grid();
    calibrateAll(cells);

    printPresets();
    using C = MarkConditions;
    printTable(QStringLiteral("Mark found by default / after one click, by noise and contrast"),
               cells, QStringLiteral("noise"), &C::noise, QStringLiteral("contrast"), &C::contrast);
    printTable(QStringLiteral("The same by size and defocus, px"), cells,
               QStringLiteral("diameter"), &C::diameter, QStringLiteral("defocus"), &C::defocus);
    printTable(QStringLiteral("The same by size and ratio of the axes"), cells,
               QStringLiteral("diameter"), &C::diameter, QStringLiteral("axes"), &C::axes);
    printTotal(cells);
    const QStringList columns{QStringLiteral("noise"),    QStringLiteral("contrast"),
                              QStringLiteral("defocus"),  QStringLiteral("axes"),
                              QStringLiteral("diameter"), QStringLiteral("seen"),
                              QStringLiteral("reason")};
    printHead(QStringLiteral("Not found after one click"), columns);
    printMisses(cells, true);
    printHead(QStringLiteral("Not found, nor expected to be"), columns);
    printMisses(cells, false);
    return 0;
}
