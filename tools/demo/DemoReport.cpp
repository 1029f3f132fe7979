#include "DemoReport.h"

#include <cmath>

double DemoReport::error() const
{
    const QPointF d = measuredCentre - trueCentre;
    return std::hypot(d.x(), d.y());
}

QString DemoReport::line() const
{
    const auto px = [](QPointF p) {
        return QStringLiteral("(%1, %2)").arg(p.x(), 0, 'f', 3).arg(p.y(), 0, 'f', 3);
    };
    const QString sigma = sigmaAssessable ? QStringLiteral("%1 px").arg(reportedSigma, 0, 'f', 3)
                                          : QStringLiteral("not assessable");
    const QString click =
        mended.isEmpty() ? QString() : QStringLiteral("offered and set: %1; ").arg(mended);
    return QStringLiteral("%1: %2true centre %3, measured %4, error %5 px, reported uncertainty "
                          "%6, \"%7\", %8 frames/s: %9")
        .arg(name, click, px(trueCentre), px(measuredCentre))
        .arg(error(), 0, 'f', 3)
        .arg(sigma, verdict)
        .arg(framesPerSecond, 0, 'f', 1)
        .arg(passed() ? QLatin1StringView("PASS") : QLatin1StringView("FAIL"));
}
