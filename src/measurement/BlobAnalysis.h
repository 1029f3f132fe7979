#pragma once

#include "settings/AppSettings.h"

#include <QPointF>

#include <opencv2/core.hpp>
#include <opencv2/features2d.hpp>

#include <span>
#include <vector>

/// Search for the dark round mark, its exact position, and what is drawn about it.
///
/// Grey images are CV_8UC1, colour images CV_8UC3. Positions are frame pixels at full
/// resolution; the centre of the top left pixel is (0, 0).
namespace meridax {

/// A wider image is searched at this width.
inline constexpr int detectionColumns = 1280;

/// Detector parameters for dark blobs; limits that contradict each other are put in order.
cv::SimpleBlobDetector::Params buildDetectorParams(const BlobSettings &settings);

/// A detector for `settings`. It takes every setting that buildDetectorParams() takes, also a
/// lower limit of 0 for circularity or inertia, which the library itself refuses, and thresholds
/// of any size without searching beyond the grey levels there are.
cv::Ptr<cv::SimpleBlobDetector> createBlobDetector(const BlobSettings &settings);

/// What the detector searches: `grey` itself, or its reduction to 1280 columns in `scaled`, kept by
/// the caller between frames. Empty where nothing would be left of the height.
cv::Mat detectionImage(const cv::Mat &grey, cv::Mat &scaled);

/// Finds the blobs in `grey`. An image wider than 1280 columns is searched at that width, so that
/// the areas of the settings mean pixels of the reduced image; the keypoints are always in full
/// resolution. `scaled` is the buffer of detectionImage().
///
/// A range that holds a single threshold finds nothing, since a blob has to show at two. Neither
/// does an image so flat that it would lose its only row.
std::vector<cv::KeyPoint> detectBlobs(cv::SimpleBlobDetector &detector, const cv::Mat &grey,
                                      cv::Mat &scaled);

/// The sub-pixel centre of the dark blob at `keypoint`: centroid of its outline in a window of
/// `grey`, binarised by Otsu's method. Gives the position of the keypoint itself where the window
/// is too small or holds no outline near enough.
cv::Point2d refineBlobCentre(const cv::Mat &grey, const cv::KeyPoint &keypoint);

/// Draws the ring about one blob; `colour` in the channel order of the frame.
void drawBlobMark(cv::Mat &frame, const cv::KeyPoint &keypoint, const cv::Scalar &colour);

/// Draws the fitted centre as a ring with crosshair, and a ring about each measured point, in
/// colours of the frame's channel order. Whatever lies outside the image is left out, however far
/// away.
void drawCalibrationResult(cv::Mat &frame, QPointF centre, const cv::Scalar &centreColour,
                           std::span<const QPointF> points, const cv::Scalar &pointColour);

} // namespace meridax
