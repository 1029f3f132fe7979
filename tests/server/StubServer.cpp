#include "StubServer.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// The value of the header `name` in `head`, empty without one.
QByteArray headerIn(const QByteArray &head, const QByteArray &name)
{
    const QList<QByteArray> lines = head.split('\n');
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.first(colon).compare(name, Qt::CaseInsensitive) == 0)
            return line.sliced(colon + 1).trimmed();
    }
    return {};
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

void StubServer::release(const QString &path, int index, const QVariantMap &body)
{
    for (Request &request : m_requests) {
        if (request.path != path || index-- > 0)
            continue;
        send(request, {200, QJsonDocument(QJsonObject::fromVariantMap(body)).toJson()});
        return;
    }
    qFatal("No such request");
}

QByteArray StubServer::header(const QString &path, const QByteArray &name) const
{
    for (auto request = m_requests.rbegin(); request != m_requests.rend(); ++request) {
        if (request->path == path)
            return headerIn(request->head, name);
    }
    return {};
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
    if (body.size() < headerIn(head, "Content-Length").toLongLong())
        return;
    data.clear();
    m_requests.append(
        {requestedPath(head), head, QJsonDocument::fromJson(body).toVariant(), socket, false});
    if (!m_holding)
        answerAll();
}

void StubServer::answerAll()
{
    for (Request &request : m_requests)
        send(request, m_answers.value(request.path));
}

void StubServer::send(Request &request, const Answer &answer)
{
    if (request.answered || !request.socket)
        return;
    request.answered = true;
    request.socket->write("HTTP/1.1 " + QByteArray::number(answer.status) +
                          " -\r\nContent-Type: application/json\r\nConnection: close\r\n"
                          "Content-Length: " +
                          QByteArray::number(answer.body.size()) + "\r\n\r\n" + answer.body);
    request.socket->disconnectFromHost();
}
