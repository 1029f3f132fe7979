#include "Helpers.h"

#include "drive/Scene.h"

#include <QFile>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <linux/videodev2.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

void waitLong(const QString &what, const std::function<bool()> &condition)
{
    waitFor(what, condition, std::chrono::seconds(60));
}

FrameCounter::FrameCounter(const QObject *controller)
{
    connect(controller, SIGNAL(frameReady(QImage)), this, SLOT(count()));
}

void FrameCounter::waitForFrames(int count) const
{
    const int before = m_frames;
    waitLong(QStringLiteral("%1 frames").arg(count), [&] { return m_frames - before >= count; });
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
    waitLong(QStringLiteral("the frames of the other program"),
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
    waitLong(QStringLiteral("the end of %1").arg(program),
             [&] { return process.state() == QProcess::NotRunning; });
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() + ": " +
                                 process.readAllStandardError().toStdString());
    }
}

void waitForLogLine(const QString &text)
{
    waitLong("the log line " + text, [&text] {
        QFile log(qEnvironmentVariable("MERIDAX_VMCAMERA_OUTPUT") + "/program.log");
        return log.open(QIODevice::ReadOnly) && log.readAll().contains(text.toUtf8());
    });
}

int deviceControl(const QString &device, std::uint32_t control)
{
    const int file = ::open(device.toLocal8Bit().constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    v4l2_control value{.id = control, .value = 0};
    const bool read = file >= 0 && ::ioctl(file, VIDIOC_G_CTRL, &value) == 0;
    const int error = errno;
    if (file >= 0)
        ::close(file);
    if (!read)
        throw std::runtime_error("a control cannot be read: " + std::string(std::strerror(error)));
    return value.value;
}
