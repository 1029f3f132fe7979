#include "Scene.h"

#include "Tones.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

constexpr double kLensBlur = 0.7;           // of the sharp picture, sigma [px at 720]
constexpr double kPixelVariance = 1 / 12.0; // of a square pixel of side 1
constexpr double kSharpenShare = 0.35;      // per step of the sharpness control
constexpr double kSoftenBlur = 0.4;         // per step of the sharpness control [px at 720]

/// Grey levels of the finished picture over those of the lit scene.
std::array<float, 257> toneCurve(const Picture &p)
{
    std::array<float, 257> tones{};
    for (std::size_t i = 0; i < tones.size(); ++i)
        tones[i] = static_cast<float>(tone(p, double(i)));
    return tones;
}

float toneAt(const std::array<float, 257> &tones, float light)
{
    const float clamped = std::clamp(light, 0.0F, 255.0F);
    const auto i = static_cast<std::size_t>(clamped);
    return tones[i] + (clamped - float(i)) * (tones[i + 1] - tones[i]);
}

double blurSigma(const Picture &p, double scale)
{
    return scale * std::hypot(p.blur, p.softness * kSoftenBlur);
}

double sharpening(const Picture &p)
{
    return p.sharpness * kSharpenShare;
}

/// Share of a dark disc of radius `radius` in a pixel at distance `d` from its middle, seen through
/// a Gaussian blur of `sigma` that holds the area of the pixel: the exact edge of a half plane,
/// which for a disc that is large against the blur is symmetric and so leaves the centroid alone.
double coverage(double d, double radius, double sigma)
{
    const double peak = 1 - std::exp(-radius * radius / (2 * sigma * sigma));
    const double flat = std::erfc(-radius / (sigma * std::numbers::sqrt2));
    return peak * std::erfc((d - radius) / (sigma * std::numbers::sqrt2)) / flat;
}

} // namespace

const Planes &Scene::draw(const SceneInputs &inputs)
{
    const bool groundChanged = !(inputs.ground == m_drawn.ground) || m_clean.empty();
    if (groundChanged)
        m_ground.prepare(inputs.ground);
    if (groundChanged || !(inputs.picture == m_drawn.picture)) {
        m_drawn.ground = inputs.ground;
        drawGround(inputs.picture);
    } else {
        for (const Window &window : m_dirty)
            restore(window);
    }
    m_dirty.clear();
    const auto tones = toneCurve(inputs.picture);
    for (unsigned i = 0; i < inputs.marks; ++i)
        drawMark(inputs, inputs.mark[i], tones);
    m_drawn = inputs;
    return m_planes;
}

void Scene::drawGround(const Picture &picture)
{
    const FrameSize size = m_drawn.ground.size;
    m_planes.resize(size);
    m_mix = m_ground.blurred(blurSigma(picture, size.scale()), sharpening(picture));
    const auto tones = toneCurve(picture);
    std::array<std::uint8_t, 256> rounded{};
    for (std::size_t i = 0; i < rounded.size(); ++i)
        rounded[i] = static_cast<std::uint8_t>(std::lround(tones[i]));
    m_clean.resize(m_planes.y.size());
    for (std::size_t i = 0; i < m_clean.size(); ++i) {
        const float light = std::clamp(m_mix.at(i) + 0.5F, 0.0F, 255.0F);
        m_clean[i] = rounded[static_cast<std::size_t>(light)];
    }
    m_planes.y = m_clean;

    std::array<Chroma, 256> colours{};
    for (std::size_t i = 0; i < colours.size(); ++i)
        colours[i] = chroma(picture, double(i) / 255);
    const auto &tint = m_ground.tint();
    for (std::size_t i = 0; i < tint.size(); ++i) {
        m_planes.u[i] = colours[tint[i]].u;
        m_planes.v[i] = colours[tint[i]].v;
    }
}

void Scene::drawMark(const SceneInputs &inputs, Point mark, const std::array<float, 257> &tones)
{
    const FrameSize size = inputs.ground.size;
    const double scale = size.scale();
    const double lens = std::hypot(blurSigma(inputs.picture, scale), kLensBlur * scale);
    const double sigma = std::sqrt(lens * lens + kPixelVariance);
    const double softer = std::hypot(sigma, scale);
    const double sharpen = sharpening(inputs.picture);
    const double reach = inputs.markRadius + 4.5 * (sharpen > 0 ? softer : sigma) + 1;
    const auto clampX = [&](double x) { return int(std::clamp(x, 0.0, double(size.width))); };
    const auto clampY = [&](double y) { return int(std::clamp(y, 0.0, double(size.height))); };
    const Window window{clampX(std::floor(mark.x - reach)), clampY(std::floor(mark.y - reach)),
                        clampX(std::ceil(mark.x + reach) + 1),
                        clampY(std::ceil(mark.y + reach) + 1)};
    for (int y = window.top; y < window.bottom; ++y) {
        for (int x = window.left; x < window.right; ++x) {
            const double d = std::hypot(x - mark.x, y - mark.y);
            if (d > reach)
                continue;
            double dark = coverage(d, inputs.markRadius, sigma);
            if (sharpen > 0)
                dark += sharpen * (dark - coverage(d, inputs.markRadius, softer));
            const std::size_t i = std::size_t(y) * size.width + std::size_t(x);
            const float ground = m_mix.at(i);
            const float light =
                ground + static_cast<float>(dark * (inputs.markGrey - double(ground)));
            const float below = float(m_planes.y[i]);
            // With two marks over each other the darker one stays.
            m_planes.y[i] =
                static_cast<std::uint8_t>(std::min(below, std::round(toneAt(tones, light))));
        }
    }
    m_dirty.push_back(window);
}

void Scene::restore(const Window &window)
{
    const std::size_t width = m_planes.size.width;
    for (int y = window.top; y < window.bottom; ++y) {
        const std::size_t row = std::size_t(y) * width;
        std::copy(m_clean.begin() + std::ptrdiff_t(row) + window.left,
                  m_clean.begin() + std::ptrdiff_t(row) + window.right,
                  m_planes.y.begin() + std::ptrdiff_t(row) + window.left);
    }
}

} // namespace meridax::simcam
