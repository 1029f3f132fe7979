#include "diagnostics/LogFlood.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

namespace meridax {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kMostKinds = 8;
constexpr LogFlood::Clock::duration kFirstPause = 10s;
constexpr LogFlood::Clock::duration kLongestPause = 10min;
constexpr int kPauseGrowth = 6;
/// A kind that has been silent for so long has stopped.
constexpr LogFlood::Clock::duration kSilence = 1min;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isHexDigit(QChar c)
{
    return isDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

/// Where the number that begins at `at` ends; `at` itself if there is none.
qsizetype endOfNumber(QStringView text, qsizetype at)
{
    if (!isDigit(text[at]))
        return at;
    const bool isHex = text.sliced(at).startsWith(QLatin1StringView("0x"));
    const auto end = std::find_if_not(text.begin() + at + (isHex ? 2 : 0), text.end(),
                                      isHex ? isHexDigit : isDigit);
    return end - text.begin();
}

} // namespace

bool differInNumbersOnly(QStringView a, QStringView b)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        const qsizetype endI = endOfNumber(a, i);
        const qsizetype endJ = endOfNumber(b, j);
        if ((endI == i) != (endJ == j) || (endI == i && a[i] != b[j]))
            return false;
        i = std::max(endI, i + 1);
        j = std::max(endJ, j + 1);
    }
    return i == a.size() && j == b.size();
}

bool LogFlood::mayRepeat(const char *category)
{
    return category && std::strcmp(category, "default") != 0;
}

LogFlood::Kind *LogFlood::count(QtMsgType type, const char *category, QStringView message,
                                Clock::time_point now)
{
    for (Kind &kind : m_kinds) {
        if (kind.type != type || kind.category != category ||
            !differInNumbersOnly(kind.message, message))
            continue;
        ++kind.untold;
        kind.last = now;
        return &kind;
    }
    return nullptr;
}

std::vector<LogFlood::Kind> LogFlood::watch(QtMsgType type, const char *category,
                                            const QString &message, const QString &shown,
                                            Clock::time_point now)
{
    std::vector<Kind> told;
    if (m_kinds.size() == kMostKinds) {
        const auto oldest = std::ranges::min_element(m_kinds, {}, &Kind::last);
        if (oldest->untold > 0)
            told.push_back(*oldest);
        m_kinds.erase(oldest);
    }
    m_kinds.push_back({.type = type,
                       .category = category,
                       .message = message,
                       .shown = shown,
                       .stamp = {},
                       .stamped = {},
                       .last = now,
                       .tellAt = now + kFirstPause,
                       .pause = kFirstPause});
    return told;
}

std::vector<LogFlood::Kind> LogFlood::takeDue(Clock::time_point now)
{
    const auto hasStopped = [now](const Kind &kind) { return now - kind.last >= kSilence; };
    std::vector<Kind> told;
    for (Kind &kind : m_kinds) {
        if (kind.untold == 0 || (now < kind.tellAt && !hasStopped(kind)))
            continue;
        told.push_back(kind);
        kind.untold = 0;
        kind.pause = std::min(kind.pause * kPauseGrowth, kLongestPause);
        kind.tellAt = now + kind.pause;
    }
    std::erase_if(m_kinds, hasStopped);
    return told;
}

std::vector<LogFlood::Kind> LogFlood::takeAll()
{
    std::vector<Kind> told = std::exchange(m_kinds, {});
    std::erase_if(told, [](const Kind &kind) { return kind.untold == 0; });
    return told;
}

} // namespace meridax
