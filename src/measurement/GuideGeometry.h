#pragma once

#include "settings/AppSettings.h"

#include <QPointF>
#include <QSize>

/// The sectors that guide the user around the turn. Angles are in degrees in frame coordinates:
/// 0 to the right, growing clockwise on the screen. Fewer than three positions count as three.
namespace meridax {

/// Half width of a guide sector, deg.
inline constexpr double guideSectorHalfWidth = 12.0;

/// Angle between neighbouring positions, deg.
double guideSpacing(int positions);

/// Nominal angle of position `guideIndex` (0-based), deg, not wrapped: position 0 lies at the upper
/// right, the next ones follow counter-clockwise on the screen.
double guideAngle(int guideIndex, int positions);

/// Where a blob lies with regard to a guide sector.
struct SectorState
{
    bool inSector = false;
    double alignment = 0.0; ///< 1 on the middle line of the sector, 0 at its edge and outside

    bool operator==(const SectorState &) const = default;
};

/// Tests a blob against the sector of position `guideIndex`. Too close to the centre of the sector
/// (5 % of the smaller side of `frame`, at least 20 px) the angle means nothing and the blob is
/// outside. All lengths in frame pixels.
SectorState evaluateSector(QPointF blob, QPointF sectorCentre, QSize frame, int guideIndex,
                           int positions);

/// How far from the sector of position `guideIndex` a blob lies, deg; 0 within it.
double sectorDistance(QPointF blob, QPointF sectorCentre, int guideIndex, int positions);

/// The centre of the overlay and of the guide sectors in frame pixels, with the offset if enabled.
QPointF overlayCentre(const CameraSettings &settings);

} // namespace meridax
