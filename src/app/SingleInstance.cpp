#include "app/SingleInstance.h"

#include <QDebug>
#include <QLocalSocket>
#include <QWindow>

#include <utility>

namespace meridax {

namespace {

constexpr int kConnectTimeoutMs = 500;
constexpr int kWriteTimeoutMs = 500;
constexpr int kReadTimeoutMs = 200;

QString serverName()
{
    return QStringLiteral("TO-Meridax-SingleInstance");
}

} // namespace

void activateRunningInstance()
{
    QLocalSocket socket;
    socket.connectToServer(serverName(), QIODevice::ReadWrite);
    if (!socket.waitForConnected(kConnectTimeoutMs))
        return;
    socket.write("activate");
    socket.flush();
    socket.waitForBytesWritten(kWriteTimeoutMs);
    socket.disconnectFromServer();
}

ActivationServer::ActivationServer(std::function<void()> onActivation, QObject *parent)
    : QObject(parent)
    , m_onActivation(std::move(onActivation))
{
    // The owner of the window alone may raise it.
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    // A crashed run leaves its socket behind.
    QLocalServer::removeServer(serverName());
    if (!m_server.listen(serverName())) {
        qWarning().noquote() << "[main] QLocalServer konnte nicht starten:"
                             << m_server.errorString() << "— Activate-on-Second-Launch deaktiviert";
    }
    connect(&m_server, &QLocalServer::newConnection, this, &ActivationServer::acceptConnection);
}

void ActivationServer::acceptConnection()
{
    QLocalSocket *const socket = m_server.nextPendingConnection();
    if (!socket)
        return;
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    socket->waitForReadyRead(kReadTimeoutMs);
    socket->readAll();
    m_onActivation();
}

void raiseWindow(QWindow &window)
{
    if (window.visibility() == QWindow::Minimized || !window.isVisible())
        window.showNormal();
    window.raise();
    window.requestActivate();
}

} // namespace meridax
