#include "RealScene.h"

#include "Tones.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

constexpr double kLensSpread = 1.0;   // of the sharp picture, radius of a disc [px at 720]
constexpr double kSoftenSpread = 0.8; // per step of the sharpness control [px at 720]
constexpr double kPixelSpread = 0.58; // disc of the variance of a square pixel of side 1
constexpr double kMarkDirection = 25; // of the mark's longer axis, from the radius [deg]
constexpr double kFallDirection = 70; // in which the light falls, from the mark's radius [deg]
constexpr float kLeastLight = 0.05F;

// The surface ends in a dark surround, not quite about the axis.
constexpr double kEdgeRadius = 330;     // px at 720
constexpr double kBeyondPath = 54;      // px at 720
constexpr double kEdgeEccentricity = 7; // px at 720
constexpr float kSurround = 0.35F;      // of the light

/// One speck of dust on the sensor: a soft shadow.
struct Speck
{
    double x, y, radius; // px
    double depth;        // part of the light
};

Speck speck(unsigned index, FrameSize size)
{
    const auto uniform = [&](unsigned k) {
        return hash(0x5eed0000U + 8 * index + k) / 4294967296.0;
    };
    // Most are small; a few large ones are faint.
    const double radius = 1.5 + 7 * std::pow(uniform(2), 3);
    return {uniform(0) * size.width, uniform(1) * size.height, radius * size.scale(),
            0.05 + 0.25 * uniform(3) / radius};
}

double lensSpread(const Picture &p, double scale)
{
    return scale * std::hypot(kLensSpread, p.blur, p.softness * kSoftenSpread);
}

} // namespace

const Planes &RealScene::draw(const SceneInputs &inputs)
{
    const FrameSize size = inputs.ground.size;
    const bool isFirst = m_planes.y.empty();
    if (!isFirst && inputs == m_drawn)
        return m_planes;

    const bool sensorChanged = isFirst || !(size == m_drawn.ground.size) ||
                               inputs.surface.vignetting != m_drawn.surface.vignetting ||
                               inputs.surface.dust != m_drawn.surface.dust;
    if (sensorChanged)
        drawSensor(inputs);
    if (isFirst || !(inputs.picture == m_drawn.picture) || sensorChanged) {
        m_planes.resize(size);
        for (std::size_t i = 0; i < m_tones.size(); ++i)
            m_tones[i] = static_cast<std::uint8_t>(
                std::lround(tone(inputs.picture, (double(i) + 0.5) / kLightSteps)));
        const Chroma neutral = chroma(inputs.picture, 0);
        std::fill(m_planes.u.begin(), m_planes.u.end(), neutral.u);
        std::fill(m_planes.v.begin(), m_planes.v.end(), neutral.v);
    }

    const Surface &surface = inputs.surface;
    const double spread = lensSpread(inputs.picture, size.scale());
    m_grain.prepare(surface.groundGrey > 0 ? surface.grain / surface.groundGrey : 0,
                    spread / size.scale());
    m_marks.clear();
    for (unsigned i = 0; i < inputs.marks; ++i)
        m_marks.push_back({inputs.mark[i], inputs.markRadius, inputs.markRadius * surface.markAxes,
                           surface.angle + kMarkDirection + i * kSecondMark,
                           std::hypot(spread, kPixelSpread)});
    m_light.resize(size.width);
    m_grey.resize(size.width);
    for (unsigned y = 0; y < size.height; ++y)
        drawRow(inputs, y);
    m_drawn = inputs;
    return m_planes;
}

void RealScene::drawSensor(const SceneInputs &inputs)
{
    const FrameSize size = inputs.ground.size;
    m_sensor.resize(std::size_t(size.width) * size.height);
    const double corner = double(size.width) * size.width + double(size.height) * size.height;
    for (unsigned y = 0; y < size.height; ++y) {
        for (unsigned x = 0; x < size.width; ++x) {
            const double dx = 2.0 * x - size.width;
            const double dy = 2.0 * y - size.height;
            const double part = (dx * dx + dy * dy) / corner;
            m_sensor[std::size_t(y) * size.width + x] =
                static_cast<float>(1 - inputs.surface.vignetting * part);
        }
    }
    for (unsigned i = 0; i < inputs.surface.dust; ++i) {
        const Speck s = speck(i, size);
        const int reach = static_cast<int>(std::ceil(1.5 * s.radius));
        for (int y = std::max(0, int(s.y) - reach); y <= int(s.y) + reach && y < int(size.height);
             ++y) {
            for (int x = std::max(0, int(s.x) - reach);
                 x <= int(s.x) + reach && x < int(size.width); ++x) {
                const double d = std::hypot(x - s.x, y - s.y) / s.radius;
                const double shadow = std::clamp(1.5 - d, 0.0, 1.0);
                m_sensor[std::size_t(y) * size.width + std::size_t(x)] *=
                    static_cast<float>(1 - s.depth * shadow);
            }
        }
    }
}

