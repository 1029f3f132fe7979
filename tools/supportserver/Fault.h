#pragma once

#include <QString>

namespace supportserver {

/// A fault that a client asks for by its base address: http://127.0.0.1:8080/~html answers every
/// request with a web page.
struct Fault
{
    enum Kind {
        None,
        Slow,      ///< no answer for half a minute
        HangUp,    ///< closes the connection in the middle of the body
        Status,    ///< the proper answer with the status `number`
        Empty,     ///< no body, status `number`
        Code,      ///< a failure with the error code `text`
        Html,      ///< a web page in place of JSON
        Redirect,  ///< sends the client to the address without the fault
        Downgrade, ///< sends the client to port `number` of this machine, without encryption
        Loop,      ///< sends the client to the same address again and again
        Padded,    ///< the proper answer, filled with blanks to `number` bytes
        Huge,      ///< `number` bytes of a body that never ends
        Unknown,
    };

    Kind kind = None;
    int number = 0;
    QString text;
};

struct FaultyPath
{
    Fault fault;
    QString path; ///< without the fault
};

/// Separates the fault from a path such as "/~status-500/api/license/feedback".
FaultyPath splitFault(const QString &path);

} // namespace supportserver
