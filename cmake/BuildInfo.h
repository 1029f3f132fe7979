#pragma once

#include <QString>

/// The constants of this build, used unchanged wherever the program reports itself.
namespace meridax::build {

QString version();   ///< dotted text such as "1.0.6"
QString commit();    ///< short hexadecimal revision, "unknown" without version control
QString buildTime(); ///< UTC, ISO 8601
QString platform();  ///< operating system and processor such as "linux-x64"

} // namespace meridax::build
