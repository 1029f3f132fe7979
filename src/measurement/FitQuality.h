#pragma once

#include <QPointF>

#include <span>

namespace meridax {

/// How well the centre of a fitted circle is known, and what the form of the path is.
/// Everything is zero unless computed.
struct FitQuality
{
    double centerSigma = 0.0;    ///< standard uncertainty of the centre per axis, px
    double coverageGapDeg = 0.0; ///< largest angular gap between neighbouring points, deg
    int dominantOrder = 0;       ///< strongest harmonic of the residuals, 2..7; 0 = none
    double dominantAmp = 0.0;    ///< its amplitude, px
};

/// Separates the scatter of `points` about the circle (`centre`, `radius`; frame pixels) into a
/// random part and a form part, and derives the uncertainty of the centre from the random part
/// alone: harmonics of order 2 and above cancel over a full turn and leave the centre in place.
///
/// The uncertainty is that of points spread evenly over the full turn, random part * sqrt(2 / n).
/// With three points it is 0, since three points leave nothing over to judge by. All fields are
/// zero for fewer than three points or a radius that is not positive.
FitQuality analyseFitQuality(std::span<const QPointF> points, QPointF centre, double radius);

/// Whether `n` points are enough for a circle.
bool fitResultValid(int n);

/// Whether `n` points with the largest gap `gapDeg` leave too much of the turn uncovered: more than
/// twice the even spacing, or more than half a turn.
bool coveragePoor(int n, double gapDeg);

/// Whether the uncertainty `sigma` (px) of a centre from `n` points says anything. Below five
/// points form and noise cannot be told apart.
bool qualityAssessable(int n, double sigma);

/// Rates a centre from 0 (excellent) over 1 (good) and 2 (usable) to 3 (inaccurate or not
/// assessable). The worse of geometry and uncertainty `sigma` (px) decides.
int qualityLevel(int n, double sigma, double gapDeg);

} // namespace meridax
