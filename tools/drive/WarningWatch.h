#pragma once

#include <QMutex>
#include <QStringList>

/// Collects what the program warns about, from any thread, and passes every message on. One at a
/// time.
class WarningWatch
{
public:
    WarningWatch();
    ~WarningWatch();
    Q_DISABLE_COPY_MOVE(WarningWatch)

    /// What came since the last call.
    QStringList take();

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);

    static inline WarningWatch *s_watch = nullptr;
    QtMessageHandler m_before = nullptr;
    QMutex m_mutex; ///< guards m_warnings
    QStringList m_warnings;
};
