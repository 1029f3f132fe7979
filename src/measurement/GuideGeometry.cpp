#include "measurement/GuideGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax {
namespace {

constexpr double kFirstAngle = -45.0;

/// The smallest distance from the centre at which an angle has a meaning, px.
double minimumRadius(QSize frame)
{
    return std::max(0.05 * std::min(frame.width(), frame.height()), 20.0);
}

double wrapped(double degrees)
{
    while (degrees > 180.0)
        degrees -= 360.0;
    while (degrees < -180.0)
        degrees += 360.0;
    return degrees;
}

/// From the middle line of a sector, deg.
double deviation(QPointF offset, int guideIndex, int positions)
{
    const double angle = std::atan2(offset.y(), offset.x()) * 180.0 / std::numbers::pi;
    return std::abs(wrapped(angle - guideAngle(guideIndex, positions)));
}

} // namespace

double guideSpacing(int positions)
{
    return 360.0 / std::max(3, positions);
}

double guideAngle(int guideIndex, int positions)
{
    return kFirstAngle - guideIndex * guideSpacing(positions);
}

SectorState evaluateSector(QPointF blob, QPointF sectorCentre, QSize frame, int guideIndex,
                           int positions)
{
    const QPointF offset = blob - sectorCentre;
    if (std::hypot(offset.x(), offset.y()) < minimumRadius(frame))
        return {};

    const double delta = deviation(offset, guideIndex, positions);
    if (!(delta <= guideSectorHalfWidth))
        return {};
    return {true, std::sqrt(1.0 - delta / guideSectorHalfWidth)};
}

double sectorDistance(QPointF blob, QPointF sectorCentre, int guideIndex, int positions)
{
    return std::max(0.0,
                    deviation(blob - sectorCentre, guideIndex, positions) - guideSectorHalfWidth);
}

QPointF overlayCentre(const CameraSettings &settings)
{
    const QPointF centre(settings.centerX, settings.centerY);
    if (!settings.centerOffsetEnabled)
        return centre;
    return centre + QPointF(settings.centerOffsetX, settings.centerOffsetY);
}

} // namespace meridax
