#pragma once

#include <QSslConfiguration>
#include <QString>

#include <optional>

namespace supportserver {

/// The TLS configuration with certificate and key of the PEM file `path`. Where there is no such
/// file one is made, self-signed for 127.0.0.1, by the command openssl.
std::optional<QSslConfiguration> serverConfiguration(const QString &path);

} // namespace supportserver
