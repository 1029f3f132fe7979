#include "viewmodel/CameraViewModel.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

void qml_register_types_Meridax();

using namespace meridax;

namespace {

constexpr int kSeconds = 10;
constexpr int kCycles = 200;

/// Lives as long as the run: a queued frame still arrives after a disconnect.
int framesShown = 0;

/// CPU time of the calling thread [s].
double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Runs the command line tool of the simulated camera and returns what it prints.
QString simcam(const QStringList &arguments)
{
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LD_PRELOAD"));
    tool.setProcessEnvironment(environment);
    tool.start(qEnvironmentVariable("SIMCAM_TOOL"), arguments);
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput());
}

/// Frames the simulated camera has sent since it was plugged in.
int framesSent()
{
    static const QRegularExpression frames(QStringLiteral("\\bframes[ =:]+(\\d+)"));
    return frames.match(simcam({QStringLiteral("truth")})).captured(1).toInt();
}

/// Resident memory of this process [MiB].
double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    static const QRegularExpression line(QStringLiteral("VmRSS:\\s+(\\d+) kB"));
    return line.match(QString::fromLatin1(file.readAll())).captured(1).toDouble() / 1024;
}

bool start(CameraViewModel &viewModel, const QString &size)
{
    viewModel.stopCamera();
    for (int i = 0; i < viewModel.resolutionOptions().size(); ++i) {
        if (viewModel.resolutionOptions().at(i).startsWith(size))
            viewModel.setSelectedResolutionIndex(i);
    }
    viewModel.startCamera();
    const int before = framesShown;
    return QTest::qWaitFor([before] { return framesShown >= before + 2; }, 10'000);
}

/// Takes one value of a slider.
using Drag = std::function<void(int value)>;

/// Streams for a while; `drag` gets values of the brightness as from a hand on its slider, 60 times
/// a second.
void measureStream(CameraViewModel &viewModel, const char *name, const Drag &drag)
{
    int moves = 0;
    QTimer hand;
    hand.callOnTimeout(&viewModel, [&] {
        const int range = viewModel.brightnessRangeMax() - viewModel.brightnessRangeMin();
        drag(viewModel.brightnessRangeMin() + (++moves % (range + 1)));
    });
    // The longest time between two turns of the event loop is what a user feels.
    qint64 longest = 0;
    QElapsedTimer sinceTurn;
    QTimer turns;
    turns.setTimerType(Qt::PreciseTimer);
    turns.callOnTimeout(
        &viewModel, [&longest, &sinceTurn] { longest = std::max(longest, sinceTurn.restart()); });

    const int sentBefore = framesSent();
    const double cpuBefore = threadSeconds();
    const int shownBefore = framesShown;
    if (drag)
        hand.start(16);
    sinceTurn.start();
    turns.start(5);
    QTest::qWait(kSeconds * 1000);
    hand.stop();
    turns.stop();
    const double cpu = threadSeconds() - cpuBefore;
    const int shown = framesShown - shownBefore;
    const int sent = framesSent() - sentBefore;
    std::printf("%-18s sent %4d  shown %4d (%5.1f %%)  moves %4d  GUI thread %6.2f ms/frame"
                "  longest turn %3lld ms\n",
                name, sent, shown, 100.0 * shown / std::max(sent, 1), moves,
                1000 * cpu / std::max(shown, 1), static_cast<long long>(longest));
}

/// A control that takes 100 ms, by the program's own way and by calls of the backend on the GUI
/// thread in its place.
void measureSlowCamera(CameraViewModel &viewModel, const Drag &drag)
{
    simcam({QStringLiteral("set"), QStringLiteral("control-hang=0.1")});
    measureStream(viewModel, "slow, dragged", drag);
    const CameraControls controls = platformCameraControls();
    CameraSettings settings;
    settings.cameraName = viewModel.selectedCameraName();
    measureStream(viewModel, "slow, GUI thread", [&](int value) {
        settings.brightness = value;
        if (controls.backend)
            controls.backend->applySettings(settings, ControlWrites::Changed, nullptr);
    });
    simcam({QStringLiteral("set"), QStringLiteral("control-hang=0")});
}

bool measureCycles(CameraViewModel &viewModel)
{
    const QString sizes[] = {QStringLiteral("640 x 480"), QStringLiteral("1920 x 1080"),
                             QStringLiteral("1280 x 720")};
    for (int cycle = 1; cycle <= kCycles; ++cycle) {
        if (!start(viewModel, sizes[cycle % std::size(sizes)]))
            return false;
        if (cycle == 10 || cycle % 50 == 0)
            std::printf("after %3d starts: %.1f MiB resident\n", cycle, residentMegabytes());
    }
    return true;
}

} // namespace

/// Whole program on the simulated camera: frames that reach the picture and time of the GUI thread
/// with and without a slider being dragged, and memory over many starts and stops.
int main(int argc, char *argv[])
{
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
    QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    QGuiApplication app(argc, argv);
    qml_register_types_Meridax();
    QQmlApplicationEngine engine;
    engine.loadFromModule("Meridax", "Main");
    auto *viewModel = engine.singletonInstance<CameraViewModel *>("Meridax", "ViewModel");
    if (viewModel) {
        QObject::connect(viewModel->controller(), &CameraController::frameReady, viewModel,
                         [](const QImage &) { ++framesShown; });
    }
    if (!viewModel || !start(*viewModel, QStringLiteral("1920 x 1080"))) {
        std::fprintf(stderr, "no stream: is the simulated camera attached?\n");
        return 1;
    }
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const Drag drag = [viewModel](int value) { viewModel->setBrightness(value); };
    measureStream(*viewModel, "1920x1080, still", {});
    measureStream(*viewModel, "1920x1080, dragged", drag);
    measureSlowCamera(*viewModel, drag);
    return measureCycles(*viewModel) ? 0 : 1;
}
