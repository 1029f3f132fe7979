#pragma once

#include <QPointF>

#include <span>

namespace meridax {

/// A circle in frame pixels. Without `valid` no other field has a meaning.
struct CircleFitResult
{
    double centerX = 0.0;
    double centerY = 0.0;
    double radius = 0.0; ///< mean distance of the points from the centre
    double stdDev = 0.0; ///< population standard deviation of these distances
    bool valid = false;

    QPointF center() const { return {centerX, centerY}; }
};

/// Fits a circle to `points` (frame pixels, at least three) by Taubin's method: G. Taubin,
/// "Estimation of Planar Curves, Surfaces and Nonplanar Space Curves Defined by Implicit
/// Equations", IEEE PAMI 13 (1991), in its Newton form on the characteristic polynomial.
///
/// The fit has hardly any bias even on a short arc, and needs no start value. The reported radius
/// and scatter are those of the geometric distances, not the algebraic ones.
///
/// Invalid for fewer than three points, for collinear or coincident ones and for coordinates that
/// are not finite. Nearly collinear points give a valid circle of enormous radius.
CircleFitResult computeCenterFromMeasurements(std::span<const QPointF> points);

} // namespace meridax
