#include "camera/FrameImage.h"

#include <opencv2/imgproc.hpp>

namespace meridax {

cv::Mat wrapRgbImage(QImage &image)
{
    return {image.height(), image.width(), CV_8UC3, image.bits(),
            static_cast<size_t>(image.bytesPerLine())};
}

cv::Mat wrapRgbImage(const QImage &image)
{
    // cv::Mat has no constant form; the caller promises not to write.
    return {image.height(), image.width(), CV_8UC3, const_cast<uchar *>(image.constBits()),
            static_cast<size_t>(image.bytesPerLine())};
}

QImage rgbImageFromBgr(const cv::Mat &bgr)
{
    if (bgr.empty())
        return {};
    QImage image(bgr.cols, bgr.rows, QImage::Format_RGB888);
    if (image.isNull())
        return {};
    cv::Mat rgb = wrapRgbImage(image);
    cv::cvtColor(bgr, rgb, cv::COLOR_BGR2RGB);
    return image;
}

void drawTimeStamp(cv::Mat &image, ChannelOrder order, const QDateTime &when)
{
    const cv::Scalar yellow = inOrder({0, 255, 255}, order);
    cv::putText(image, when.toString(QStringLiteral("HH.mm.ss")).toStdString(), {12, 24},
                cv::FONT_HERSHEY_SIMPLEX, 0.7, yellow, 1, cv::LINE_AA);
}

} // namespace meridax
