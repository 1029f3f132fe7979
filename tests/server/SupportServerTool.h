#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A support server of its own for a test, on free ports, while this object lives.
class SupportServerTool
{
public:
    /// Starts the server and waits until it listens. With `tls` it serves HTTPS too, with a
    /// self-signed certificate.
    explicit SupportServerTool(const QStringList &options = {}, bool tls = false);
    ~SupportServerTool();
    Q_DISABLE_COPY_MOVE(SupportServerTool)

    bool isListening() const { return !m_http.isEmpty(); }
    QString http() const { return m_http; }
    QString https() const { return m_https; }
    /// A base address that answers with this fault, such as "html".
    QString faulty(const QString &fault) const { return m_http + QStringLiteral("/~") + fault; }
    QString certificate() const { return m_folder.filePath(QStringLiteral("certificate.pem")); }

    /// Points the program of this process at `address` by its configuration file.
    static void configure(const QString &address);

    /// The bodies that were posted, named as "1-report-bug.json", in the order of arrival.
    QStringList received() const;
    QByteArray body(const QString &name) const;
    /// Everything printed so far: the addresses and a line for each request.
    QByteArray output();

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QByteArray m_output;
    QString m_http;
    QString m_https;
};
