#pragma once

#include "measurement/BlobAnalysis.h"

#include <span>
#include <vector>

/// What the blob detector meets before its filters decide. All in pixels of the detection image.
namespace meridax {

/// One outline at one threshold, with the values the detector's filters look at.
struct BlobOutline
{
    double threshold = 0.0;
    cv::Point2d centre;
    double radius = 0.0;
    double area = 0.0;
    double circularity = 0.0;
    double inertia = 0.0;
    bool enclosesDark = false;     ///< a dark region in light ground, away from the border
    std::vector<cv::Point> points; ///< kept for dark regions only
};

/// All outlines of one picture that pass the detector's test for colour, by rising threshold. The
/// thresholds are those of the settings, continued in the same steps over all grey levels.
struct BlobScan
{
    std::vector<BlobOutline> outlines;
    double scale = 1.0;        ///< frame pixels to one detection pixel
    double smallestArea = 0.0; ///< smaller outlines are left out
};

/// Traces the outlines in a detection image. `scale` is what one of its pixels is in frame pixels.
BlobScan scanOutlines(const cv::Mat &image, double scale, const BlobSettings &settings);

/// A blob that the detector reports.
struct FoundBlob
{
    cv::Point2d centre;
    double radius = 0.0;
    int outline = -1; ///< index in the scan of its middle outline
    int outlines = 0; ///< at how many thresholds it shows, by and large
};

/// The outlines that pass the filters of `settings`, as indices.
std::vector<int> passingOutlines(const BlobScan &scan, const BlobSettings &settings);

/// The blobs that the detector finds in the scanned picture with `settings`, whose thresholds must
/// be among those of the scan.
std::vector<FoundBlob> blobsFound(const BlobScan &scan, const BlobSettings &settings);
/// The same where only the outlines of these ascending indices can pass; empty if there are more
/// than `most`.
std::vector<FoundBlob> blobsFound(const BlobScan &scan, std::span<const int> among,
                                  const BlobSettings &settings, size_t most);

} // namespace meridax
