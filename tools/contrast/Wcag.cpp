#include "Wcag.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(float part)
{
    const double value = part;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

QColor laidOver(const QColor &colour, const QColor &ground)
{
    const float alpha = colour.alphaF();
    const auto mixed = [alpha](float over, float under) {
        return over * alpha + under * (1.0F - alpha);
    };
    return QColor::fromRgbF(mixed(colour.redF(), ground.redF()),
                            mixed(colour.greenF(), ground.greenF()),
                            mixed(colour.blueF(), ground.blueF()));
}

double contrastRatio(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}
