#pragma once

#include <QLocalServer>
#include <QObject>

#include <functional>

class QWindow;

namespace meridax {

/// Asks the instance that already runs to raise its window. Waits at most a second in all; an
/// instance that does not answer is left alone, silently.
void activateRunningInstance();

/// Listens for later launches. A connection by itself is the request to raise the window: what is
/// sent over it is read and thrown away.
class ActivationServer : public QObject
{
    Q_OBJECT

public:
    /// `onActivation` runs on this object's thread for each later launch. A server that cannot
    /// listen logs a warning and stays silent.
    explicit ActivationServer(std::function<void()> onActivation, QObject *parent = nullptr);

private:
    void acceptConnection();

    std::function<void()> m_onActivation;
    QLocalServer m_server;
};

/// Brings `window` to the front; a minimised or hidden one comes back as a normal window.
void raiseWindow(QWindow &window);

} // namespace meridax
