#include "measurement/FitQuality.h"

#include <QDebug>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace meridax {
namespace {

/// A point as seen from the fitted centre.
struct Residual
{
    double angle = 0.0; ///< rad, -pi..pi
    double value = 0.0; ///< distance from the centre minus the radius, px
};

struct Harmonic
{
    int order = 0;
    double amplitude = 0.0;
};

std::vector<Residual> residualsOf(std::span<const QPointF> points, QPointF centre, double radius)
{
    std::vector<Residual> residuals;
    residuals.reserve(points.size());
    for (const QPointF &point : points) {
        const double dx = point.x() - centre.x();
        const double dy = point.y() - centre.y();
        residuals.push_back({std::atan2(dy, dx), std::sqrt(dx * dx + dy * dy) - radius});
    }
    return residuals;
}

double largestGap(std::span<const Residual> residuals)
{
    std::vector<double> angles;
    angles.reserve(residuals.size());
    for (const Residual &residual : residuals)
        angles.push_back(residual.angle);
    std::sort(angles.begin(), angles.end());

    double gap = angles.front() + 2.0 * std::numbers::pi - angles.back();
    for (std::size_t i = 1; i < angles.size(); ++i)
        gap = std::max(gap, angles[i] - angles[i - 1]);
    return gap * 180.0 / std::numbers::pi;
}

/// Order 1 is left out: a shift of the circle has taken it up. Above order n / 2 the points cannot
/// tell one order from another.
Harmonic strongestHarmonic(std::span<const Residual> residuals)
{
    const int n = static_cast<int>(residuals.size());
    const int highestOrder = n > 13 ? 7 : n / 2;

    Harmonic strongest;
    for (int order = 2; order <= highestOrder; ++order) {
        double a = 0.0;
        double b = 0.0;
        for (const Residual &residual : residuals) {
            a += residual.value * std::cos(order * residual.angle);
            b += residual.value * std::sin(order * residual.angle);
        }
        a *= 2.0 / n;
        b *= 2.0 / n;
        const double amplitude = std::sqrt(a * a + b * b);
        if (amplitude > strongest.amplitude)
            strongest = {order, amplitude};
    }
    return strongest;
}

/// Variance of what remains once the circle, and above five points the strongest harmonic, are
/// taken out. Each takes its degrees of freedom with it: three and two. Needs more than three
/// points.
double randomVariance(int n, double sigma, const Harmonic &harmonic)
{
    const double squares = sigma * sigma * n;
    const double plain = squares / (n - 3);
    if (harmonic.order == 0 || n <= 5)
        return plain;

    // Pure noise shows this squared amplitude in every order; only what exceeds it is form.
    const double noiseFloor = 4.0 * sigma * sigma / n;
    const double excess = harmonic.amplitude * harmonic.amplitude - noiseFloor;
    if (excess <= 0.0)
        return plain;
    const double withoutForm = (squares - 0.5 * excess * n) / (n - 5);
    return withoutForm > 0.0 ? withoutForm : plain;
}

} // namespace

FitQuality analyseFitQuality(std::span<const QPointF> points, QPointF centre, double radius)
{
    const int n = static_cast<int>(points.size());
    if (n <= 2 || !(radius > 0.0))
        return {};

    const std::vector<Residual> residuals = residualsOf(points, centre, radius);
    double squares = 0.0;
    for (const Residual &residual : residuals)
        squares += residual.value * residual.value;
    const double sigma = std::sqrt(squares / n);

    FitQuality quality;
    quality.coverageGapDeg = largestGap(residuals);
    double random = 0.0;
    if (n > 3) {
        const Harmonic harmonic = strongestHarmonic(residuals);
        quality.dominantOrder = harmonic.order;
        quality.dominantAmp = harmonic.amplitude;
        const double variance = randomVariance(n, sigma, harmonic);
        random = variance > 0.0 ? std::sqrt(variance) : 0.0;
    }
    quality.centerSigma = random * std::sqrt(2.0 / n);

    qDebug() << "[Calibration] Messguete:" << n << "Punkte, sigma=" << sigma
             << "px (davon zufaellig" << random << "px)" << "-> Zentrum +/-" << quality.centerSigma
             << "px je Achse;" << "groesste Winkelluecke" << quality.coverageGapDeg << "Grad;"
             << "dominante Ordnung n=" << quality.dominantOrder << "mit" << quality.dominantAmp
             << "px";
    return quality;
}

bool fitResultValid(int n)
{
    return n > 2;
}

bool coveragePoor(int n, double gapDeg)
{
    if (n < 3 || gapDeg <= 0.0)
        return false;
    return gapDeg > 2.0 * (360.0 / n) || gapDeg > 180.0;
}

bool qualityAssessable(int n, double sigma)
{
    return n >= 5 && sigma > 0.0;
}

int qualityLevel(int n, double sigma, double gapDeg)
{
    if (!qualityAssessable(n, sigma))
        return 3;

    int geometry = 0;
    if (coveragePoor(n, gapDeg))
        geometry = 2;
    else if (n == 5)
        geometry = 1;

    int uncertainty = 3;
    if (sigma <= 0.2)
        uncertainty = 0;
    else if (sigma <= 0.5)
        uncertainty = 1;
    else if (sigma <= 1.5)
        uncertainty = 2;
    return std::max(geometry, uncertainty);
}

} // namespace meridax
