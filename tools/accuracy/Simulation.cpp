#include "Simulation.h"

#include "measurement/GuideGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax::accuracy {
namespace {

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

} // namespace

std::vector<double> guidedAngles(int positions, double spanDeg, double freedomDeg,
                                 RandomNumbers &random)
{
    const double spacing = spanDeg < 360.0 ? spanDeg / (positions - 1) : guideSpacing(positions);
    const double freedom = std::min(freedomDeg, spacing / 2.0);
    std::vector<double> angles;
    for (int i = 0; i < positions; ++i)
        angles.push_back(guideAngle(0, positions) - i * spacing +
                         random.uniform(-freedom, freedom));
    return angles;
}

Circle randomCircle(std::vector<double> angles, Range radius, RandomNumbers &random)
{
    Circle circle;
    circle.centre = {random.uniform(1400.0, 1864.0), random.uniform(1050.0, 1398.0)};
    circle.radius = random.uniform(radius.low, radius.high);
    const double turn = random.uniform(0.0, 360.0);
    for (double &angle : angles)
        angle += turn;
    circle.angles = std::move(angles);
    return circle;
}

std::vector<QPointF> measure(const Circle &circle, const Form &form, double sigma,
                             RandomNumbers &random)
{
    std::vector<QPointF> points;
    for (const double angle : circle.angles) {
        const double deviation =
            form.amplitude * std::cos(radians(form.order * angle - form.phaseDeg));
        const double radius = circle.radius + deviation;
        const double noiseX = sigma * random.normal();
        const double noiseY = sigma * random.normal();
        points.push_back(circle.centre + QPointF(radius * std::cos(radians(angle)) + noiseX,
                                                 radius * std::sin(radians(angle)) + noiseY));
    }
    return points;
}

CentreBound centreBound(const std::vector<double> &angles, double sigma)
{
    const double n = static_cast<double>(angles.size());
    double c = 0.0;
    double s = 0.0;
    double cc = 0.0;
    double ss = 0.0;
    double cs = 0.0;
    for (const double angle : angles) {
        const double cosine = std::cos(radians(angle));
        const double sine = std::sin(radians(angle));
        c += cosine;
        s += sine;
        cc += cosine * cosine;
        ss += sine * sine;
        cs += cosine * sine;
    }
    // What the unknown radius leaves of the information on x and y.
    const double xx = cc - c * c / n;
    const double yy = ss - s * s / n;
    const double xy = cs - c * s / n;
    const double det = xx * yy - xy * xy;
    return {sigma * std::sqrt(yy / det), sigma * std::sqrt(xx / det)};
}

} // namespace meridax::accuracy
