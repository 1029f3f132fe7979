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
    return QStringLiteral("%1: true centre %2, measured %3, error %4 px, reported uncertainty %5, "
                          "\"%6\", %7 frames/s: %8")
        .arg(name, px(trueCentre), px(measuredCentre))
        .arg(error(), 0, 'f', 3)
        .arg(sigma, verdict)
        .arg(framesPerSecond, 0, 'f', 1)
        .arg(passed() ? QLatin1StringView("PASS") : QLatin1StringView("FAIL"));
}
