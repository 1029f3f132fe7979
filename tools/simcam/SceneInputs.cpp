#include "SceneInputs.h"

#include <cmath>
#include <numbers>

namespace meridax::simcam {

namespace {

Surface surfaceOf(const State &state, FrameSize size, double angle, Point mark)
{
    Surface surface;
    const double radius = double(state.get(Param::Radius)) * size.height;
    const double turn = angle * std::numbers::pi / 180;
    surface.origin = {mark.x - radius * std::cos(turn), mark.y - radius * std::sin(turn)};
    surface.angle = angle;
    surface.groundGrey = state.get(Param::GroundGrey);
    surface.markAxes = state.get(Param::MarkAxes);
    surface.lightFall = state.get(Param::LightFall);
    surface.vignetting = state.get(Param::Vignetting);
    surface.grain = state.get(Param::Grain);
    surface.dust = static_cast<unsigned>(state.get(Param::Dust));
    return surface;
}

} // namespace

SceneInputs sceneInputs(const State &state, FrameSize size, std::uint32_t frame,
                        std::uint32_t nowMs)
{
    SceneInputs in;
    const Turn turn = turnAt(state, nowMs);
    in.markRadius = double(state.get(Param::MarkRadius)) * size.height;
    in.markGrey = state.get(Param::MarkGrey);
    in.picture = pictureOf(state);
    in.noise.read = double(state.get(Param::PixelNoise)) * in.picture.gain;

    double form = 0;
    for (int k = kFirstFormOrder; k <= kLastFormOrder; ++k)
        form += std::fabs(
            double(state.get(static_cast<Param>(int(Param::Form2) + k - kFirstFormOrder))));
    const double jitter = 3 * double(state.get(Param::DwellNoise) + state.get(Param::FrameNoise));
    in.ground = {size, centerOf(state, size), double(state.get(Param::Radius)) * size.height,
                 1.6 * in.markRadius + (form + jitter + 10) * size.scale()};

    in.marks = static_cast<unsigned>(state.get(Param::Marks));
    const Point noise = positionNoise(state, size, turn.dwell, frame);
    const auto markAt = [&](double angle) {
        const Point p = markPosition(state, size, angle);
        return Point{p.x + noise.x, p.y + noise.y};
    };
    for (unsigned i = 0; i < in.marks; ++i)
        in.mark[i] = markAt(turn.angle + i * kSecondMark);

    in.isReal = state.isOn(Param::SceneKind);
    if (in.isReal) {
        in.surface = surfaceOf(state, size, turn.angle, markAt(turn.angle));
        in.picture.exposure *= double(state.get(Param::Light));
        // The gain makes both noises larger, but a signal of less light has less of that of light.
        in.noise.photons = double(state.get(Param::PhotonNoise)) * std::sqrt(in.picture.gain);
    }
    return in;
}

} // namespace meridax::simcam
