#include "measurement/BlobAnalysis.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace meridax {
namespace {

/// The upper end of a range that must hold at least one unit above `lower`.
float upperLimit(double wanted, float lower)
{
    const double floor = lower + 1.0;
    return static_cast<float>(wanted > floor ? wanted : floor);
}

float atLeastOne(double value)
{
    return static_cast<float>(value > 1.0 ? value : 1.0);
}

float unitInterval(double value)
{
    return static_cast<float>(value > 0.0 ? std::min(value, 1.0) : 0.0);
}

/// Pixel range [begin, end) of a window about `middle`, within 0..size.
struct WindowRange
{
    int begin = 0;
    int end = 0;

    WindowRange(double middle, double halfWidth, int size)
        : begin(
              static_cast<int>(std::min(std::max(0.0, std::floor(middle - halfWidth)), size - 1.0)))
        , end(static_cast<int>(
              std::min(std::max(begin + 1.0, std::ceil(middle + halfWidth)), 1.0 * size)))
    {
    }

    int length() const { return end - begin; }
};

/// Centroid of the outline in `binary` (white on black) that lies nearest to `wanted`.
std::optional<cv::Point2d> nearestOutline(const cv::Mat &binary, cv::Point2d wanted)
{
    constexpr double smallestArea = 4.0;
    std::vector<std::vector<cv::Point>> contours;
    cv::findContours(binary, contours, cv::RETR_EXTERNAL, cv::CHAIN_APPROX_SIMPLE);

    std::optional<cv::Point2d> nearest;
    double nearestDistance = std::numeric_limits<double>::infinity();
    for (const std::vector<cv::Point> &contour : contours) {
        if (cv::contourArea(contour) < smallestArea)
            continue;
        const cv::Moments moments = cv::moments(contour);
        if (moments.m00 <= 0.0)
            continue;
        const cv::Point2d centroid(moments.m10 / moments.m00, moments.m01 / moments.m00);
        const double distance = std::hypot(centroid.x - wanted.x, centroid.y - wanted.y);
        if (distance < nearestDistance) {
            nearestDistance = distance;
            nearest = centroid;
        }
    }
    return nearest;
}

/// Nearest pixel, halves away from zero. Limited to what the library's fixed-point drawing can
/// take, which is still far outside any image.
cv::Point nearestPixel(double x, double y)
{
    constexpr double limit = 1 << 20;
    const auto rounded = [limit](double value) {
        return static_cast<int>(std::lround(std::min(std::max(-limit, value), limit)));
    };
    return {rounded(x), rounded(y)};
}

} // namespace

cv::SimpleBlobDetector::Params buildDetectorParams(const BlobSettings &settings)
{
    cv::SimpleBlobDetector::Params params;
    params.thresholdStep = 10.0F;
    params.minThreshold = atLeastOne(settings.minThreshold);
    params.maxThreshold = upperLimit(settings.maxThreshold, params.minThreshold);
    params.filterByColor = true;
    params.blobColor = 0;
    params.filterByArea = settings.filterByArea;
    params.minArea = atLeastOne(settings.minArea);
    params.maxArea = upperLimit(settings.maxArea, params.minArea);
    params.filterByCircularity = settings.filterByCircularity;
    params.minCircularity = unitInterval(settings.minCircularity);
    params.filterByInertia = settings.filterByInertia;
    params.minInertiaRatio = unitInterval(settings.minInertiaRatio);
    params.filterByConvexity = false;
    return params;
}

cv::Ptr<cv::SimpleBlobDetector> createBlobDetector(const BlobSettings &settings)
{
    // The library throws on a lower limit of 0. The smallest positive one lets the same blobs pass.
    constexpr float smallest = std::numeric_limits<float>::min();
    cv::SimpleBlobDetector::Params params = buildDetectorParams(settings);
    params.minCircularity = std::max(params.minCircularity, smallest);
    params.minInertiaRatio = std::max(params.minInertiaRatio, smallest);
    // Nothing exceeds the highest grey level, but every threshold above it would cost a step.
    constexpr float highestLevel = 255.0F;
    params.minThreshold = std::min(params.minThreshold, highestLevel);
    params.maxThreshold = std::min(params.maxThreshold, highestLevel);
    return cv::SimpleBlobDetector::create(params);
}

