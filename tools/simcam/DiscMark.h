#pragma once

#include "Geometry.h"

#include <vector>

namespace meridax::simcam {

/// An elliptic mark out of focus: each point of it is spread over a disc.
struct DiscMark
{
    Point middle;     ///< [px]
    double longer;    ///< semi-axes [px]
    double shorter;   ///< [px]
    double direction; ///< of the longer axis [deg]
    double spread;    ///< radius of the disc [px]

    /// Distance from the middle beyond which nothing of the mark is seen [px].
    double reach() const { return longer + spread; }
    /// Share of the mark at a point of the frame: the part of the disc about it that the ellipse
    /// covers. Symmetric about the middle, so that this is the centroid.
    double coverage(Point p) const;
};

} // namespace meridax::simcam
