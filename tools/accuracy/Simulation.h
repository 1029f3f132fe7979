#pragma once

#include "RandomNumbers.h"

#include <QPointF>

#include <vector>

/// Measured circles whose true centre is known. Lengths in px, angles in deg.
namespace meridax::accuracy {

/// A harmonic of the path: `amplitude` * cos(order * angle - phase).
struct Form
{
    int order = 0;
    double amplitude = 0.0;
    double phaseDeg = 0.0;
};

struct Range
{
    double low = 0.0;
    double high = 0.0;
};

/// A path with the positions at which it is measured.
struct Circle
{
    QPointF centre;
    double radius = 0.0;
    std::vector<double> angles;
};

/// Angles as the guide leads to them, `positions` of them over `spanDeg`: a full turn at 360, else
/// an arc from its first to its last position. Each lies anywhere within `freedomDeg` of its
/// nominal angle, yet never beyond the middle between two positions.
std::vector<double> guidedAngles(int positions, double spanDeg, double freedomDeg,
                                 RandomNumbers &random);

/// A circle about the middle of a frame of 3264 x 2448 px, turned at random.
Circle randomCircle(std::vector<double> angles, Range radius, RandomNumbers &random);

/// The points of `circle` with `form`, each shifted by normal noise of `sigma` per axis.
std::vector<QPointF> measure(const Circle &circle, const Form &form, double sigma,
                             RandomNumbers &random);

/// Smallest standard deviations that any unbiased estimate of the centre can have.
struct CentreBound
{
    double x = 0.0;
    double y = 0.0;
};

/// The Cramer-Rao bound for points at `angles` with noise `sigma` per axis. With the unknown angle
/// of each point eliminated, the Fisher information of (x, y, radius) is the sum of g g^T / sigma^2
/// over g = (cos, sin, 1). On an even full turn both are sigma * sqrt(2 / n).
CentreBound centreBound(const std::vector<double> &angles, double sigma);

} // namespace meridax::accuracy
