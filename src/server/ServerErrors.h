#pragma once

#include <QString>

namespace meridax {

/// What the user reads of a failed submission, in the language of the interface: the text of a
/// known code, else the server's `message`, else the code. An empty code means that there was no
/// proper reply.
QString submissionErrorText(const QString &errorCode, const QString &message);

} // namespace meridax
