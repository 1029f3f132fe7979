#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>

/// Counts the frames that the program publishes, and can wait for them.
class FrameCounter : public QObject
{
    Q_OBJECT

public:
    explicit FrameCounter(const QObject *controller);

    /// Waits for so many more frames. Throws std::runtime_error when they do not come.
    void waitForFrames(int count) const;
    /// Waits until no frame has come for a second. Throws likewise.
    void waitForStandstill() const;

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
