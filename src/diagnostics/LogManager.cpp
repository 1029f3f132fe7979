#include "diagnostics/LogManager.h"

#include "diagnostics/DataFolder.h"
#include "diagnostics/Immortal.h"
#include "diagnostics/LogFile.h"
#include "diagnostics/LogFlood.h"
#include "diagnostics/Utf8Stream.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QLoggingCategory>
#include <QStringList>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <mutex>
#include <vector>

namespace meridax {

namespace {

constexpr int kRingCapacity = 500;
constexpr std::chrono::milliseconds kCrashLockWait{50};
constexpr std::chrono::seconds kStampAge{1};

std::atomic<bool> installed = false;
std::atomic<QtMessageHandler> previousHandler = nullptr;

/// Guards all of LogState. Nothing may log while holding it.
std::mutex logMutex;

struct LogState
{
    LogFile file;
    std::array<QString, kRingCapacity> ring;
    qint32 ringNext = 0;  ///< the slot of the next line
    qint32 ringCount = 0; ///< slots in use
    LogFlood flood;
    bool isEnding = false; ///< nothing is counted any more: nobody would tell it

    int untoldKinds() const
    {
        const auto count = std::ranges::count_if(
            flood.kinds(), [](const LogFlood::Kind &kind) { return kind.untold > 0; });
        return static_cast<int>(count);
    }
    /// How many lines a request for `lines` gives.
    int tailLength(int lines) const
    {
        return lines < 1 ? ringCount : std::min<int>(lines, ringCount);
    }
    /// Line `i` of the newest `count`, oldest first.
    const QString &tailLine(int i, int count) const
    {
        const int slot = (ringNext - count + i + kRingCapacity) % kRingCapacity;
        return ring[static_cast<std::size_t>(slot)];
    }
};

LogState &logState()
{
    static LogState *const state = immortal<LogState>();
    return *state;
}

/// What tell() writes, in pieces.
void writeRepeats(Utf8Stream &out, const LogFlood::Kind &kind)
{
    std::array<char16_t, 20> digits; // of the largest number
    auto first = digits.end();
    for (qint64 rest = kind.untold; rest > 0; rest /= 10)
        *--first = static_cast<char16_t>(u'0' + rest % 10);
    out.append(u"\n");
    out.append(kind.stamp);
    out.append({&*first, digits.end() - first});
    out.append(u"-mal wiederholt: ");
    out.append(kind.shown);
}

void append(LogState &state, const QString &line, const QByteArray &bytes)
{
    state.file.write(bytes);
    state.ring[static_cast<std::size_t>(state.ringNext)] = line;
    state.ringNext = (state.ringNext + 1) % kRingCapacity;
    state.ringCount = std::min(state.ringCount + 1, kRingCapacity);
}

void tell(LogState &state, const std::vector<LogFlood::Kind> &kinds)
{
    for (const LogFlood::Kind &kind : kinds) {
        const QString text = QStringLiteral("[LogManager] %1-mal wiederholt: %2")
                                 .arg(QString::number(kind.untold), kind.shown);
        const QString line = LogManager::compose(kind.type, {}, text);
        append(state, line, line.toUtf8() + '\n');
    }
}

void storeLine(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    const std::lock_guard lock(logMutex);
    LogState &state = logState();
    tell(state, state.flood.takeDue(LogFlood::Clock::now()));
    append(state, line, bytes);
}

/// Whether the message has only to be counted.
bool isRepetition(QtMsgType type, const char *category, const QString &message)
{
    const auto now = LogFlood::Clock::now();
    const std::lock_guard lock(logMutex);
    LogState &state = logState();
    tell(state, state.flood.takeDue(now));
    LogFlood::Kind *const kind = state.flood.count(type, category, message, now);
    if (kind && now - kind->stamped >= kStampAge) {
        kind->stamp = LogManager::compose(type, {}, QStringLiteral("[LogManager] "));
        kind->stamped = now;
    }
    return kind != nullptr;
}

void watchFor(QtMsgType type, const char *category, const QString &message)
{
    const QString shown = LogManager::sanitize(message);
    const std::lock_guard lock(logMutex);
    LogState &state = logState();
    if (!state.isEnding)
        tell(state, state.flood.watch(type, category, message, shown, LogFlood::Clock::now()));
}

void tellEverything()
{
    const std::lock_guard lock(logMutex);
    LogState &state = logState();
    tell(state, state.flood.takeAll());
}

void tellForTheLastTime()
{
    tellEverything();
    const std::lock_guard lock(logMutex);
    logState().isEnding = true;
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    try {
        const bool mayRepeat = LogFlood::mayRepeat(context.category);
        if (!mayRepeat || !isRepetition(type, context.category, message)) {
            storeLine(LogManager::sanitize(LogManager::compose(type, context, message)));
            if (mayRepeat)
                watchFor(type, context.category, message);
        }
    } catch (const std::exception &error) {
        std::fputs(error.what(), stderr); // no memory: the line is lost, the program is not
    }
    // The console sees the text as it came in, on purpose.
    if (const QtMessageHandler previous = previousHandler)
        previous(type, context, message);
}

/// Spins: whoever holds the lock otherwise gives it back within microseconds, and sleeping is not
/// among what a signal handler may do.
bool lockWithin(std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!logMutex.try_lock()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
    }
    return true;
}

} // namespace

