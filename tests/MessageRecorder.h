#pragma once

#include <QMutex>
#include <QStringList>

/// Records the program's own messages of one kind, those that begin with a tag in brackets, from
/// any thread. All other output is dropped meanwhile. One at a time.
class MessageRecorder
{
public:
    explicit MessageRecorder(QtMsgType type)
        : m_type(type)
    {
        s_recorder = this;
        m_before = qInstallMessageHandler(&MessageRecorder::handle);
    }

    ~MessageRecorder()
    {
        qInstallMessageHandler(m_before);
        s_recorder = nullptr;
    }
    Q_DISABLE_COPY_MOVE(MessageRecorder)

    QStringList lines() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_lines;
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        if (type != s_recorder->m_type || !message.startsWith(u'['))
            return;
        const QMutexLocker lock(&s_recorder->m_mutex);
        s_recorder->m_lines << message;
    }

    static inline MessageRecorder *s_recorder = nullptr;
    const QtMsgType m_type;
    QtMessageHandler m_before = nullptr;
    mutable QMutex m_mutex; ///< guards m_lines
    QStringList m_lines;
};
