#include "Tones.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

constexpr double kBrassU = -16; // colour of the metal
constexpr double kBrassV = 12;

std::uint8_t rounded(double value)
{
    return static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
}

} // namespace

double tone(const Picture &p, double light)
{
    const double lit = std::min(255.0, light * p.exposure * p.gain);
    const double bent = p.gamma == 1 ? lit : 255 * std::pow(lit / 255, 1 / p.gamma);
    return std::clamp((bent - 128) * p.contrast + 128 + p.brightness, 0.0, 255.0);
}

Chroma chroma(const Picture &p, double brass)
{
    const double hue = p.hue * std::numbers::pi / 180;
    const double brassU = kBrassU * std::cos(hue) - kBrassV * std::sin(hue);
    const double brassV = kBrassU * std::sin(hue) + kBrassV * std::cos(hue);
    const double u = brass * brassU - p.warmth * 20;
    const double v = brass * brassV + p.warmth * 12;
    return {rounded(128 + p.saturation * u), rounded(128 + p.saturation * v)};
}

} // namespace meridax::simcam
