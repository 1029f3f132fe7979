#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

/// Waits as long as an emulated processor on a busy system may take. Throws std::runtime_error
/// naming `what` when the time is over.
void waitLong(const QString &what, const std::function<bool()> &condition);

/// Counts the frames that the program publishes, and can wait for them.
class FrameCounter : public QObject
{
    Q_OBJECT

public:
    explicit FrameCounter(const QObject *controller);

    /// Waits for so many more frames. Throws std::runtime_error when they do not come.
    void waitForFrames(int count) const;

public slots:
    void count() { ++m_frames; }

private:
    int m_frames = 0;
};

/// The camera, through the pipe on which it takes commands.
class CommandPipe
{
public:
    explicit CommandPipe(QString path);

    /// Throws std::runtime_error when the pipe does not take the line.
    void send(const char *line) const;

private:
    QString m_path;
};

/// Another program that streams from the camera, for as long as this lives.
class OtherViewer
{
public:
    /// Returns when the frames flow. Throws std::runtime_error when they do not.
    explicit OtherViewer(const QString &device);
    ~OtherViewer();
    OtherViewer(const OtherViewer &) = delete;
    OtherViewer &operator=(const OtherViewer &) = delete;

private:
    QProcess m_process;
};

/// Runs a program to its end while this one lives on. Throws std::runtime_error unless it succeeds.
void runTool(const QString &program, const QStringList &arguments);

/// Waits until the program has logged a line with that text. Throws std::runtime_error likewise.
void waitForLogLine(const QString &text);

/// Value of a V4L2 control as the device has it now, asked for by way of a descriptor of its own.
/// Throws std::runtime_error when it cannot be read.
int deviceControl(const QString &device, std::uint32_t control);
