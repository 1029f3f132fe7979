#include "settings/CenterState.h"

#include <utility>

namespace meridax {

namespace {

QString keyOf(const CenterPlace &place)
{
    return place.cameraId + QLatin1Char('@') + resolutionKey(place.resolution);
}

QPointF middleOf(const QSize &resolution)
{
    return {resolution.width() * 0.5, resolution.height() * 0.5};
}

/// What stands is no longer counted as calibrated; the lock fell for it or is the user's own.
void invalidate(CenterState &state)
{
    state.calibrated = false;
    state.awaitsCamera = false;
    state.center.wasCalibrated = false;
}

void leavePlace(CenterState &state)
{
    PlacedCenter left = state.center;
    left.wasCalibrated = left.wasCalibrated || state.calibrated;
    state.elsewhere.insert(keyOf(state.place), left);
    if (state.calibrated)
        state.locked = false;
    state.calibrated = false;
    state.awaitsCamera = false;
}

void apply(CenterState &state, const CenterStart &event)
{
    PlacedCenter &center = state.center;
    state.awaitsCamera = center.wasCalibrated;
    if (!event.stored || center.restored)
        return;
    center.restored = true;
    const ResolutionCalibration &stored = *event.stored;
    if (stored.calibrated) {
        center.position = {stored.centerX, stored.centerY};
        center.origin = CenterOrigin::Measured;
        state.awaitsCamera = state.awaitsCamera || event.restoresCalibration;
    } else if (center.origin != CenterOrigin::Measured) {
        const bool known = stored.centerX > 0 && stored.centerY > 0;
        center.position =
            known ? QPointF(stored.centerX, stored.centerY) : middleOf(state.place.resolution);
        center.origin = known ? CenterOrigin::Set : CenterOrigin::Middle;
    }
}

void apply(CenterState &state, const CenterRun & /*event*/)
{
    if (!state.awaitsCamera)
        return;
    state.awaitsCamera = false;
    state.center.wasCalibrated = false;
    state.calibrated = true;
    state.locked = true;
}

void apply(CenterState &state, const CenterStop & /*event*/)
{
    state.awaitsCamera = false;
}

void apply(CenterState &state, const CenterAccepted &event)
{
    if (event.place != state.place) {
        PlacedCenter &other = state.elsewhere[keyOf(event.place)];
        other.position = event.position;
        other.origin = CenterOrigin::Measured;
        other.wasCalibrated = true;
        return;
    }
    invalidate(state);
    state.center.position = event.position;
    state.center.origin = CenterOrigin::Measured;
    state.calibrated = true;
    state.locked = true;
}

void apply(CenterState &state, const CenterSet &event)
{
    if (event.position == state.center.position)
        return;
    invalidate(state);
    state.center.position = event.position;
    state.center.origin = CenterOrigin::Set;
}

void apply(CenterState &state, const CenterMoved &event)
{
    if (event.place == state.place)
        return;
    const bool otherCamera = event.place.cameraId != state.place.cameraId;
    const bool hadCamera = !state.place.cameraId.isEmpty();
    leavePlace(state);
    if (otherCamera && hadCamera)
        state.locked = false;
    if (otherCamera && event.cameraChosen) {
        for (PlacedCenter &center : state.elsewhere)
            center.restored = false;
    }
    state.place = event.place;
    const QSize &resolution = event.place.resolution;
    const QPointF untouched = resolution.isEmpty() ? state.center.position : middleOf(resolution);
    state.center = state.elsewhere.value(keyOf(event.place), {.position = untouched});
}

void apply(CenterState &state, const CenterResized &event)
{
    if (event.resolution == state.place.resolution)
        return;
    PlacedCenter center = state.center;
    leavePlace(state);
    state.place.resolution = event.resolution;
    // In the pixels of another resolution the position is worth no more than one set by hand.
    if (center.origin == CenterOrigin::Measured)
        center.origin = CenterOrigin::Set;
    state.center = {.position = center.position, .origin = center.origin};
    const PlacedCenter known = state.elsewhere.value(keyOf(state.place));
    if (known.position == center.position)
        state.center = known;
}

void apply(CenterState &state, const CenterRenamed &event)
{
    const QString before = state.place.cameraId + QLatin1Char('@');
    const QMap<QString, PlacedCenter> known = std::exchange(state.elsewhere, {});
    for (auto center = known.begin(); center != known.end(); ++center) {
        const QString &key = center.key();
        const bool same = key.startsWith(before);
        state.elsewhere.insert(
            same ? event.cameraId + QLatin1Char('@') + key.sliced(before.size()) : key, *center);
    }
    state.place.cameraId = event.cameraId;
}

void apply(CenterState &state, const CenterLock &event)
{
    state.locked = event.locked;
}

} // namespace

CenterState stateAfter(CenterState state, const CenterEvent &event)
{
    std::visit([&state](const auto &happened) { apply(state, happened); }, event);
    return state;
}

ResolutionCalibration storableCenter(const CenterState &state, const ResolutionCalibration &stored)
{
    const PlacedCenter &center = state.center;
    if (center.origin == CenterOrigin::Middle && stored.calibrated)
        return stored;
    return {center.position.x(), center.position.y(), center.origin == CenterOrigin::Measured};
}

} // namespace meridax
