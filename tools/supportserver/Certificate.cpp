#include "Certificate.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>

namespace supportserver {

namespace {

using namespace Qt::StringLiterals;

bool makeSelfSigned(const QString &path)
{
    QProcess openssl;
    openssl.setProcessChannelMode(QProcess::MergedChannels);
    openssl.start(u"openssl"_s,
                  {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                   u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-days"_s, u"3650"_s,
                   u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s,
                   u"-keyout"_s, path, u"-out"_s, path});
    if (openssl.waitForFinished() && openssl.exitCode() == 0)
        return true;
    qWarning("supportserver: no certificate: %s%s", qPrintable(openssl.errorString()),
             openssl.readAll().constData());
    return false;
}

} // namespace

std::optional<QSslConfiguration> serverConfiguration(const QString &path)
{
    if (!QFile::exists(path) && !makeSelfSigned(path))
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray pem = file.readAll();
    const QSslCertificate certificate(pem);
    const QSslKey key(pem, QSsl::Ec);
    if (certificate.isNull() || key.isNull()) {
        qWarning("supportserver: no certificate with an elliptic key in %s", qPrintable(path));
        return std::nullopt;
    }
    auto configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificate);
    configuration.setPrivateKey(key);
    return configuration;
}

} // namespace supportserver