void LogManager::install()
{
    if (installed.exchange(true))
        return;
    QString file = QStringLiteral("<keine>");
    {
        const std::lock_guard lock(logMutex);
        LogFile &log = logState().file;
        log.open();
        if (!log.name().isEmpty())
            file = log.name();
    }
    // A file of the system may have switched debug lines off, and with them half of every report.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true"));
    previousHandler = qInstallMessageHandler(handleMessage);
    // The first while all of Qt is alive, the second where exit() is called from within.
    qAddPostRoutine(tellForTheLastTime);
    std::atexit(tellForTheLastTime);
    qInfo().noquote() << "[LogManager] Logging gestartet — Datei:" << file
                      << " Ringbuffer:" << kRingCapacity << "Zeilen";
}

QString LogManager::logDirectory()
{
    return dataFilePath(QLatin1StringView("logs"));
}

QString LogManager::logFilePath()
{
    return logDirectory() + QLatin1StringView("/meridax.log");
}

QString LogManager::tail(int lines)
{
    tellEverything();
    QStringList newest;
    {
        const std::lock_guard lock(logMutex);
        const LogState &state = logState();
        const int count = state.tailLength(lines);
        newest.reserve(count);
        for (int i = 0; i < count; ++i)
            newest << state.tailLine(i, count);
    }
    return newest.join(u'\n');
}

bool LogManager::writeTail(int lines, TailWriter write, std::intptr_t target)
{
    if (!installed || !lockWithin(kCrashLockWait))
        return false;
    const std::lock_guard lock(logMutex, std::adopt_lock);
    const LogState &state = logState();
    const int untold = state.untoldKinds();
    const int count = lines < 1 ? state.ringCount : state.tailLength(std::max(lines - untold, 1));
    Utf8Stream out(write, target);
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            out.append(u"\n");
        out.append(state.tailLine(i, count));
    }
    for (const LogFlood::Kind &kind : state.flood.kinds()) {
        if (kind.untold > 0)
            writeRepeats(out, kind);
    }
    out.flush();
    return count > 0;
}

QString LogManager::tailFromFiles(int lines)
{
    tellEverything();
    QStringList all;
    for (int index = LogFile::kBackupCount; index >= 0; --index) {
        QFile file(LogFile::path(index));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        while (!file.atEnd())
            all << QString::fromUtf8(file.readLine()).trimmed();
    }
    if (lines > 0 && lines < all.size())
        all.remove(0, all.size() - lines);
    return all.join(u'\n');
}

} // namespace meridax
