#include "DiscMark.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

/// Chords of the unit disc at even steps of the angle, with which their areas add up to the disc's
/// exactly.
struct Chord
{
    double height;
    double half;
};
constexpr std::size_t kChords = 24;

std::array<Chord, kChords> unitChords()
{
    std::array<Chord, kChords> chords{};
    for (std::size_t i = 0; i < kChords; ++i) {
        const double angle = ((double(i) + 0.5) / kChords - 0.5) * std::numbers::pi;
        chords[i] = {std::sin(angle), std::cos(angle)};
    }
    return chords;
}

} // namespace

double DiscMark::coverage(Point p) const
{
    const double dx = p.x - middle.x;
    const double dy = p.y - middle.y;
    const double distance = std::hypot(dx, dy);
    if (distance >= longer + spread)
        return 0;
    if (distance <= shorter - spread)
        return 1;

    static const std::array<Chord, kChords> chords = unitChords();
    const double turn = direction * std::numbers::pi / 180;
    const double along = dx * std::cos(turn) + dy * std::sin(turn);
    const double across = dy * std::cos(turn) - dx * std::sin(turn);
    double covered = 0;
    for (const Chord &chord : chords) {
        const double height = (across + chord.height * spread) / shorter;
        if (std::fabs(height) >= 1)
            continue;
        const double ellipse = longer * std::sqrt(1 - height * height);
        const double half = chord.half * spread;
        const double overlap = std::min(along + half, ellipse) - std::max(along - half, -ellipse);
        covered += std::max(0.0, overlap) * chord.half;
    }
    return covered / (kChords * spread);
}

} // namespace meridax::simcam
