#include "SoakReport.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString seconds(std::chrono::milliseconds ms)
{
    return u"%1 s"_s.arg(double(ms.count()) / 1000.0, 5, 'f', 2);
}

QString megabytes(qint64 bytes)
{
    return u"%1 MB"_s.arg(bytes >> 20);
}

} // namespace

void SoakReport::add(const SoakCycle &cycle)
{
    m_cycles << cycle;
    if (cycle.back - cycle.starved > backLimit) {
        addFault(u"cycle %1, %2: picture back after %3, of which the processor was away for %4"_s
                     .arg(m_cycles.size())
                     .arg(cycle.state, seconds(cycle.back), seconds(cycle.starved)));
    }
}

void SoakReport::addFault(const QString &fault)
{
    if (!m_faults.contains(fault))
        m_faults << fault;
}

qint64 SoakReport::residentMedian(qsizetype from, qsizetype to) const
{
    QList<qint64> bytes;
    for (qsizetype i = from; i < to; ++i)
        bytes << m_cycles[i].residentBytes;
    if (bytes.isEmpty())
        return 0;
    const auto middle = bytes.begin() + bytes.size() / 2;
    std::nth_element(bytes.begin(), middle, bytes.end());
    return *middle;
}

void SoakReport::judge()
{
    const qsizetype third = m_cycles.size() / 3;
    const qint64 growth =
        residentMedian(2 * third, m_cycles.size()) - residentMedian(third, 2 * third);
    if (m_cycles.size() >= fewestCyclesForMemory && growth > growthLimitBytes)
        addFault(u"memory grows, by %1 in %2 cycles"_s.arg(megabytes(growth)).arg(third));
}

QStringList SoakReport::lines() const
{
    QMap<QString, QList<SoakCycle>> byState;
    for (const SoakCycle &cycle : m_cycles)
        byState[cycle.state] << cycle;
    QStringList lines{
        u"unplugged while  cycles  noticed within  picture back: min  median     max"_s};
    for (auto [state, cycles] : byState.asKeyValueRange()) {
        std::sort(cycles.begin(), cycles.end(),
                  [](const SoakCycle &a, const SoakCycle &b) { return a.back < b.back; });
        const auto slowest = std::max_element(
            cycles.begin(), cycles.end(),
            [](const SoakCycle &a, const SoakCycle &b) { return a.noticed < b.noticed; });
        lines << u"%1  %2  %3       %4 %5 %6"_s.arg(state, -15)
                     .arg(cycles.size(), 6)
                     .arg(seconds(slowest->noticed), 14)
                     .arg(seconds(cycles.first().back), 9)
                     .arg(seconds(cycles[cycles.size() / 2].back), 7)
                     .arg(seconds(cycles.last().back), 7);
    }
    const qsizetype third = m_cycles.size() / 3;
    lines << u"memory: %1, %2 and %3 in the thirds of %4 cycles"_s
                 .arg(megabytes(residentMedian(0, third)),
                      megabytes(residentMedian(third, 2 * third)),
                      megabytes(residentMedian(2 * third, m_cycles.size())))
                 .arg(m_cycles.size());
    for (const QString &fault : m_faults)
        lines << u"FAULT: "_s + fault;
    return lines;
}
