#include "SupportServerTool.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>

namespace {

constexpr int kStartTimeoutMs = 20000;

} // namespace

SupportServerTool::SupportServerTool(const QStringList &options, bool tls)
{
    QStringList arguments{QStringLiteral("--record"), m_folder.path()};
    if (tls)
        arguments << QStringLiteral("--certificate") << certificate();
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(SUPPORTSERVER_PROGRAM), arguments + options);
    const auto readAddress = [this]() -> QString {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(kStartTimeoutMs))
                return {};
        }
        m_output += m_process.readLine();
        return QString::fromLatin1(m_output.sliced(m_output.lastIndexOf("http"))).trimmed();
    };
    const QString http = readAddress();
    if (tls)
        m_https = readAddress();
    m_http = http;
}

SupportServerTool::~SupportServerTool()
{
    m_process.kill();
    m_process.waitForFinished();
}

void SupportServerTool::configure(const QString &address)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    folder.mkpath(QStringLiteral("."));
    QFile file(folder.filePath(QStringLiteral("server.json")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(QJsonObject{{QStringLiteral("apiBaseUrl"), address}}).toJson());
    }
}

QStringList SupportServerTool::received() const
{
    QStringList names = QDir(m_folder.path()).entryList({QStringLiteral("*.json")}, QDir::Files);
    std::ranges::sort(names, {}, [](const QString &name) {
        return name.first(name.indexOf(QLatin1Char('-'))).toInt();
    });
    return names;
}

QByteArray SupportServerTool::body(const QString &name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray SupportServerTool::output()
{
    m_process.waitForReadyRead(0);
    m_output += m_process.readAllStandardOutput();
    return m_output;
}
