#include "ProgramRun.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

QString dataFile(const QString &name)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      QStringLiteral("/Tarnwick Optics/Meridax"));
    folder.mkpath(QStringLiteral("."));
    return folder.filePath(name);
}

void write(const QString &name, const QJsonObject &content)
{
    QFile file(dataFile(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(content).toJson()) < 0)
        qFatal("%s cannot be written", qPrintable(file.fileName()));
}

} // namespace

void ProgramRun::writeSettings(const QJsonObject &settings)
{
    write(QStringLiteral("appsettings.json"), settings);
    // Nobody is asked for an update.
    write(QStringLiteral("server.json"), {{"apiBaseUrl", "http://127.0.0.1:9"}});
}

QJsonObject ProgramRun::readSettings()
{
    QFile file(dataFile(QStringLiteral("appsettings.json")));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

QJsonObject ProgramRun::windowSettings(const QRect &normal, bool maximized)
{
    return {{"windowX", normal.x()},
            {"windowY", normal.y()},
            {"windowWidth", normal.width()},
            {"windowHeight", normal.height()},
            {"windowMaximized", maximized}};
}

QRect ProgramRun::savedGeometry(const QJsonObject &settings)
{
    return {settings["windowX"].toInt(), settings["windowY"].toInt(),
            settings["windowWidth"].toInt(), settings["windowHeight"].toInt()};
}

ProgramRun::ProgramRun(const QString &plugin)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!plugin.isEmpty())
        environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), plugin);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(qEnvironmentVariable("MERIDAX_PROGRAM"), QStringList());
}

ProgramRun::~ProgramRun()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool ProgramRun::isListening()
{
    return QFile::exists(QDir::tempPath() + QStringLiteral("/TO-Meridax-SingleInstance"));
}

bool ProgramRun::endsWell()
{
    m_process.waitForFinished(60000);
    m_output += m_process.readAll();
    return m_process.state() == QProcess::NotRunning &&
           m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
}

QByteArray ProgramRun::complaints()
{
    static const QRegularExpression complaint(
        QStringLiteral("qrc:|QML |Warning|QObject::|binding loop|qt\\.qpa|wayland|\\[main\\]"));
    m_output += m_process.readAll();
    QByteArray found;
    for (const QByteArray &line : m_output.split('\n')) {
        if (complaint.match(QString::fromUtf8(line)).hasMatch())
            found += line + '\n';
    }
    return found;
}
