#include "Fault.h"

#include <array>
#include <utility>

namespace supportserver {

namespace {

using namespace Qt::StringLiterals;

/// More than a client should ever take in.
constexpr int kHugeBytes = 24 * 1024 * 1024;

Fault faultOf(const QString &name)
{
    static constexpr std::array<std::pair<QLatin1StringView, Fault::Kind>, 6> plain{{
        {"slow"_L1, Fault::Slow},
        {"hang-up"_L1, Fault::HangUp},
        {"html"_L1, Fault::Html},
        {"redirect"_L1, Fault::Redirect},
        {"loop"_L1, Fault::Loop},
        {"huge"_L1, Fault::Huge},
    }};
    for (const auto &[plainName, kind] : plain) {
        if (name == plainName)
            return {kind, kHugeBytes, {}};
    }
    static constexpr std::array<std::pair<QLatin1StringView, Fault::Kind>, 5> withArgument{{
        {"status-"_L1, Fault::Status},
        {"empty-"_L1, Fault::Empty},
        {"code-"_L1, Fault::Code},
        {"padded-"_L1, Fault::Padded},
        {"downgrade-"_L1, Fault::Downgrade},
    }};
    for (const auto &[prefix, kind] : withArgument) {
        if (name.startsWith(prefix)) {
            const QString argument = name.sliced(prefix.size());
            return {kind, argument.toInt(), argument};
        }
    }
    return {Fault::Unknown, 0, {}};
}

} // namespace

FaultyPath splitFault(const QString &path)
{
    if (!path.startsWith("/~"_L1))
        return {{}, path};
    const qsizetype end = path.indexOf(u'/', 1);
    if (end < 0)
        return {{Fault::Unknown, 0, {}}, path};
    return {faultOf(path.sliced(2, end - 2)), path.sliced(end)};
}

} // namespace supportserver
