#include "SoakScript.h"

#include "SoakReport.h"
#include "drive/Pointer.h"
#include "drive/Scene.h"
#include "drive/SimulatedCamera.h"
#include "drive/WarningWatch.h"

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>
#include <exception>
#include <unistd.h>

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace {

enum class State { Streaming, Calibrating, Measuring, Sweeping };
constexpr int kStates = 4;
const QString kNames[kStates] = {u"streaming"_s, u"calibrating"_s, u"measuring"_s, u"sweeping"_s};

/// Longest stay in a state before the camera is pulled out, and pause before it comes back: with a
/// real one the bus alone takes a quarter of a second.
constexpr int kLongestStayMs = 800;
constexpr int kShortestPauseMs = 250;
constexpr int kLongestPauseMs = 1000;

/// What program and Qt say of a camera that is gone and of a server that is not there. All else
/// that is a warning is a fault.
const QStringList kExpected{u"[camera] QCamera error: Gerät nicht mehr vorhanden"_s,
                            u"[camera] V4L2-Kamera Meridax Simulated Camera antwortet nicht"_s,
                            u"Couldn't add V4L2 buffer 19 "_s, // ENODEV
                            u"Cannot add buffer"_s,
                            u"Cannot take buffer"_s,
                            u"failed to stop capture"_s,
                            u"[LegalDoc] Fehler"_s};

milliseconds starvedSinceStart()
{
    // Time on the processor, time of waiting for it in nanoseconds, turns.
    QFile file(u"/proc/self/schedstat"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto waited = std::chrono::nanoseconds(file.readAll().split(' ').value(1).toLongLong());
    return std::chrono::duration_cast<milliseconds>(waited);
}

qint64 residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    return file.open(QIODevice::ReadOnly)
               ? file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE)
               : 0;
}

/// Sees the pictures that the program publishes.
class PictureWatch : public QObject
{
    Q_OBJECT

public:
    explicit PictureWatch(const QObject *controller)
    {
        connect(controller, SIGNAL(frameReady(QImage)), this, SLOT(note()));
    }
    bool seen = false;

public slots:
    void note() { seen = true; }
};

class Soak
{
public:
    explicit Soak(const SoakOptions &options)
        : m_options(options)
        , m_camera(options.cameraTool)
        , m_random(options.seed)
        , m_pictures(m_scene.value("controller").value<QObject *>())
    {
    }

    SoakReport run()
    {
        int cycle = 0;
        State state = State::Streaming;
        try {
            click(u"tabCalibration"_s);
            startCamera();
            for (; cycle < m_options.cycles; ++cycle) {
                state = State(m_random.bounded(kStates));
                enter(state);
                m_report.add(interrupt(state));
                lookAtWarnings();
            }
        } catch (const std::exception &error) {
            lookAtWarnings();
            m_report.addFault(u"cycle %1, %2: %3"_s.arg(cycle + 1).arg(
                kNames[int(state)], QString::fromUtf8(error.what())));
            m_scene.save(m_options.picture);
        }
        m_report.judge();
        return m_report;
    }

private:
    QVariant value(const char *property) const { return m_scene.value(property); }
    void click(const QString &item) { m_pointer.click(m_scene.item(item)); }

    /// Clicks on Start and waits for a picture.
    void startCamera()
    {
        m_pictures.seen = false;
        click(u"startStopButton"_s);
        waitFor(u"a picture"_s, [this] { return m_pictures.seen && value("running").toBool(); });
    }

    void enter(State state)
    {
        if (value("calibrationActive").toBool()) {
            click(u"cancelCalibrationButton"_s);
            waitFor(u"the end of the calibration"_s,
                    [this] { return !value("calibrationActive").toBool(); });
        }
        if (value("focusTapModeActive").toBool() != (state == State::Sweeping)) {
            click(u"focusTapButton"_s);
            waitFor(u"the mode of the spot focus"_s, [&] {
                return value("focusTapModeActive").toBool() == (state == State::Sweeping);
            });
        }
        switch (state) {
        case State::Streaming:
            break;
        case State::Calibrating:
        case State::Measuring:
            click(u"calibrationStartButton"_s);
            waitFor(u"the calibration"_s, [this] { return value("calibrationActive").toBool(); });
            if (state == State::Measuring)
                measure();
            break;
        case State::Sweeping:
            waitFor(u"the range of the focus"_s,
                    [this] { return value("focusRangeMax").toInt() > 0; });
            m_pointer.click(m_scene.item(u"overlayCanvas"_s), {0.5, 0.5});
            waitFor(u"the sweep"_s, [this] { return value("focusSweepActive").toBool(); });
            break;
        }
    }

