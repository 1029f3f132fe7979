#include "StubServer.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// The value of the header Content-Length in `head`, 0 without one.
qsizetype contentLength(const QByteArray &head)
{
    const QList<QByteArray> lines = head.toLower().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("content-length:"))
            return line.sliced(line.indexOf(':') + 1).trimmed().toLongLong();
    }
    return 0;
}

/// "/path" from "POST /path?query HTTP/1.1".
QString requestedPath(const QByteArray &head)
{
    const QByteArray target = head.split(' ').value(1);
    return QString::fromUtf8(target.split('?').first());
}

} // namespace

StubServer::StubServer(QObject *parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_unread.remove(socket);
                socket->deleteLater();
            });
        }
    });
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("No port to listen on");
}

QString StubServer::address() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort());
}

void StubServer::setHolding(bool holding)
{
    m_holding = holding;
    if (!holding)
        answerAll();
}

void StubServer::answer(const QString &path, int status, const QVariantMap &body)
{
    m_answers.insert(path, {status, QJsonDocument(QJsonObject::fromVariantMap(body)).toJson()});
}

QVariantList StubServer::received(const QString &path) const
{
    QVariantList bodies;
    for (const Request &request : m_requests) {
        if (request.path == path)
            bodies << request.body;
    }
    return bodies;
}

void StubServer::clear()
{
    m_requests.clear();
}

void StubServer::read(QTcpSocket *socket)
{
    QByteArray &data = m_unread[socket];
    data += socket->readAll();
    const qsizetype headEnd = data.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return;
    const QByteArray head = data.first(headEnd);
    const QByteArray body = data.sliced(headEnd + 4);
    if (body.size() < contentLength(head))
        return;
    data.clear();
    m_requests.append(
        {requestedPath(head), QJsonDocument::fromJson(body).toVariant(), socket, false});
    if (!m_holding)
        answerAll();
}

void StubServer::answerAll()
{
    for (Request &request : m_requests) {
        if (request.answered || !request.socket)
            continue;
        request.answered = true;
        const Answer answer = m_answers.value(request.path);
        request.socket->write("HTTP/1.1 " + QByteArray::number(answer.status) +
                              " -\r\nContent-Type: application/json\r\nConnection: close\r\n"
                              "Content-Length: " +
                              QByteArray::number(answer.body.size()) + "\r\n\r\n" + answer.body);
        request.socket->disconnectFromHost();
    }
}
