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
    const double dx = blob.x() - sectorCentre.x();
    const double dy = blob.y() - sectorCentre.y();
    if (std::hypot(dx, dy) < minimumRadius(frame))
        return {};

    const double angle = std::atan2(dy, dx) * 180.0 / std::numbers::pi;
    const double delta = std::abs(wrapped(angle - guideAngle(guideIndex, positions)));
    if (!(delta <= guideSectorHalfWidth))
        return {};
    return {true, std::sqrt(1.0 - delta / guideSectorHalfWidth)};
}

QPointF overlayCentre(const CameraSettings &settings)
{
    const QPointF centre(settings.centerX, settings.centerY);
    if (!settings.centerOffsetEnabled)
        return centre;
    return centre + QPointF(settings.centerOffsetX, settings.centerOffsetY);
}

} // namespace meridax
