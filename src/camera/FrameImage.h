#pragma once

#include <QDateTime>
#include <QImage>

#include <opencv2/core/mat.hpp>

namespace meridax {

/// Order of the colour channels in a three-channel image.
enum class ChannelOrder { Bgr, Rgb };

/// The channels of `bgr` in the given order.
inline cv::Scalar inOrder(const cv::Scalar &bgr, ChannelOrder order)
{
    return order == ChannelOrder::Bgr ? bgr : cv::Scalar(bgr[2], bgr[1], bgr[0]);
}

/// `image` (Format_RGB888) as a CV_8UC3 matrix over the same pixels with the image's own stride.
/// Writing through it needs an image that nobody shares: the call detaches a shared one.
cv::Mat wrapRgbImage(QImage &image);
/// The same for reading only; the pixels must not be written.
cv::Mat wrapRgbImage(const QImage &image);

/// A new Format_RGB888 image with the pixels of an 8-bit BGR matrix; null for an empty matrix.
QImage rgbImageFromBgr(const cv::Mat &bgr);

/// Draws the local time `when` as "HH.mm.ss" into the upper left corner, in frame pixels.
void drawTimeStamp(cv::Mat &image, ChannelOrder order, const QDateTime &when);

} // namespace meridax