    void measure()
    {
        waitFor(u"the first position"_s,
                [this] { return value("currentGuideIndex").toInt() == 0; });
        m_camera.turnTowards(-45, {value("centerX").toDouble(), value("centerY").toDouble()});
        waitFor(u"the mark in the sector"_s, [this] {
            return value("blobCount").toInt() == 1 && value("blobInSector").toBool() &&
                   value("blobSectorAlignment").toDouble() > 0.9;
        });
        click(u"measureButton"_s);
    }

    /// Runs the camera's tool while the program goes on.
    void runTool(const QStringList &arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"LD_PRELOAD"_s);
        process.setProcessEnvironment(environment);
        process.start(m_options.cameraTool, arguments);
        waitFor(u"the tool"_s, [&] { return process.state() == QProcess::NotRunning; });
        if (process.exitCode() != 0)
            throw std::runtime_error(process.readAllStandardError().toStdString());
    }

    SoakCycle interrupt(State state)
    {
        QTest::qWait(m_random.bounded(kLongestStayMs));
        SoakCycle cycle;
        cycle.state = kNames[int(state)];
        QElapsedTimer timer;
        timer.start();
        runTool({u"unplug"_s});
        waitFor(u"the program to notice"_s, [this] { return !value("running").toBool(); });
        cycle.noticed = milliseconds(timer.elapsed());
        QTest::qWait(m_random.bounded(kShortestPauseMs, kLongestPauseMs));
        if (value("running").toBool())
            throw std::runtime_error("running without a camera");

        // It comes back at the same place, or where the next free one is.
        QStringList plug{u"plug"_s};
        if (m_random.bounded(4) == 0)
            plug << u"--node"_s << u"video4"_s;
        const milliseconds starvedBefore = starvedSinceStart();
        timer.start();
        runTool(plug);
        startCamera();
        cycle.back = milliseconds(timer.elapsed());
        cycle.starved = starvedSinceStart() - starvedBefore;
        cycle.residentBytes = residentBytes();
        return cycle;
    }

    void lookAtWarnings()
    {
        const QStringList warnings = m_warnings.take();
        for (const QString &warning : warnings) {
            const auto matches = [&](const QString &expected) {
                return warning.startsWith(expected);
            };
            if (std::none_of(kExpected.begin(), kExpected.end(), matches))
                m_report.addFault(u"warning: "_s + warning);
        }
    }

    SoakOptions m_options;
    WarningWatch m_warnings;
    Scene m_scene;
    Pointer m_pointer;
    SimulatedCamera m_camera;
    QRandomGenerator m_random;
    PictureWatch m_pictures;
    SoakReport m_report;
};

} // namespace

SoakOptions soakOptionsFromEnvironment()
{
    SoakOptions options;
    options.cameraTool = qEnvironmentVariable("SIMCAM_TOOL");
    options.picture = qEnvironmentVariable("MERIDAX_SOAK_PICTURE");
    options.cycles = qEnvironmentVariableIntValue("MERIDAX_SOAK_CYCLES");
    options.seed = unsigned(qEnvironmentVariableIntValue("MERIDAX_SOAK_SEED"));
    return options;
}

bool runSoakScript(const SoakOptions &options)
{
    try {
        const SoakReport report = Soak(options).run();
        for (const QString &line : report.lines())
            std::puts(qPrintable(line));
        std::fflush(stdout);
        return report.passed();
    } catch (const std::exception &error) {
        std::printf("FAULT: %s\n", error.what());
        std::fflush(stdout);
        return false;
    }
}

#include "SoakScript.moc"
