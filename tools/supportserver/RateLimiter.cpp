#include "RateLimiter.h"

#include <algorithm>

namespace supportserver {

bool RateLimiter::isExhausted(const QString &key, Clock::time_point now) const
{
    const auto times = m_times.value(key);
    const auto recent = std::upper_bound(times.begin(), times.end(), now - m_window);
    return std::distance(recent, times.end()) >= m_limit;
}

void RateLimiter::count(const QString &key, Clock::time_point now)
{
    auto &times = m_times[key];
    times.removeIf([&](Clock::time_point time) { return time <= now - m_window; });
    times.append(now);
}

} // namespace supportserver
