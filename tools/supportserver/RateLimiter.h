#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <chrono>

namespace supportserver {

/// Admits each key `limit` times within any span of `window`.
class RateLimiter
{
public:
    using Clock = std::chrono::steady_clock;

    RateLimiter(qsizetype limit, Clock::duration window)
        : m_limit(limit)
        , m_window(window)
    {
    }

    bool isExhausted(const QString &key, Clock::time_point now = Clock::now()) const;
    void count(const QString &key, Clock::time_point now = Clock::now());

private:
    qsizetype m_limit;
    Clock::duration m_window;
    QHash<QString, QList<Clock::time_point>> m_times; ///< ascending
};

} // namespace supportserver
