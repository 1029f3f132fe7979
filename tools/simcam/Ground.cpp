#include "Ground.h"

#include "Blur.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

// Grey levels. All that occur, texture and grooves included, keep off the multiples of ten, where
// a blob detector usually cuts its pictures: noise on a cut would break up into thousands of blobs.
constexpr double kPlain = 165;
constexpr double kCenter = 205;
constexpr double kRim = 185;
constexpr double kTick = 95;
constexpr double kOutside = 65;

/// Blur of each step [px at 720].
constexpr double kStepSigma[] = {0, 1, 2, 4, 8, 16, 32};

constexpr double kProfileStep = 1.0 / 32; // px at 720
constexpr double kTextureCell = 4;        // px at 720
constexpr double kTextureDepth = 11;      // grey levels either way

/// 0 below `from`, 1 above `to`, smooth between.
double smoothStep(double from, double to, double x)
{
    const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// 1 between `from` and `to`, with soft ends of `soft`.
double window(double from, double to, double soft, double x)
{
    return smoothStep(from - soft, from + soft, x) * (1 - smoothStep(to - soft, to + soft, x));
}

double lattice(int x, int y)
{
    return hash(std::uint32_t(x) * 0x9e3779b1U ^ std::uint32_t(y) * 0x85ebca77U) / 2147483648.0 - 1;
}

/// Random texture of square grains of side 1, each -1 or 1.
double texture(double x, double y)
{
    return lattice(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y))) < 0 ? -1 : 1;
}

/// Grooves of distance `pitch` with steep flanks, between -1 and 1.
double grooves(double pitch, double x)
{
    constexpr double kFlank = 0.35; // px at 720
    const double fromFlank = std::fabs(std::remainder(x, pitch)) - pitch / 4;
    return 1 - 2 * smoothStep(-kFlank, kFlank, fromFlank);
}

/// The ground along a radius, all lengths in px at 720.
struct Zones
{
    explicit Zones(const GroundLayout &layout)
        : inner(layout.pathRadius / layout.size.scale() - layout.clearance / layout.size.scale())
        , outer((layout.pathRadius + layout.clearance) / layout.size.scale())
        , edge(std::max(outer + 54, 330.0))
    {
    }

    double inner; ///< end of the inner rings
    double outer; ///< end of the plain band
    double edge;  ///< end of the sleeve

    double grey(double u) const
    {
        double g = kPlain + (kCenter - kPlain) * (1 - smoothStep(6, 18, u));
        g += 30 * grooves(8, u) * window(0.72 * inner, inner - 4, 3, u) * (inner > 40);
        g += (kRim - g) * smoothStep(outer + 35, outer + 38, u);
        return std::lerp(g, kOutside, smoothStep(edge - 1, edge + 1, u));
    }
    double textureDepth(double u) const
    {
        const double inside = window(24, 0.45 * inner, 2, u) * (inner > 60);
        const double rim = window(edge - 14, edge - 4, 1, u);
        return kTextureDepth * std::max(inside, rim);
    }
    double tint(double u) const
    {
        return window(outer + 36, edge, 1, u) + 0.4 * (1 - smoothStep(inner - 2, inner + 2, u));
    }
    double tickDepth(double u, double degrees) const
    {
        const bool isLong = std::fabs(std::remainder(degrees, 30)) < 1.5;
        const double length = isLong ? 24 : 14;
        const double across = std::fabs(std::remainder(degrees, 5)) * std::numbers::pi / 180 * u;
        return window(outer + 6, outer + 6 + length, 1, u) * (1 - smoothStep(1.4, 2.1, across));
    }
};

} // namespace

void Ground::prepare(const GroundLayout &layout)
{
    if (layout == m_layout)
        return;
    m_layout = layout;
    for (auto &pixels : m_step)
        pixels.clear();
    draw();
}

void Ground::draw()
{
    const auto [size, center, radius, clearance] = m_layout;
    const Zones zones(m_layout);
    const double scale = size.scale();
    const auto steps =
        static_cast<std::size_t>(std::hypot(size.width, size.height) / scale / kProfileStep) + 64;
    std::vector<std::uint8_t> tint(steps);
    std::vector<float> grey(steps);
    std::vector<float> depth(steps);
    for (std::size_t i = 0; i < steps; ++i) {
        const double u = double(i) * kProfileStep;
        grey[i] = static_cast<float>(zones.grey(u));
        depth[i] = static_cast<float>(zones.textureDepth(u));
        tint[i] = static_cast<std::uint8_t>(std::lround(255 * std::min(1.0, zones.tint(u))));
    }
    const auto ticksFrom = static_cast<std::size_t>(std::max(0.0, zones.outer + 4) / kProfileStep);
    const auto ticksTo = static_cast<std::size_t>(std::max(0.0, zones.outer + 32) / kProfileStep);

    auto &pixels = m_step[0];
    pixels.resize(std::size_t(size.width) * size.height);
    m_tint.resize(pixels.size() / 2);
    for (unsigned y = 0; y < size.height; ++y) {
        const double dy = (y - center.y) / scale;
        std::uint8_t *row = pixels.data() + std::size_t(y) * size.width;
        std::uint8_t *tints = m_tint.data() + std::size_t(y) * size.width / 2;
        for (unsigned x = 0; x < size.width; ++x) {
            const double dx = (x - center.x) / scale;
            const double u = std::sqrt(dx * dx + dy * dy);
            const std::size_t i = std::min(static_cast<std::size_t>(u / kProfileStep), steps - 1);
            double g = double(grey[i]);
            if (depth[i] > 0.1F)
                g += double(depth[i]) * texture(dx / kTextureCell, dy / kTextureCell);
            if (i >= ticksFrom && i <= ticksTo) {
                const double degrees = std::atan2(dy, dx) * 180 / std::numbers::pi;
                g = std::lerp(g, kTick, zones.tickDepth(u, degrees));
            }
            row[x] = static_cast<std::uint8_t>(std::lround(g));
            tints[x / 2] = tint[i];
        }
    }
}

const std::uint8_t *Ground::step(std::size_t index)
{
    auto &pixels = m_step[index];
    if (pixels.empty()) {
        step(index - 1);
        pixels = m_step[index - 1];
        const double more = std::sqrt(kStepSigma[index] * kStepSigma[index] -
                                      kStepSigma[index - 1] * kStepSigma[index - 1]);
        blur(pixels, m_layout.size.width, more * m_layout.size.scale());
    }
    return pixels.data();
}

Ground::Mix Ground::blurred(double sigma, double sharpening)
{
    const double s = std::min(sigma / m_layout.size.scale(), kStepSigma[kSteps - 1]);
    std::size_t i = 0;
    while (i + 2 < kSteps && s >= kStepSigma[i + 1])
        ++i;
    const double low = kStepSigma[i] * kStepSigma[i];
    const double high = kStepSigma[i + 1] * kStepSigma[i + 1];
    const double share = (s * s - low) / (high - low) - sharpening;
    const std::uint8_t *first = step(i);
    // The sharp picture alone does not need its blurred neighbour made.
    return {first, share == 0 ? first : step(i + 1), static_cast<float>(share)};
}

} // namespace meridax::simcam
