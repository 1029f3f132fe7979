#pragma once

#include <QByteArray>
#include <QList>

#include <linux/videodev2.h>

/// One frame as a V4L2 program gets it.
struct CapturedFrame
{
    QByteArray data;
    quint32 sequence = 0;
    bool isFaulty = false;
    double timestamp = 0; ///< [s]
    int error = 0;        ///< errno of taking the frame, 0 for success
};

/// A small V4L2 program: opens a node, streams and takes frames. Results are 0 or an errno.
class V4l2Client
{
public:
    explicit V4l2Client(const char *path = "/dev/video0");
    ~V4l2Client();
    Q_DISABLE_COPY_MOVE(V4l2Client)

    int openError() const { return m_openError; }

    /// errno of the ioctl, 0 for success.
    int request(unsigned long request, void *argument) const;

    int setFormat(quint32 pixelFormat, unsigned width, unsigned height);
    int setControl(quint32 id, int value) const;
    int control(quint32 id) const;

    /// Requests `count` buffers of V4L2_MEMORY_* kind `memory`, queues that many and starts.
    int start(quint32 memory = V4L2_MEMORY_MMAP, unsigned count = 2);
    void stop();

    /// Writes the first byte of each user pointer, and tells whether it is still there.
    void markBuffers(char byte);
    bool buffersAreMarked(char byte) const;

    /// Waits at most `timeoutMs` for a frame, takes it and queues its buffer again. The error is
    /// ETIMEDOUT if none came.
    CapturedFrame take(int timeoutMs = 5000);
    /// As take(), but keeps the buffer: one frame less can be rendered.
    CapturedFrame takeAndKeep(int timeoutMs = 5000);

private:
    int queue(unsigned index) const;
    CapturedFrame dequeue(int timeoutMs, unsigned &index);

    struct Buffer
    {
        void *memory = nullptr;
        size_t length = 0;
    };

    int m_fd = -1;
    int m_openError = 0;
    quint32 m_memory = 0;
    QList<Buffer> m_buffers;
};
