#include "measurement/CircleFit.h"

#include <QDebug>

#include <cmath>

namespace meridax {
namespace {

/// Moments of the points about their mean, with z = x^2 + y^2; each a sum divided by n.
struct Moments
{
    QPointF mean;
    double xx = 0.0;
    double yy = 0.0;
    double xy = 0.0;
    double xz = 0.0;
    double yz = 0.0;
    double zz = 0.0;
    double z = 0.0;
    double covariance = 0.0; ///< determinant of the scatter matrix of x and y
};

Moments momentsOf(std::span<const QPointF> points)
{
    const double n = static_cast<double>(points.size());
    Moments m;
    for (const QPointF &point : points)
        m.mean += point;
    m.mean /= n;

    for (const QPointF &point : points) {
        const double x = point.x() - m.mean.x();
        const double y = point.y() - m.mean.y();
        const double z = x * x + y * y;
        m.xx += x * x;
        m.yy += y * y;
        m.xy += x * y;
        m.xz += x * z;
        m.yz += y * z;
        m.zz += z * z;
    }
    for (double *sum : {&m.xx, &m.yy, &m.xy, &m.xz, &m.yz, &m.zz})
        *sum /= n;

    m.z = m.xx + m.yy;
    m.covariance = m.xx * m.yy - m.xy * m.xy;
    return m;
}

/// Points on one line, or fewer than three different ones. Only against the size of its terms does
/// the determinant tell: at the scale of a frame its rounding alone is far above any fixed limit.
bool onOneLine(const Moments &m)
{
    constexpr double kRounding = 1e-14;
    return !(m.covariance > kRounding * m.z * m.z);
}

/// The characteristic polynomial of Taubin's eigenvalue problem. Its smallest root, close to 0 for
/// points near a circle, gives the centre.
struct CharacteristicPolynomial
{
    double a0 = 0.0;
    double a1 = 0.0;
    double a2 = 0.0;
    double a3 = 0.0;

    explicit CharacteristicPolynomial(const Moments &m)
    {
        const double variance = m.zz - m.z * m.z;
        const double cov = m.covariance;
        a3 = 4.0 * m.z;
        a2 = -3.0 * m.z * m.z - m.zz;
        a1 = variance * m.z + 4.0 * cov * m.z - m.xz * m.xz - m.yz * m.yz;
        a0 = m.xz * m.xz * m.yy + m.yz * m.yz * m.xx - m.zz * cov - 2.0 * m.xz * m.yz * m.xy +
             m.z * m.z * cov;
    }

    double value(double t) const { return a0 + t * (a1 + t * (a2 + t * a3)); }
    double slope(double t) const { return a1 + t * (2.0 * a2 + 3.0 * a3 * t); }
};

/// Newton's iteration from 0. A diverging iteration falls back to t = 0, where the centre is that
/// of the algebraic least-squares circle.
double smallestRoot(const CharacteristicPolynomial &polynomial)
{
    constexpr int kMaxSteps = 50;
    constexpr double kRelativeTolerance = 1e-12;
    constexpr double kFlatSlope = 1e-14;

    double t = 0.0;
    double previousValue = 1e20;
    for (int step = 0; step < kMaxSteps; ++step) {
        const double value = polynomial.value(t);
        if (std::abs(value) > std::abs(previousValue)) {
            qWarning() << "[Calibration] Taubin-Newton divergiert, Fallback auf Centroid";
            return 0.0;
        }
        const double slope = polynomial.slope(t);
        if (std::abs(slope) < kFlatSlope)
            return t;

        const double next = t - value / slope;
        const bool converged = std::abs(next) * kRelativeTolerance >= std::abs(next - t);
        t = next;
        if (converged)
            return t;
        previousValue = value;
    }
    return t;
}

} // namespace

CircleFitResult computeCenterFromMeasurements(std::span<const QPointF> points)
{
    if (points.size() <= 2)
        return {};

    const Moments m = momentsOf(points);
    if (onOneLine(m))
        return {};
    const double t = smallestRoot(CharacteristicPolynomial(m));

    constexpr double kSingular = 1e-12;
    const double det = t * t - m.z * t + m.covariance;
    if (!std::isfinite(det) || std::abs(det) < kSingular)
        return {};

    CircleFitResult fit;
    fit.centerX = ((m.yy - t) * m.xz - m.xy * m.yz) / (2.0 * det) + m.mean.x();
    fit.centerY = ((m.xx - t) * m.yz - m.xy * m.xz) / (2.0 * det) + m.mean.y();

    const double n = static_cast<double>(points.size());
    const auto distance = [&fit](const QPointF &point) {
        const double dx = point.x() - fit.centerX;
        const double dy = point.y() - fit.centerY;
        return std::sqrt(dx * dx + dy * dy);
    };
    for (const QPointF &point : points)
        fit.radius += distance(point);
    fit.radius /= n;

    double squares = 0.0;
    for (const QPointF &point : points) {
        const double deviation = distance(point) - fit.radius;
        squares += deviation * deviation;
    }
    fit.stdDev = std::sqrt(squares / n);
    fit.valid = true;

    qDebug() << "[Calibration] Taubin-Fit aus" << points.size() << "Punkten:" << "Center=("
             << fit.centerX << "," << fit.centerY << ")" << "Radius=" << fit.radius
             << "Std=" << fit.stdDev << "px";
    return fit;
}

} // namespace meridax
