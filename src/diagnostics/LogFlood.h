#pragma once

#include <QByteArray>
#include <QString>
#include <QtLogging>

#include <chrono>
#include <vector>

namespace meridax {

/// Counts the messages that libraries repeat, such as one a frame about a camera's damaged JPEGs,
/// so that they do not push everything else out of the log. The first of a kind is logged like any
/// other; how often it came again is told from time to time, and when it has stopped. Holds eight
/// kinds. Not safe for threads by itself.
class LogFlood
{
public:
    using Clock = std::chrono::steady_clock;

    struct Kind
    {
        QtMsgType type;
        QByteArray category;
        QString message;
        QString shown;     ///< the message as it went into the log
        qint64 untold = 0; ///< repetitions that the log does not know of
        QString stamp;     ///< the caller's: time and level of a repetition, as a line begins
        Clock::time_point stamped;
        Clock::time_point last;
        Clock::time_point tellAt;
        Clock::duration pause; ///< between this telling and the next
    };

    /// Whether messages of that category may be counted. All of the program's own have the default
    /// category, and are logged each and every one.
    static bool mayRepeat(const char *category);

    /// The kind that the message is one more of, counted already; null where it is the first and
    /// has to be logged. Messages are of one kind if they differ in numbers only.
    Kind *count(QtMsgType type, const char *category, QStringView message, Clock::time_point now);

    /// Counts from now on what is like the message, which was logged as `shown`. Returns the kind
    /// that had to make room, if it has something untold.
    std::vector<Kind> watch(QtMsgType type, const char *category, const QString &message,
                            const QString &shown, Clock::time_point now);

    /// The kinds with something to tell now: they stopped, or their pause is over.
    std::vector<Kind> takeDue(Clock::time_point now);
    /// The kinds with something untold. Nothing is watched any more.
    std::vector<Kind> takeAll();

    const std::vector<Kind> &kinds() const { return m_kinds; }

private:
    std::vector<Kind> m_kinds;
};

/// Whether the texts are equal but for their numbers, decimal or hexadecimal with "0x".
bool differInNumbersOnly(QStringView a, QStringView b);

} // namespace meridax
