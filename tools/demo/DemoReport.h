#pragma once

#include <QPointF>
#include <QString>

/// What one unattended calibration found.
struct DemoReport
{
    QString name;
    QPointF trueCentre; ///< frame px
    QPointF measuredCentre;
    double reportedSigma = 0.0; ///< px per axis
    bool sigmaAssessable = false;
    double framesPerSecond = 0.0;
    QString verdict;
    QString mended;        ///< the detector values that the program offered and set; empty: none
    double maxError = 0.1; ///< px at 1280x720

    double error() const; ///< distance of the two centres, px
    bool passed() const { return error() < maxError; }
    QString line() const;
};
