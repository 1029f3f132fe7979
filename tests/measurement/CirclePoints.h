#pragma once

#include <QPointF>

#include <cmath>
#include <numbers>
#include <vector>

namespace meridax::testing {

inline QPointF polar(QPointF centre, double radius, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180.0;
    return centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
}

/// `n` points that begin at `firstDeg` and lie `stepDeg` apart. `deviation(i, angle in rad)` is
/// added to the radius of point i.
template <typename Deviation>
std::vector<QPointF> circlePoints(int n, QPointF centre, double radius, double firstDeg,
                                  double stepDeg, Deviation deviation)
{
    std::vector<QPointF> points;
    for (int i = 0; i < n; ++i) {
        const double degrees = firstDeg + i * stepDeg;
        const double angle = degrees * std::numbers::pi / 180.0;
        points.push_back(polar(centre, radius + deviation(i, angle), degrees));
    }
    return points;
}

} // namespace meridax::testing
