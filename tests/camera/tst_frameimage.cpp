#include "camera/CameraCapabilities.h"
#include "camera/FrameImage.h"
#include "camera/SoftwareAdjustments.h"

#include <QTest>

#include <opencv2/imgproc.hpp>

using namespace meridax;

namespace {

bool samePixels(const cv::Mat &a, const cv::Mat &b)
{
    return a.size() == b.size() && a.type() == b.type() && cv::norm(a, b, cv::NORM_INF) == 0.0;
}

cv::Mat colourRamp()
{
    cv::Mat bgr(40, 99, CV_8UC3);
    for (int y = 0; y < bgr.rows; ++y) {
        for (int x = 0; x < bgr.cols; ++x) {
            bgr.at<cv::Vec3b>(y, x) = {static_cast<uchar>(x * 2), static_cast<uchar>(y * 6),
                                       static_cast<uchar>((x + y) * 2)};
        }
    }
    return bgr;
}

} // namespace

class TestFrameImage : public QObject
{
    Q_OBJECT

private slots:
    void wrapsOddWidthsWithTheirStride()
    {
        QImage image(3, 2, QImage::Format_RGB888); // 9 bytes a line, padded to 12
        image.fill(Qt::black);
        cv::Mat mat = wrapRgbImage(image);
        mat.at<cv::Vec3b>(1, 2) = {255, 0, 0};
        QCOMPARE(image.pixelColor(2, 1), QColor(255, 0, 0));
    }

    void writingDetachesAPublishedImage()
    {
        QImage image(8, 8, QImage::Format_RGB888);
        image.fill(Qt::black);
        const QImage published = image;
        wrapRgbImage(image).setTo(cv::Scalar::all(255));
        QCOMPARE(published.pixelColor(0, 0), QColor(Qt::black));
    }

    void bgrRoundTrip()
    {
        const cv::Mat bgr = colourRamp();
        const QImage image = rgbImageFromBgr(bgr);
        QCOMPARE(image.pixelColor(10, 5), QColor(30, 30, 20));
        QVERIFY(rgbImageFromBgr({}).isNull());
    }

    void timeStampIsTheSameInBothOrders()
    {
        const QDateTime when(QDate(2026, 5, 4), QTime(21, 7, 9));
        cv::Mat bgr(60, 200, CV_8UC3, cv::Scalar::all(40));
        cv::Mat rgb = bgr.clone();
        drawTimeStamp(bgr, ChannelOrder::Bgr, when);
        drawTimeStamp(rgb, ChannelOrder::Rgb, when);
        QVERIFY(cv::norm(bgr, cv::Mat(60, 200, CV_8UC3, cv::Scalar::all(40)), cv::NORM_INF) > 100);
        cv::Mat swapped;
        cv::cvtColor(rgb, swapped, cv::COLOR_RGB2BGR);
        QVERIFY(samePixels(bgr, swapped));
    }

    void adjustments()
    {
        const cv::Mat original = colourRamp();
        const auto adjusted = [&](int brightness, int contrast, int saturation) {
            CameraSettings camera;
            camera.brightness = brightness;
            camera.contrast = contrast;
            camera.saturation = saturation;
            cv::Mat bgr = original.clone();
            applySoftwareAdjustments(bgr, camera);
            return bgr;
        };

        QVERIFY(samePixels(adjusted(0, 50, 50), original));
        QVERIFY(samePixels(adjusted(0, 50, -1), original));
        QVERIFY2(samePixels(adjusted(30, 0, 50), cv::Mat(40, 99, CV_8UC3, cv::Scalar::all(30))),
                 "contrast 0 is black plus brightness");
        cv::Mat brighter;
        original.convertTo(brighter, -1, 2.0, -20.0);
        QVERIFY(samePixels(adjusted(-20, 100, 50), brighter));
        cv::Mat channels[3];
        cv::split(adjusted(0, 50, 0), channels);
        QVERIFY2(samePixels(channels[0], channels[1]) && samePixels(channels[1], channels[2]),
                 "saturation 0 is grey");
    }

    void capabilityLines()
    {
        CameraCapabilities caps;
        caps.exposure = {-13, -1, 1, -6, true, true};
        const QStringList lines = capabilityLogLines(QStringLiteral("Cam"), caps);
        QCOMPARE(lines.size(), 9);
        QCOMPARE(lines[0], QStringLiteral("[CameraCaps] Hardware capabilities for Cam :"));
        QCOMPARE(
            lines[1],
            QStringLiteral("[CameraCaps]   Exposure   : [-13..-1] step=1 default=-6 canAuto=true"));
        QCOMPARE(lines[8], QStringLiteral("[CameraCaps]   WhiteBalanc: (not supported)"));
    }
};

QTEST_GUILESS_MAIN(TestFrameImage)
#include "tst_frameimage.moc"
