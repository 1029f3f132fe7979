#pragma once

#include <opencv2/core.hpp>

#include <optional>

namespace meridax {

/// Sharpness of the square window of half side `halfSize` px about (x, y) in `frame`, which
/// `greyConversion` (cv::COLOR_BGR2GRAY, cv::COLOR_RGB2GRAY) turns to grey: the variance of the
/// Laplacian over 1 + the mean brightness, so that a change of exposure weighs less. The window is
/// cut at the frame's edge; no value when 7 px or less are left.
///
/// Variance of the Laplacian: J. L. Pech-Pacheco et al., ICPR 2000.
std::optional<double> focusSharpness(const cv::Mat &frame, int greyConversion, int x, int y,
                                     int halfSize);

} // namespace meridax
