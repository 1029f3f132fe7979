#pragma once

#include <QString>
#include <QtLogging>

#include <cstddef>
#include <cstdint>

namespace meridax {

/// The one sink of every diagnostic line. Code logs through Qt's macros, with a bracketed tag at
/// the start of the text; nothing logs through this class. Each line is cleaned of personal data,
/// then goes to a file that is rotated by size, and to a ring of the newest 500 lines in memory.
/// Qt's own output to the console stays, with the text as it came in.
///
/// A line reads "2026-01-31 23:59:59.999 [INF] [camera] text (file:line)", in UTC; the location is
/// there only where the build records it. A text with line breaks is one entry of the ring and
/// several lines of the file.
///
/// Static throughout; every function may be called from any thread.
class LogManager
{
public:
    LogManager() = delete;

    /// Takes over Qt's message handler, for the rest of the process, and opens the file. Without a
    /// file, here or after a rotation, the ring goes on alone. Organisation and application name
    /// have to be set before. A second call does nothing.
    static void install();

    static QString logDirectory();
    static QString logFilePath();

    /// One line of log: time in UTC, level, message, location. Not cleaned yet.
    static QString compose(QtMsgType type, const QMessageLogContext &context,
                           const QString &message);
    /// A copy without personal data: the value of sensitive JSON members, the local part of e-mail
    /// addresses. Takes any text, in time linear in its length.
    static QString sanitize(const QString &text);

    /// The newest `lines` entries of the ring, oldest first, joined by line feeds; all of them for
    /// `lines` below 1.
    static QString tail(int lines);
    /// The newest `lines` lines of the log file and its backups, trimmed, across the rotations; all
    /// of them for `lines` below 1.
    static QString tailFromFiles(int lines);

    using TailWriter = void (*)(std::intptr_t target, const char *utf8, std::size_t size);
    /// What tail() gives, as UTF-8 in pieces, for the crash handler alone: allocates nothing and
    /// calls nothing that a signal handler must not. False if there was nothing to write or if the
    /// lock could not be had within 50 ms, as after a fault in the logger itself.
    static bool writeTail(int lines, TailWriter write, std::intptr_t target);
};

} // namespace meridax
