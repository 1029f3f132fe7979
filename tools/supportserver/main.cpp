#include "Certificate.h"
#include "HttpFrontEnd.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QSslServer>
#include <QTextStream>

#include <memory>

using namespace supportserver;
using namespace Qt::StringLiterals;

namespace {

struct Options
{
    quint16 port = 0;
    quint16 httpsPort = 0;
    QString certificate;
    QString content;
    QString record;
    QString serverJson;
    bool betaOnly = false;
    QStringList program;
};

Options readOptions(const QCoreApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"A support server on 127.0.0.1. Prints its addresses, then a line for each request."_s);
    parser.addHelpOption();
    const QCommandLineOption port(u"port"_s, u"Port of HTTP; 0 takes a free one."_s, u"N"_s,
                                  u"0"_s);
    const QCommandLineOption httpsPort(u"https-port"_s, u"Port of HTTPS; 0 takes a free one."_s,
                                       u"N"_s, u"0"_s);
    const QCommandLineOption certificate(
        u"certificate"_s, u"Serves HTTPS too, with this PEM file; it is made when missing."_s,
        u"FILE"_s);
    const QCommandLineOption content(u"content"_s,
                                     u"Folder of update-info.json, eula.json and privacy.json."_s,
                                     u"FOLDER"_s, QStringLiteral(SUPPORTSERVER_CONTENT));
    const QCommandLineOption record(u"record"_s, u"Keeps what was submitted in this folder."_s,
                                    u"FOLDER"_s);
    const QCommandLineOption serverJson(
        u"server-json"_s, u"Writes the program's configuration for this server."_s, u"FILE"_s);
    const QCommandLineOption betaOnly(u"beta-only"_s, u"Refuses every bug report."_s);
    parser.addOptions({port, httpsPort, certificate, content, record, serverJson, betaOnly});
    parser.addPositionalArgument(u"program"_s, u"Program to run; the server ends with it."_s,
                                 u"[-- PROGRAM ARGUMENTS...]"_s);
    parser.process(app);
    return {parser.value(port).toUShort(), parser.value(httpsPort).toUShort(),
            parser.value(certificate),     parser.value(content),
            parser.value(record),          parser.value(serverJson),
            parser.isSet(betaOnly),        parser.positionalArguments()};
}

/// Lets `server` listen and hands it to `frontEnd`; its address, empty on failure.
QString open(HttpFrontEnd &frontEnd, std::unique_ptr<QTcpServer> server, quint16 port,
             QLatin1StringView scheme)
{
    if (!server->listen(QHostAddress::LocalHost, port) || !frontEnd.bind(server.get())) {
        qWarning("supportserver: cannot listen: %s", qPrintable(server->errorString()));
        return {};
    }
    return u"%1://127.0.0.1:%2"_s.arg(scheme).arg(server.release()->serverPort());
}

bool writeServerJson(const QString &path, const QString &address)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(QJsonDocument(QJsonObject{{"apiBaseUrl"_L1, address}}).toJson()) > 0;
}

int runProgram(QCoreApplication &app, const QStringList &command)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.setInputChannelMode(QProcess::ForwardedInputChannel);
    QObject::connect(&program, &QProcess::finished, &app,
                     [](int exitCode) { QCoreApplication::exit(exitCode); });
    QObject::connect(&program, &QProcess::errorOccurred, &app, [](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            QCoreApplication::exit(127);
    });
    program.start(command.first(), command.sliced(1));
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const Options options = readOptions(app);
    HttpFrontEnd frontEnd(SupportService(options.content, options.betaOnly), options.record);

    const QString http = open(frontEnd, std::make_unique<QTcpServer>(), options.port, "http"_L1);
    if (http.isEmpty())
        return 1;
    QTextStream(stdout) << http << Qt::endl;
    if (!options.certificate.isEmpty()) {
        const auto configuration = serverConfiguration(options.certificate);
        if (!configuration)
            return 1;
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(*configuration);
        const QString https = open(frontEnd, std::move(server), options.httpsPort, "https"_L1);
        if (https.isEmpty())
            return 1;
        QTextStream(stdout) << https << Qt::endl;
    }
    if (!options.serverJson.isEmpty() && !writeServerJson(options.serverJson, http)) {
        qWarning("supportserver: cannot write %s", qPrintable(options.serverJson));
        return 1;
    }
    return options.program.isEmpty() ? QCoreApplication::exec() : runProgram(app, options.program);
}