cv::Mat detectionImage(const cv::Mat &grey, cv::Mat &scaled)
{
    if (grey.cols <= detectionColumns)
        return grey;
    const double scale = static_cast<double>(detectionColumns) / grey.cols;
    if (grey.rows * scale < 1.0)
        return {};
    cv::resize(grey, scaled, cv::Size(), scale, scale, cv::INTER_AREA);
    return scaled;
}

std::vector<cv::KeyPoint> detectBlobs(cv::SimpleBlobDetector &detector, const cv::Mat &grey,
                                      cv::Mat &scaled)
{
    std::vector<cv::KeyPoint> keypoints;
    const cv::SimpleBlobDetector::Params params = detector.getParams();
    // One threshold finds nothing, and the library would complain of it at every frame.
    if (params.minThreshold + params.thresholdStep >= params.maxThreshold)
        return keypoints;
    const cv::Mat image = detectionImage(grey, scaled);
    if (image.empty() && !grey.empty())
        return keypoints;
    detector.detect(image, keypoints);
    if (image.cols == grey.cols)
        return keypoints;

    const double scale = static_cast<double>(detectionColumns) / grey.cols;
    const float back = static_cast<float>(1.0 / scale);
    for (cv::KeyPoint &keypoint : keypoints) {
        keypoint.pt *= back;
        keypoint.size *= back;
    }
    return keypoints;
}

cv::Point2d refineBlobCentre(const cv::Mat &grey, const cv::KeyPoint &keypoint)
{
    constexpr int tooShort = 5;
    const cv::Point2d found(keypoint.pt.x, keypoint.pt.y);
    const double reach = std::max(0.9 * keypoint.size, 12.0);
    const WindowRange columns(found.x, reach, grey.cols);
    const WindowRange rows(found.y, reach, grey.rows);
    if (columns.length() <= tooShort || rows.length() <= tooShort)
        return found;

    cv::Mat binary;
    cv::threshold(grey(cv::Range(rows.begin, rows.end), cv::Range(columns.begin, columns.end)),
                  binary, 0.0, 255.0, cv::THRESH_BINARY_INV | cv::THRESH_OTSU);
    const cv::Point2d origin(columns.begin, rows.begin);
    const std::optional<cv::Point2d> centroid = nearestOutline(binary, found - origin);
    if (!centroid)
        return found;
    const cv::Point2d refined = origin + *centroid;
    return std::hypot(refined.x - found.x, refined.y - found.y) > reach ? found : refined;
}

void drawBlobMark(cv::Mat &frame, const cv::KeyPoint &keypoint, const cv::Scalar &colour)
{
    const int radius = static_cast<int>(std::lround(0.55 * keypoint.size));
    cv::circle(frame, nearestPixel(keypoint.pt.x, keypoint.pt.y), radius, colour, 2, cv::LINE_AA);
}

void drawCalibrationResult(cv::Mat &frame, QPointF centre, const cv::Scalar &centreColour,
                           std::span<const QPointF> points, const cv::Scalar &pointColour)
{
    constexpr int thickness = 2;
    constexpr int arm = 24;

    const cv::Point middle = nearestPixel(centre.x(), centre.y());
    const cv::Point across(arm, 0);
    const cv::Point down(0, arm);
    cv::circle(frame, middle, 16, centreColour, thickness, cv::LINE_AA);
    cv::line(frame, middle - across, middle + across, centreColour, thickness, cv::LINE_AA);
    cv::line(frame, middle - down, middle + down, centreColour, thickness, cv::LINE_AA);
    for (const QPointF &point : points)
        cv::circle(frame, nearestPixel(point.x(), point.y()), 8, pointColour, thickness,
                   cv::LINE_AA);
}

} // namespace meridax
