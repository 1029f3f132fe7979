#pragma once

#include "settings/AppSettings.h"

#include <opencv2/core/mat.hpp>

namespace meridax {

/// True when brightness, contrast and saturation of `camera` leave every pixel as it is.
bool adjustmentsAreNeutral(const CameraSettings &camera);

/// Brightness, contrast and saturation applied in place to an 8-bit BGR image, in saturating 8-bit
/// arithmetic. Neutral values are 0, 50 and 50; a contrast of 0 gives black plus brightness.
void applySoftwareAdjustments(cv::Mat &bgr, const CameraSettings &camera);

} // namespace meridax
