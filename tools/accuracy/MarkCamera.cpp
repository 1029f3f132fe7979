#include "MarkCamera.h"

#include <cmath>

namespace meridax::accuracy {
namespace {

using simcam::Param;

constexpr simcam::FrameSize frameSize{640, 480};
constexpr double groundGrey = 110.0;

} // namespace

MarkCamera::MarkCamera()
    : m_state(std::make_unique<simcam::State>())
{
    simcam::setDefaults(*m_state);
}

void MarkCamera::setUp(const MarkConditions &conditions)
{
    m_frame = 0;
    const auto set = [this](Param param, double value) {
        m_state->set(param, static_cast<float>(value));
    };
    const double half = conditions.noise / std::sqrt(2.0);
    set(Param::SceneKind, 1.0);
    set(Param::GroundGrey, groundGrey);
    set(Param::MarkGrey, groundGrey - conditions.contrast);
    set(Param::MarkRadius, conditions.diameter / 2.0 / frameSize.height);
    set(Param::MarkAxes, conditions.axes);
    set(Param::Defocus, conditions.defocus / frameSize.scale());
    set(Param::Grain, 2.0);
    set(Param::PixelNoise, half);
    set(Param::PhotonNoise, half * std::sqrt(128.0 / groundGrey));
}

const cv::Mat &MarkCamera::shoot(double angle)
{
    m_state->set(Param::Angle, static_cast<float>(angle));
    const simcam::SceneInputs inputs = simcam::sceneInputs(*m_state, frameSize, m_frame, 0);
    m_planes = m_scene.draw(inputs);
    m_noise.add(m_planes.y, frameSize.width, inputs.noise, m_frame++);
    m_mark = {inputs.mark[0].x, inputs.mark[0].y};
    m_picture = cv::Mat(int(frameSize.height), int(frameSize.width), CV_8UC1, m_planes.y.data());
    return m_picture;
}

QPointF MarkCamera::centre() const
{
    const simcam::Point centre = simcam::centerOf(*m_state, frameSize);
    return {centre.x, centre.y};
}

} // namespace meridax::accuracy
