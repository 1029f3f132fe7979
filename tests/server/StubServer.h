#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QVariantMap>

/// Stands for the support server inside a test: one request a connection, answers as told and,
/// while it is holding, when told.
class StubServer : public QObject
{
    Q_OBJECT
    /// Requests are taken and stay without an answer.
    Q_PROPERTY(bool holding MEMBER m_holding WRITE setHolding)

public:
    explicit StubServer(QObject *parent = nullptr);

    QString address() const;
    void setHolding(bool holding);

    /// From now on requests for `path` get `status` and `body` as JSON.
    Q_INVOKABLE void answer(const QString &path, int status, const QVariantMap &body);
    /// Answers the request number `index` of those for `path`, with status 200, though it is held.
    Q_INVOKABLE void release(const QString &path, int index, const QVariantMap &body);
    /// What the newest request for `path` says in the header `name`.
    QByteArray header(const QString &path, const QByteArray &name) const;
    /// The JSON bodies that came for `path`, oldest first.
    Q_INVOKABLE QVariantList received(const QString &path) const;
    Q_INVOKABLE void clear();

private:
    struct Answer
    {
        int status = 404;
        QByteArray body;
    };
    struct Request
    {
        QString path;
        QByteArray head;
        QVariant body;
        QPointer<QTcpSocket> socket;
        bool answered = false;
    };

    void read(QTcpSocket *socket);
    void answerAll();
    static void send(Request &request, const Answer &answer);

    QHash<QString, Answer> m_answers;
    QHash<QTcpSocket *, QByteArray> m_unread;
    QList<Request> m_requests;
    bool m_holding = false;
    QTcpServer m_server; // its sockets, which end with it, still need the others
};
