#pragma once

#include "measurement/BlobScan.h"

#include <QPointF>

/// The candidates for the mark in a picture, and what each of them lacks to be found.
///
/// Positions and lengths are frame pixels at full resolution; areas are in pixels squared of the
/// detection image, as in BlobSettings.
namespace meridax {

/// Where a candidate fails.
enum class BlobFilter { MinArea, MaxArea, Circularity, Inertia, MinThreshold, MaxThreshold };

/// A filter that rejects a candidate: its value and what the settings ask for.
struct BlobShortfall
{
    BlobFilter filter = BlobFilter::Circularity;
    double value = 0.0;
    double limit = 0.0;

    bool operator==(const BlobShortfall &) const = default;
};

/// A dark region that shows at two thresholds or more.
struct BlobCandidate
{
    QPointF centre;
    double radius = 0.0; ///< frame px
    double area = 0.0;
    double circularity = 0.0;
    double inertia = 0.0;
    double darkness = 0.0; ///< grey levels below the surroundings
    double missing = 0.0;  ///< sum of what the filters miss, relative; 0: it passes
    double distance = 0.0; ///< from what a mark that is found looks like; ranks the candidates
    std::vector<BlobShortfall> shortfalls;
    std::vector<QPointF> outline; ///< frame px, closed, thinned for drawing
    std::vector<int> chain;       ///< its outlines in the scan, least missing first
};

/// Why a picture shows no candidate at all.
enum class PictureFault { TooDark, TooBright, NoContrast, OutOfFocus, NoDarkSpot };

/// The candidates of a scan, the one that lacks least first. `image` is what was scanned.
std::vector<BlobCandidate> candidatesOf(const BlobScan &scan, const cv::Mat &image,
                                        const BlobSettings &settings);

/// A single outline of the scan in the same words.
BlobCandidate describeOutline(const BlobScan &scan, int outline, const cv::Mat &image,
                              const BlobSettings &settings);

/// Both steps for a frame at full resolution.
std::vector<BlobCandidate> findCandidates(const cv::Mat &grey, const BlobSettings &settings);

/// The filters of `settings` that reject an outline with these values.
std::vector<BlobShortfall> shortfallsOf(const BlobOutline &outline, const BlobSettings &settings);

/// How much is missing to pass, as one number to compare by.
double missingOf(const std::vector<BlobShortfall> &shortfalls);

/// What a picture without candidates lacks.
PictureFault pictureFault(const cv::Mat &image);

} // namespace meridax
