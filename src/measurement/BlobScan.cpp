#include "measurement/BlobScan.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridax {
namespace {

/// What is smaller is a speck of noise: nobody marks a centre with it.
constexpr double kSpeckArea = 20.0;
/// A picture of nothing but specks has to be gone through in bounded time.
constexpr size_t kOutlinesPerThreshold = 2000;

double inertiaRatio(const cv::Moments &moments)
{
    constexpr double round = 1e-2;
    const double sum = moments.mu20 + moments.mu02;
    const double difference = std::hypot(2.0 * moments.mu11, moments.mu20 - moments.mu02);
    return difference > round ? (sum - difference) / (sum + difference) : 1.0;
}

double medianDistance(const std::vector<cv::Point> &points, cv::Point2d centre)
{
    std::vector<double> distances;
    distances.reserve(points.size());
    for (const cv::Point &point : points)
        distances.push_back(std::hypot(point.x - centre.x, point.y - centre.y));
    const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
    std::nth_element(distances.begin(), middle, distances.end());
    return distances.size() % 2 ? *middle
                                : (*middle + *std::max_element(distances.begin(), middle)) / 2.0;
}

/// Adds the outlines at one threshold to the scan.
void traceAt(double threshold, const cv::Mat &image, BlobScan &scan)
{
    cv::Mat binary;
    cv::threshold(image, binary, threshold, 255.0, cv::THRESH_BINARY);
    std::vector<std::vector<cv::Point>> contours;
    cv::findContours(binary, contours, cv::RETR_LIST, cv::CHAIN_APPROX_NONE);

    // No outline encloses more than that; the test saves the moments of all the specks.
    const auto mayEnclose = [](size_t points) {
        return static_cast<double>(points * points) / (4.0 * std::numbers::pi) * 2.0;
    };
    size_t kept = 0;
    for (std::vector<cv::Point> &points : contours) {
        if (mayEnclose(points.size()) < scan.smallestArea || kept == kOutlinesPerThreshold)
            continue;
        const cv::Moments moments = cv::moments(points);
        if (moments.m00 < scan.smallestArea || moments.m00 == 0.0)
            continue;
        const cv::Point2d centre(moments.m10 / moments.m00, moments.m01 / moments.m00);
        if (binary.at<uchar>(cvRound(centre.y), cvRound(centre.x)) != 0)
            continue;
        const double perimeter = cv::arcLength(points, true);
        BlobOutline outline;
        outline.threshold = threshold;
        outline.centre = centre;
        outline.radius = medianDistance(points, centre);
        outline.area = moments.m00;
        outline.circularity =
            4.0 * std::numbers::pi * moments.m00 / std::max(perimeter * perimeter, 1e-9);
        outline.inertia = inertiaRatio(moments);
        // The outline of a hole turns the other way round than that of an island.
        outline.enclosesDark = cv::contourArea(points, true) > 0.0;
        if (outline.enclosesDark)
            outline.points = std::move(points);
        scan.outlines.push_back(std::move(outline));
        ++kept;
    }
}

bool passes(const BlobOutline &outline, const cv::SimpleBlobDetector::Params &params)
{
    return outline.threshold >= params.minThreshold && outline.threshold < params.maxThreshold &&
           (!params.filterByArea ||
            (outline.area >= params.minArea && outline.area < params.maxArea)) &&
           (!params.filterByCircularity || outline.circularity >= params.minCircularity) &&
           (!params.filterByInertia || outline.inertia >= params.minInertiaRatio);
}

} // namespace

BlobScan scanOutlines(const cv::Mat &image, double scale, const BlobSettings &settings)
{
    BlobScan scan;
    scan.scale = scale;
    const cv::SimpleBlobDetector::Params params = buildDetectorParams(settings);
    scan.smallestArea = params.filterByArea && params.minArea > kSpeckArea ? kSpeckArea : 3.0;
    if (image.empty())
        return scan;

    double darkest = 0.0;
    double lightest = 0.0;
    cv::minMaxLoc(image, &darkest, &lightest);
    const double step = params.thresholdStep;
    const double first =
        params.minThreshold - std::floor((params.minThreshold - 1.0) / step) * step;
    double threshold = first;
    while (threshold < lightest) {
        if (threshold >= darkest)
            traceAt(threshold, image, scan);
        threshold += step;
    }
    return scan;
}

std::vector<int> passingOutlines(const BlobScan &scan, const BlobSettings &settings)
{
    const cv::SimpleBlobDetector::Params params = buildDetectorParams(settings);
    std::vector<int> passing;
    for (size_t i = 0; i < scan.outlines.size(); ++i) {
        if (passes(scan.outlines[i], params))
            passing.push_back(static_cast<int>(i));
    }
    return passing;
}

std::vector<FoundBlob> blobsFound(const BlobScan &scan, const BlobSettings &settings)
{
    return blobsFound(scan, passingOutlines(scan, settings), settings, scan.outlines.size());
}

std::vector<FoundBlob> blobsFound(const BlobScan &scan, std::span<const int> among,
                                  const BlobSettings &settings, size_t most)
{
    const cv::SimpleBlobDetector::Params params = buildDetectorParams(settings);
    // As the detector gathers them: outlines about the same place are one blob, in order of size.
    std::vector<std::vector<int>> blobs;
    size_t known = 0; // blobs of the thresholds before
    size_t repeated = 0;
    double threshold = -1.0;
    for (const int i : among) {
        const BlobOutline &outline = scan.outlines[i];
        if (!passes(outline, params))
            continue;
        if (outline.threshold != threshold) {
            threshold = outline.threshold;
            known = blobs.size();
        }
        const auto isSame = [&](const std::vector<int> &blob) {
            const BlobOutline &middle = scan.outlines[blob[blob.size() / 2]];
            const double distance = cv::norm(middle.centre - outline.centre);
            return distance < params.minDistBetweenBlobs || distance < middle.radius ||
                   distance < outline.radius;
        };
        const auto end = blobs.begin() + static_cast<std::ptrdiff_t>(known);
        const auto same = std::find_if(blobs.begin(), end, isSame);
        if (same == end) {
            blobs.push_back({i});
            continue;
        }
        const auto place = std::upper_bound(same->begin(), same->end(), i, [&scan](int a, int b) {
            return scan.outlines[a].radius < scan.outlines[b].radius;
        });
        same->insert(place, i);
        if (same->size() == params.minRepeatability && ++repeated > most)
            return {};
    }

    std::vector<FoundBlob> found;
    for (const std::vector<int> &blob : blobs) {
        if (blob.size() < params.minRepeatability)
            continue;
        const int middle = blob[blob.size() / 2];
        found.push_back({scan.outlines[middle].centre, scan.outlines[middle].radius, middle,
                         static_cast<int>(blob.size())});
    }
    return found;
}

} // namespace meridax
