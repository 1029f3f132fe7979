#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

constexpr double kRad = std::numbers::pi / 180;
constexpr double kFirstPosition = -45;

double uniform(std::uint32_t seed)
{
    return (hash(seed) + 0.5) / 4294967296.0;
}

/// Two independent normal deviates from `seed` (Box-Muller).
Point normalPair(std::uint32_t seed)
{
    const double r = std::sqrt(-2 * std::log(uniform(seed)));
    const double a = 2 * std::numbers::pi * uniform(seed ^ 0x9e3779b9U);
    return {r * std::cos(a), r * std::sin(a)};
}

Param offset(Param first, int i)
{
    return static_cast<Param>(static_cast<int>(first) + i);
}

} // namespace

std::uint32_t hash(std::uint32_t x)
{
    x = (x ^ (x >> 16)) * 0x7feb352dU;
    x = (x ^ (x >> 15)) * 0x846ca68bU;
    return x ^ (x >> 16);
}

Turn turnAt(const State &state, std::uint32_t nowMs)
{
    const double positions = state.get(Param::TurnPositions);
    if (positions < 1)
        return {state.get(Param::Angle), state.turns};
    const double dwell = state.get(Param::TurnDwell);
    const double move = state.get(Param::TurnMove);
    const double seconds = (nowMs - state.turnStartMs) / 1000.0;
    const double index = std::floor(seconds / (dwell + move));
    const double rest = seconds - index * (dwell + move) - dwell;
    const double moved = rest > 0 && move > 0 ? std::min(rest / move, 1.0) : 0;
    return {kFirstPosition - std::fmod(index + moved, positions) * 360 / positions,
            state.turns + static_cast<std::uint32_t>(index)};
}

Point centerOf(const State &state, FrameSize size)
{
    return {size.width / 2.0 + double(state.get(Param::CenterX)) * size.scale(),
            size.height / 2.0 + double(state.get(Param::CenterY)) * size.scale()};
}

double pathRadius(const State &state, FrameSize size, double angle)
{
    double form = 0;
    for (int k = kFirstFormOrder; k <= kLastFormOrder; ++k) {
        const double amplitude = state.get(offset(Param::Form2, k - kFirstFormOrder));
        const double phase = state.get(offset(Param::Phase2, k - kFirstFormOrder));
        form += amplitude * std::cos((k * angle + phase) * kRad);
    }
    return double(state.get(Param::Radius)) * size.height + form * size.scale();
}

Point markPosition(const State &state, FrameSize size, double angle)
{
    const Point c = centerOf(state, size);
    const double r = pathRadius(state, size, angle);
    return {c.x + r * std::cos(angle * kRad), c.y + r * std::sin(angle * kRad)};
}

Point positionNoise(const State &state, FrameSize size, std::uint32_t dwell, std::uint32_t frame)
{
    const Point d = normalPair(hash(dwell + 1));
    const Point f = normalPair(hash(frame + 0x10000U) + 2);
    const double sd = double(state.get(Param::DwellNoise)) * size.scale();
    const double sf = double(state.get(Param::FrameNoise)) * size.scale();
    return {sd * d.x + sf * f.x, sd * d.y + sf * f.y};
}

} // namespace meridax::simcam
