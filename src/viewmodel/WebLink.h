#pragma once

#include <QString>

namespace meridax {

/// Opens an address that came from the server in the browser. Only http and https are opened;
/// returns false, having done nothing, for any other.
bool openWebLink(const QString &address);

} // namespace meridax
