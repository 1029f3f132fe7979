#include "MarkCamera.h"

#include <cmath>

namespace meridax::accuracy {
namespace {

using simcam::Param;

constexpr simcam::FrameSize gridSize{640, 480};
constexpr simcam::FrameSize presetSize{1280, 720};
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
    m_size = gridSize;
    const auto set = [this](Param param, double value) {
        m_state->set(param, static_cast<float>(value));
    };
    const double half = conditions.noise / std::sqrt(2.0);
    set(Param::SceneKind, 1.0);
    set(Param::GroundGrey, groundGrey);
    set(Param::MarkGrey, groundGrey - conditions.contrast);
    set(Param::MarkRadius, conditions.diameter / 2.0 / m_size.height);
    set(Param::MarkAxes, conditions.axes);
    set(Param::Defocus, conditions.defocus / m_size.scale());
    set(Param::Grain, 2.0);
    set(Param::PixelNoise, half);
    set(Param::PhotonNoise, half * std::sqrt(128.0 / groundGrey));
}

void MarkCamera::setUp(const simcam::Preset &preset)
{
    m_frame = 0;
    m_size = presetSize;
    for (const auto &[param, value] : simcam::assignmentsOf(preset))
        m_state->set(param, value);
}

const cv::Mat &MarkCamera::shoot(double angle)
{
    m_state->set(Param::Angle, static_cast<float>(angle));
    const simcam::SceneInputs inputs = simcam::sceneInputs(*m_state, m_size, m_frame, 0);
    m_planes = m_scene.draw(inputs);
    m_noise.add(m_planes.y, m_size.width, inputs.noise, m_frame++);
    m_mark = {inputs.mark[0].x, inputs.mark[0].y};
    m_picture = cv::Mat(int(m_size.height), int(m_size.width), CV_8UC1, m_planes.y.data());
    return m_picture;
}

double MarkCamera::markRadius() const
{
    return double(m_state->get(Param::MarkRadius)) * m_size.height;
}

double MarkCamera::seenContrast() const
{
    constexpr double lens = 0.9; // spread of a picture in focus [px]
    const double spread = std::hypot(lens, double(m_state->get(Param::Defocus)) * m_size.scale());
    const double shorter = markRadius() * double(m_state->get(Param::MarkAxes));
    const simcam::DiscMark mark{{}, markRadius(), shorter, 0.0, spread};
    return mark.coverage({}) *
           double(m_state->get(Param::GroundGrey) - m_state->get(Param::MarkGrey));
}

QPointF MarkCamera::centre() const
{
    const simcam::Point centre = simcam::centerOf(*m_state, m_size);
    return {centre.x, centre.y};
}

} // namespace meridax::accuracy
