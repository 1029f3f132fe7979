// What a log line costs beside a bare write of the same text, and how long a crash takes from the
// signal to the end of the process, with the handler and without.

#include "diagnostics/CrashHandler.h"
#include "diagnostics/LogManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>

using namespace meridax;

namespace {

constexpr char kText[] = "[camera] Auflösung 1920x1080, 30 Bilder/s, Belichtung";

void logLine(benchmark::State &state)
{
    int i = 0;
    for (auto _ : state)
        qInfo() << kText << ++i;
    state.SetItemsProcessed(state.iterations());
}

void bareWrite(benchmark::State &state)
{
    // One file for all threads, as in the log; stdio has a lock of its own.
    static std::FILE *const file =
        std::fopen(qPrintable(LogManager::logDirectory() + QStringLiteral("/bare.log")), "w");
    int i = 0;
    for (auto _ : state) {
        char line[200];
        const int size =
            std::snprintf(line, sizeof line, "2026-01-31 23:59:59.999 [INF] %s %d\n", kText, ++i);
        std::fwrite(line, 1, static_cast<std::size_t>(size), file);
        std::fflush(file);
    }
    state.SetItemsProcessed(state.iterations());
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
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
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

    benchmark::RegisterBenchmark("fwrite + fflush", bareWrite)
        ->Threads(1)
        ->Threads(4)
        ->UseRealTime();
    benchmark::RegisterBenchmark("log line", logLine)->Threads(1)->Threads(4)->UseRealTime();
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