void RealScene::drawRow(const SceneInputs &inputs, unsigned y)
{
    const unsigned width = inputs.ground.size.width;
    std::fill(m_grey.begin(), m_grey.end(),
              static_cast<float>(inputs.surface.groundGrey * kLightSteps));
    markRow(inputs, y);
    lightRow(inputs, y);
    limitRow(inputs, y);
    const float *sensor = m_sensor.data() + std::size_t(y) * width;
    std::uint8_t *out = m_planes.y.data() + std::size_t(y) * width;
    constexpr float kBrightest = 256 * kLightSteps - 1;
    for (unsigned x = 0; x < width; ++x)
        out[x] = m_tones[static_cast<std::size_t>(
            std::min(m_grey[x] * m_light[x] * sensor[x], kBrightest))];
}

void RealScene::markRow(const SceneInputs &inputs, unsigned y)
{
    const int width = static_cast<int>(inputs.ground.size.width);
    const double markGrey = inputs.markGrey * kLightSteps;
    const double ground = inputs.surface.groundGrey * kLightSteps;
    for (const DiscMark &mark : m_marks) {
        if (std::fabs(y - mark.middle.y) > mark.reach())
            continue;
        const int from = std::max(0, static_cast<int>(std::floor(mark.middle.x - mark.reach())));
        const int to =
            std::min(width, static_cast<int>(std::ceil(mark.middle.x + mark.reach())) + 1);
        for (int x = from; x < to; ++x) {
            const double dark = mark.coverage({double(x), double(y)});
            float &grey = m_grey[std::size_t(x)];
            // With two marks over each other the darker one stays.
            grey = std::min(grey, static_cast<float>(std::lerp(ground, markGrey, dark)));
        }
    }
}

void RealScene::lightRow(const SceneInputs &inputs, unsigned y)
{
    const FrameSize size = inputs.ground.size;
    const Surface &surface = inputs.surface;
    const double turn = surface.angle * std::numbers::pi / 180;
    const double stepX = std::cos(turn) / size.scale(); // on the surface, per column
    const double stepY = -std::sin(turn) / size.scale();
    const double dy = (y - surface.origin.y) / size.scale();
    const double left = -surface.origin.x;
    const double x0 = left * stepX + dy * std::sin(turn);
    const double y0 = left * stepY + dy * std::cos(turn);

    constexpr double kOne = 1 << Grain::kFractionBits;
    const auto fixed = [](double v) { return static_cast<std::uint32_t>(std::llround(v * kOne)); };
    std::uint32_t u = fixed(x0);
    std::uint32_t v = fixed(y0);
    const std::uint32_t du = fixed(stepX);
    const std::uint32_t dv = fixed(stepY);
    for (unsigned x = 0; x < size.width; ++x, u += du, v += dv)
        m_light[x] = m_grain.at(u, v);

    const double fall = kFallDirection * std::numbers::pi / 180;
    const double perPixel = surface.lightFall / 720;
    const auto first =
        static_cast<float>(1 - perPixel * (x0 * std::cos(fall) + y0 * std::sin(fall)));
    const auto slope =
        static_cast<float>(-perPixel * (stepX * std::cos(fall) + stepY * std::sin(fall)));
    for (unsigned x = 0; x < size.width; ++x)
        m_light[x] *= std::max(kLeastLight, first + float(x) * slope);
}

void RealScene::limitRow(const SceneInputs &inputs, unsigned y)
{
    const FrameSize size = inputs.ground.size;
    const double scale = size.scale();
    const double turn = inputs.surface.angle * std::numbers::pi / 180;
    const double cx = inputs.surface.origin.x + kEdgeEccentricity * scale * std::cos(turn);
    const double dy = y - inputs.surface.origin.y - kEdgeEccentricity * scale * std::sin(turn);
    const double radius =
        std::max(kEdgeRadius * scale, inputs.ground.pathRadius + kBeyondPath * scale);
    const double soft = std::hypot(lensSpread(inputs.picture, scale), kPixelSpread);
    const auto halfChord = [&](double r) {
        return r > std::fabs(dy) ? std::sqrt(r * r - dy * dy) : -1;
    };
    const double inner = radius > soft ? halfChord(radius - soft) : -1;
    for (unsigned x = 0; x < size.width; ++x) {
        const double dx = std::fabs(x - cx);
        if (dx < inner) { // on to the other end of the chord
            x = std::max(x, static_cast<unsigned>(std::clamp(cx + inner, 0.0, size.width - 1.0)));
            continue;
        }
        const double beyond = (std::hypot(dx, dy) - radius) / soft;
        const auto share = static_cast<float>(std::clamp((1 + beyond) / 2, 0.0, 1.0));
        m_light[x] *= 1 + share * (kSurround - 1);
    }
}

} // namespace meridax::simcam
