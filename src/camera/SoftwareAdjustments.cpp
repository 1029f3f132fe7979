#include "camera/SoftwareAdjustments.h"

#include <opencv2/imgproc.hpp>

#include <vector>

namespace meridax {

namespace {

constexpr int kNeutralContrast = 50;
constexpr int kNeutralSaturation = 50;

bool levelsAreNeutral(const CameraSettings &camera)
{
    return camera.brightness == 0 && camera.contrast == kNeutralContrast;
}

bool saturationIsNeutral(const CameraSettings &camera)
{
    return camera.saturation == kNeutralSaturation || camera.saturation < 0;
}

} // namespace

bool adjustmentsAreNeutral(const CameraSettings &camera)
{
    return levelsAreNeutral(camera) && saturationIsNeutral(camera);
}

void applySoftwareAdjustments(cv::Mat &bgr, const CameraSettings &camera)
{
    if (!levelsAreNeutral(camera)) {
        const double alpha = camera.contrast > 0 ? camera.contrast / 50.0 : 0.0;
        bgr.convertTo(bgr, -1, alpha, camera.brightness);
    }
    if (!saturationIsNeutral(camera)) {
        cv::Mat hsv;
        cv::cvtColor(bgr, hsv, cv::COLOR_BGR2HSV);
        std::vector<cv::Mat> channels;
        cv::split(hsv, channels);
        channels[1].convertTo(channels[1], -1, camera.saturation / 50.0);
        cv::merge(channels, hsv);
        cv::cvtColor(hsv, bgr, cv::COLOR_HSV2BGR);
    }
}

} // namespace meridax
