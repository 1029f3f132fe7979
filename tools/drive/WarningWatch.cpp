#include "drive/WarningWatch.h"

#include <utility>

WarningWatch::WarningWatch()
{
    s_watch = this;
    m_before = qInstallMessageHandler(&WarningWatch::handle);
}

WarningWatch::~WarningWatch()
{
    qInstallMessageHandler(m_before);
    s_watch = nullptr;
}

QStringList WarningWatch::take()
{
    const QMutexLocker lock(&m_mutex);
    return std::exchange(m_warnings, {});
}

void WarningWatch::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg) {
        const QMutexLocker lock(&s_watch->m_mutex);
        s_watch->m_warnings << message;
    }
    if (s_watch->m_before)
        s_watch->m_before(type, context, message);
}
