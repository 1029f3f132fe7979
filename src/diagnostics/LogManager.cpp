#include "diagnostics/LogManager.h"

#include "diagnostics/Utf8Stream.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <memory>
#include <mutex>

namespace meridax {

namespace {

constexpr int kRingCapacity = 500;
constexpr qint64 kMaxLogFileSize = 1'048'576;
constexpr int kBackupCount = 3;
constexpr QIODevice::OpenMode kLogFileMode =
    QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text;
constexpr std::chrono::milliseconds kCrashLockWait{50};

std::atomic<bool> installed = false;
std::atomic<QtMessageHandler> previousHandler = nullptr;

/// Guards all of LogState. Nothing may log while holding it.
std::mutex logMutex;

struct LogState
{
    std::unique_ptr<QFile> logFile; ///< null when it could not be opened
    qint64 logFileSize = 0;         ///< bytes, as counted here
    std::array<QString, kRingCapacity> ring;
    qint32 ringNext = 0;  ///< the slot of the next line
    qint32 ringCount = 0; ///< slots in use

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

/// Never destroyed: threads and static destructors may log after main() has returned.
LogState &logState()
{
    static LogState &state = *std::make_unique<LogState>().release();
    return state;
}

/// The current log for 0, else a backup, the oldest being kBackupCount.
QString pathOf(int index)
{
    const QString current = LogManager::logFilePath();
    return index <= 0 ? current : current + QStringLiteral(".%1").arg(index);
}

void openLogFile(LogState &state)
{
    QDir().mkpath(LogManager::logDirectory());
    state.logFile = std::make_unique<QFile>(LogManager::logFilePath());
    if (state.logFile->open(kLogFileMode))
        state.logFileSize = state.logFile->size();
    else
        state.logFile.reset();
}

void rotate(LogState &state)
{
    state.logFile->close();
    for (int index = kBackupCount; index >= 1; --index) {
        const QString to = pathOf(index);
        const QString from = pathOf(index - 1);
        if (index == kBackupCount)
            QFile::remove(to);
        if (QFile::exists(from))
            QFile::rename(from, to);
    }
    state.logFile->setFileName(LogManager::logFilePath());
    if (!state.logFile->open(kLogFileMode))
        state.logFile.reset();
    state.logFileSize = 0;
}

void writeToFile(LogState &state, const QByteArray &line)
{
    if (!state.logFile || !state.logFile->isOpen())
        return;
    const qint64 written = state.logFile->write(line);
    if (written > 0) {
        state.logFileSize += written;
        state.logFile->flush();
    }
    if (state.logFileSize >= kMaxLogFileSize)
        rotate(state);
}

void storeLine(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    const std::lock_guard lock(logMutex);
    LogState &state = logState();
    writeToFile(state, bytes);
    state.ring[static_cast<std::size_t>(state.ringNext)] = line;
    state.ringNext = (state.ringNext + 1) % kRingCapacity;
    state.ringCount = std::min(state.ringCount + 1, kRingCapacity);
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    try {
        storeLine(LogManager::sanitize(LogManager::compose(type, context, message)));
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
        LogState &state = logState();
        openLogFile(state);
        if (state.logFile)
            file = state.logFile->fileName();
    }
    previousHandler = qInstallMessageHandler(handleMessage);
    qInfo().noquote() << "[LogManager] Logging gestartet — Datei:" << file
                      << " Ringbuffer:" << kRingCapacity << "Zeilen";
}

QString LogManager::logDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QLatin1StringView("/logs");
}

QString LogManager::logFilePath()
{
    return logDirectory() + QLatin1StringView("/meridax.log");
}

QString LogManager::tail(int lines)
{
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
    const int count = state.tailLength(lines);
    Utf8Stream out(write, target);
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            out.append(u"\n");
        out.append(state.tailLine(i, count));
    }
    out.flush();
    return count > 0;
}

QString LogManager::tailFromFiles(int lines)
{
    QStringList all;
    for (int index = kBackupCount; index >= 0; --index) {
        QFile file(pathOf(index));
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
