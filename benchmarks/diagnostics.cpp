// What a log line costs beside a bare write of the same text, also one that is only counted, and
// how long a crash takes from the signal to the end of the process, with the handler and without.

#include "diagnostics/CrashHandler.h"
#include "diagnostics/LogManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>
#include <utility>
#include <vector>

using namespace meridax;

namespace {

constexpr char kText[] = "[camera] Auflösung 1920x1080, 30 Bilder/s, Belichtung";

double seconds(std::chrono::steady_clock::time_point from, std::chrono::steady_clock::time_point to)
{
    return std::chrono::duration<double>(to - from).count();
}

void writeLogLine(int i)
{
    qInfo() << kText << i;
}

void writeRepeatedLine(int i)
{
    static const QLoggingCategory library("qt.gui.imageio.jpeg");
    qCWarning(library, "Corrupt JPEG data: %d extraneous bytes before marker 0xd9", i % 30);
}

void writeBareLine(int i)
{
    // One file for all threads, as in the log; stdio has a lock of its own.
    static std::FILE *const file =
        std::fopen(qPrintable(LogManager::logDirectory() + QStringLiteral("/bare.log")), "w");
    char line[200];
    const int size =
        std::snprintf(line, sizeof line, "2026-01-31 23:59:59.999 [INF] %s %d\n", kText, i);
    std::fwrite(line, 1, static_cast<std::size_t>(size), file);
    std::fflush(file);
}

/// Each thread writes the same number of lines, at the same time.
void writeLines(benchmark::State &state, void (*writeLine)(int))
{
    constexpr int kLines = 20'000;
    const auto threadCount = static_cast<int>(state.range(0));
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        {
            std::vector<std::jthread> threads;
            for (int thread = 0; thread < threadCount; ++thread) {
                threads.emplace_back([writeLine] {
                    for (int i = 0; i < kLines; ++i)
                        writeLine(i);
                });
            }
        }
        state.SetIterationTime(seconds(start, std::chrono::steady_clock::now()));
    }
    const auto lines = static_cast<double>(state.iterations() * threadCount * kLines);
    state.counters["lines/s"] = benchmark::Counter(lines, benchmark::Counter::kIsRate);
    state.counters["s/line"] =
        benchmark::Counter(lines, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// A child with or without the handler, from the signal to its end.
void crash(benchmark::State &state, bool hasHandler)
{
    for (auto _ : state) {
        int ready[2];
        if (pipe(ready) != 0)
            return;
        const pid_t child = fork();
        if (child == 0) {
            const rlimit noCore{};
            setrlimit(RLIMIT_CORE, &noCore);
            if (hasHandler)
                CrashHandler::install();
            if (write(ready[1], "", 1) == 1)
                pause();
            _exit(0);
        }
        char byte = 0;
        if (read(ready[0], &byte, 1) != 1)
            return;
        const auto start = std::chrono::steady_clock::now();
        kill(child, SIGSEGV);
        waitpid(child, nullptr, 0);
        state.SetIterationTime(seconds(start, std::chrono::steady_clock::now()));
        close(ready[0]);
        close(ready[1]);
    }
}

void withoutConsole(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
    QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    // The console is not what is measured.
    qInstallMessageHandler(withoutConsole);
    LogManager::install();

    const std::pair<const char *, void (*)(int)> lines[] = {
        {"fwrite + fflush", writeBareLine},
        {"log line", writeLogLine},
        {"log line, repeated", writeRepeatedLine},
    };
    for (const auto &[name, writeLine] : lines) {
        benchmark::RegisterBenchmark(name, writeLines, writeLine)
            ->ArgName("threads")
            ->Arg(1)
            ->Arg(4)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    for (const bool hasHandler : {false, true}) {
        benchmark::RegisterBenchmark(hasHandler ? "crash, reported" : "crash, bare", crash,
                                     hasHandler)
            ->UseManualTime()
            ->Iterations(50)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
