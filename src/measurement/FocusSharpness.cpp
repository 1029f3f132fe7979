#include "measurement/FocusSharpness.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace meridax {

namespace {

constexpr int kTooNarrow = 7;

cv::Range windowRange(int centre, int halfSize, int size)
{
    const auto inside = [size](int value) { return std::min(std::max(value, 0), size - 1); };
    return {inside(centre - halfSize), inside(centre + halfSize)};
}

} // namespace

std::optional<double> focusSharpness(const cv::Mat &frame, int greyConversion, int x, int y,
                                     int halfSize)
{
    const cv::Range columns = windowRange(x, halfSize, frame.cols);
    const cv::Range rows = windowRange(y, halfSize, frame.rows);
    if (columns.size() <= kTooNarrow || rows.size() <= kTooNarrow)
        return std::nullopt;

    cv::Mat grey;
    cv::cvtColor(frame(rows, columns), grey, greyConversion);
    cv::Mat laplacian;
    cv::Laplacian(grey, laplacian, CV_64F);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(laplacian, mean, deviation);
    return deviation[0] * deviation[0] / (1.0 + cv::mean(grey)[0]);
}

} // namespace meridax
