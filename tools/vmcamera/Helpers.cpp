#include "Helpers.h"

#include "demo/Scene.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <stdexcept>
#include <utility>

FrameCounter::FrameCounter(const QObject *controller)
{
    connect(controller, SIGNAL(frameReady(QImage)), this, SLOT(count()));
}

void FrameCounter::waitForFrames(int count) const
{
    const int before = m_frames;
    waitFor(QStringLiteral("%1 frames").arg(count), [&] { return m_frames - before >= count; });
}

void FrameCounter::waitForStandstill() const
{
    constexpr qint64 quietMs = 1000;
    int seen = m_frames;
    QElapsedTimer quiet;
    quiet.start();
    waitFor(QStringLiteral("the frames to stop"), [&] {
        if (std::exchange(seen, m_frames) != m_frames)
            quiet.restart();
        return quiet.hasExpired(quietMs);
    });
}

CommandPipe::CommandPipe(QString path)
    : m_path(std::move(path))
{
}

void CommandPipe::send(const char *line) const
{
    QFile pipe(m_path);
    if (!pipe.open(QIODevice::WriteOnly | QIODevice::Unbuffered | QIODevice::ExistingOnly) ||
        pipe.write(QByteArray(line) + '\n') < 0)
        throw std::runtime_error("the camera does not take commands");
}

OtherViewer::OtherViewer(const QString &device)
{
    m_process.start(QStringLiteral("v4l2-ctl"),
                    {QStringLiteral("--device"), device, QStringLiteral("--stream-mmap"),
                     QStringLiteral("--stream-count=100000")});
    // It draws a "<" for each frame.
    waitFor(QStringLiteral("the frames of the other program"),
            [this] { return m_process.readAllStandardError().contains('<'); });
}

OtherViewer::~OtherViewer()
{
    m_process.kill();
    m_process.waitForFinished();
}

void runTool(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    waitFor(QStringLiteral("the end of %1").arg(program),
            [&] { return process.state() == QProcess::NotRunning; });
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() + ": " +
                                 process.readAllStandardError().toStdString());
    }
}
