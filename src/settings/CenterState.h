#pragma once

#include "settings/CameraProfile.h"

#include <QMap>
#include <QPointF>
#include <QSize>
#include <QString>

#include <optional>
#include <variant>

namespace meridax {

/// The camera and the resolution in whose pixels a centre is.
struct CenterPlace
{
    QString cameraId;
    QSize resolution;

    bool operator==(const CenterPlace &) const = default;
};

/// Where a centre comes from.
enum class CenterOrigin {
    Middle,   ///< half of the resolution, chosen by nobody
    Set,      ///< by hand, or from a profile that holds no calibration
    Measured, ///< by a calibration with the camera and the resolution of its place
};

/// A centre of one place, in pixels of its resolution.
struct PlacedCenter
{
    QPointF position;
    CenterOrigin origin = CenterOrigin::Middle;
    bool wasCalibrated = false; ///< counted as calibrated when its place was left
    bool restored = false;      ///< the profile has already given what it holds for the place

    bool operator==(const PlacedCenter &) const = default;
};

/// All that decides about the image centre and whether it counts as calibrated. Only
/// `stateAfter()` makes a new one of it, so that `calibrated` never stands over a centre that was
/// not measured with the camera and the resolution of `place`.
struct CenterState
{
    CenterPlace place;
    PlacedCenter center;
    bool calibrated = false;
    bool locked = false;
    bool awaitsCamera = false; ///< calibrated and locked as soon as the camera runs
    QMap<QString, PlacedCenter> elsewhere = {}; ///< of the other places in this run

    bool operator==(const CenterState &) const = default;
};

/// The user starts the camera. `stored` is what its profile says about the place, if it is to be
/// restored at all.
struct CenterStart
{
    std::optional<ResolutionCalibration> stored;
    bool restoresCalibration = false;
};
/// The camera delivers.
struct CenterRun
{
};
/// The camera stopped or did not start.
struct CenterStop
{
};
/// A measured centre is accepted, perhaps for another place than the present one.
struct CenterAccepted
{
    CenterPlace place;
    QPointF position;
};
/// Typed or dragged.
struct CenterSet
{
    QPointF position;
};
/// Another camera or resolution is selected.
struct CenterMoved
{
    CenterPlace place;
    bool cameraChosen = false; ///< by the user; its profile then counts as not restored yet
};
/// The resolution is written without a choice from the camera's list; the position stays.
struct CenterResized
{
    QSize resolution;
};
/// The selected camera is the same, but is known by another id from now on.
struct CenterRenamed
{
    QString cameraId;
};
struct CenterLock
{
    bool locked = false;
};

using CenterEvent = std::variant<CenterStart, CenterRun, CenterStop, CenterAccepted, CenterSet,
                                 CenterMoved, CenterResized, CenterRenamed, CenterLock>;

/// What becomes of centre, calibration and lock.
CenterState stateAfter(CenterState state, const CenterEvent &event);

/// What a profile that holds `stored` for the place may hold from now on: only a measured centre as
/// calibrated, and never the mere middle of the picture in place of a measured one.
ResolutionCalibration storableCenter(const CenterState &state, const ResolutionCalibration &stored);

} // namespace meridax
