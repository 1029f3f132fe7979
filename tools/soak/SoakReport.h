#pragma once

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include <chrono>

/// What one unplugging and plugging in took.
struct SoakCycle
{
    using Milliseconds = std::chrono::milliseconds;

    QString state;            ///< of the program when the camera was pulled out
    Milliseconds noticed{0};  ///< from the end of the camera until the program says so
    Milliseconds back{0};     ///< from plugging in to the next picture, the click on Start included
    Milliseconds starved{0};  ///< of that, time in which the machine let the GUI thread wait
    qint64 residentBytes = 0; ///< of the program afterwards
};

/// Gathers the cycles, judges them and tells about them.
class SoakReport
{
public:
    /// A picture has to be back within this, on a machine that does nothing else: what others take
    /// of the processor is not counted.
    static constexpr std::chrono::milliseconds backLimit{3000};
    /// Between the second and the last third of all cycles.
    static constexpr qint64 growthLimitBytes = 48LL << 20;
    /// Memory of fewer cycles than these says nothing: caches are still filling up.
    static constexpr int fewestCyclesForMemory = 60;

    void add(const SoakCycle &cycle);
    /// Something went wrong. The same is told once.
    void addFault(const QString &fault);

    bool passed() const { return m_faults.isEmpty(); }
    /// The table, one line a state, and the faults.
    QStringList lines() const;
    /// Adds what only shows in all cycles together to the faults.
    void judge();

private:
    qint64 residentMedian(qsizetype from, qsizetype to) const;

    QList<SoakCycle> m_cycles;
    QStringList m_faults;
};
