#pragma once

#include <QList>
#include <QObject>
#include <QVariant>

#include <type_traits>

/// Records what a signal carries, on the thread of the test whatever thread raises it. QSignalSpy
/// records on the raising thread, while the test reads.
class SignalRecorder : public QList<QVariantList>
{
public:
    template <typename Sender, typename... Args>
    SignalRecorder(const Sender *sender, void (Sender::*signal)(Args...))
    {
        QObject::connect(sender, signal, &m_context, [this](std::decay_t<Args>... args) {
            append(QVariantList{QVariant::fromValue(args)...});
        });
    }

private:
    QObject m_context;
};
