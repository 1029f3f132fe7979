#pragma once

#include "PixelNoise.h"
#include "Presets.h"
#include "RealScene.h"

#include <QPointF>

#include <opencv2/core.hpp>

#include <cstdint>
#include <memory>

namespace meridax::accuracy {

/// What makes a mark hard to find. Grey levels and px of a frame of 640 x 480 px, which is searched
/// as it is.
struct MarkConditions
{
    double noise = 2.0; ///< sigma on the ground, half of its variance from the light
    double defocus = 0.0;
    double contrast = 90.0; ///< between mark and ground, where both are in focus
    double axes = 1.0;      ///< shorter axis of the mark over the longer one
    double diameter = 40.0; ///< of the longer axis
};

/// The simulated camera on a surface nearer to reality, picture by picture. Each picture has
/// another noise, the same on every run.
class MarkCamera
{
public:
    MarkCamera();

    /// Starts anew under these conditions.
    void setUp(const MarkConditions &conditions);
    /// Starts anew with a preset of the simulated camera, in frames of 1280 x 720 px.
    void setUp(const simcam::Preset &preset);

    /// The next grey picture, with the mark at `angle` [deg]; valid until the one after.
    const cv::Mat &shoot(double angle);
    /// The mark in the last picture.
    QPointF mark() const { return m_mark; }
    /// Radius of the mark along its longer axis [px].
    double markRadius() const;
    /// Grey levels between the ground and the middle of the mark, as the blur leaves them.
    double seenContrast() const;
    /// What the camera turns about.
    QPointF centre() const;

private:
    std::unique_ptr<simcam::State> m_state;
    simcam::FrameSize m_size;
    simcam::RealScene m_scene;
    simcam::PixelNoise m_noise;
    simcam::Planes m_planes;
    cv::Mat m_picture;
    QPointF m_mark;
    std::uint32_t m_frame = 0;
};

} // namespace meridax::accuracy
