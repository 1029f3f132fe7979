#include "measurement/BlobAnalysis.h"

#include <QTest>

#include <cmath>

using namespace meridax;

namespace {

constexpr int ground = 200;
constexpr int ink = 30;

cv::Mat paper(int columns, int rows)
{
    return {rows, columns, CV_8UC1, cv::Scalar(ground)};
}

/// Draws a dark disc whose edge pixels are grey by the share they are covered.
void drawDisc(cv::Mat &grey, cv::Point2d centre, double radius)
{
    for (int y = 0; y < grey.rows; ++y) {
        for (int x = 0; x < grey.cols; ++x) {
            const double distance = std::hypot(x - centre.x, y - centre.y);
            const double covered = std::clamp(radius + 0.5 - distance, 0.0, 1.0);
            uchar &pixel = grey.at<uchar>(y, x);
            pixel = cv::saturate_cast<uchar>(pixel + covered * (ink - pixel));
        }
    }
}

cv::Mat paperWithDisc(int columns, int rows, cv::Point2d centre, double radius)
{
    cv::Mat grey = paper(columns, rows);
    drawDisc(grey, centre, radius);
    return grey;
}

void drawBlock(cv::Mat &grey, cv::Rect block)
{
    grey(block).setTo(ink);
}

std::vector<cv::KeyPoint> detect(const cv::Mat &grey, const BlobSettings &settings = {})
{
    cv::Mat scaled;
    return detectBlobs(*createBlobDetector(settings), grey, scaled);
}

double distance(cv::Point2d a, cv::Point2d b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

cv::Vec3b pixel(const cv::Mat &bgr, int x, int y)
{
    return bgr.at<cv::Vec3b>(y, x);
}

} // namespace

class tst_BlobAnalysis : public QObject
{
    Q_OBJECT

private slots:
    void detectorLimits_data()
    {
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<float>("expectedMin");
        QTest::addColumn<float>("expectedMax");

        QTest::newRow("minimum raised") << 0.0 << 1.5 << 1.0F << 2.0F;
        QTest::newRow("crossed") << 200.0 << 100.0 << 200.0F << 201.0F;
        QTest::newRow("less than one apart") << 50.0 << 50.5 << 50.0F << 51.0F;
        QTest::newRow("narrowed before the step") << 0.7 + 1.0 << 2.0 << 1.7F << float(1.0 + 1.7F);
        QTest::newRow("not a number") << qQNaN() << qQNaN() << 1.0F << 2.0F;
    }

    void detectorLimits()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        BlobSettings settings{.minCircularity = 1.5, .minInertiaRatio = -0.5};
        settings.minThreshold = settings.minArea = min;
        settings.maxThreshold = settings.maxArea = max;
        const cv::SimpleBlobDetector::Params params = buildDetectorParams(settings);
        QTEST(params.minThreshold, "expectedMin");
        QTEST(params.maxThreshold, "expectedMax");
        QTEST(params.minArea, "expectedMin");
        QTEST(params.maxArea, "expectedMax");
        QCOMPARE(params.minCircularity, 1.0F);
        QCOMPARE(params.minInertiaRatio, 0.0F);
    }

    void everySliderPositionDetects_data()
    {
        QTest::addColumn<BlobSettings>("settings");
        QTest::addColumn<int>("blobs");

        QTest::newRow("defaults") << BlobSettings{} << 1;
        QTest::newRow("any circularity, any inertia")
            << BlobSettings{.minCircularity = 0.0, .minInertiaRatio = 0.0} << 1;
        QTest::newRow("two thresholds")
            << BlobSettings{.minThreshold = 100, .maxThreshold = 111, .minCircularity = 0.8} << 1;
        // The search costs a step for every 10 grey levels up to the maximum.
        QTest::newRow("maximum beyond grey levels") << BlobSettings{.maxThreshold = 1e9} << 1;
        QTest::newRow("both beyond grey levels")
            << BlobSettings{.minThreshold = 1e9, .maxThreshold = 1e10} << 0;
    }

    void everySliderPositionDetects()
    {
        QFETCH(BlobSettings, settings);
        const cv::Mat grey = paperWithDisc(320, 240, {160.3, 120.4}, 30.0);
        QTEST(static_cast<int>(detect(grey, settings).size()), "blobs");
        QVERIFY2(detect(255 - grey, settings).empty(), "a light blob");
    }

    void singleThresholdIsNotSearched()
    {
        class Watched : public cv::SimpleBlobDetector
        {
        public:
            Params params;
            int searches = 0;
            void setParams(const Params &) override {}
            Params getParams() const override { return params; }
            const std::vector<std::vector<cv::Point>> &getBlobContours() const override
            {
                static const std::vector<std::vector<cv::Point>> none;
                return none;
            }
            void detect(cv::InputArray, std::vector<cv::KeyPoint> &, cv::InputArray) override
            {
                ++searches;
            }
        } detector;
        cv::Mat scaled;
        const auto searches = [&](double min, double max) {
            detector.params = buildDetectorParams({.minThreshold = min, .maxThreshold = max});
            detectBlobs(detector, paper(1300, 20), scaled);
            return std::exchange(detector.searches, 0);
        };
        QCOMPARE(searches(200, 201), 0);
        QCOMPARE(searches(100, 110), 0);
        QCOMPARE(searches(100, 111), 1);
    }

    void searchesAtMost1280Columns_data()
    {
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<QSize>("searched"); // empty: the frame itself
        QTest::addColumn<double>("tolerance");

        QTest::newRow("1280 columns") << QSize(1280, 960) << QSize() << 0.5;
        QTest::newRow("1281 columns") << QSize(1281, 961) << QSize(1280, 960) << 0.5;
        QTest::newRow("3264 columns") << QSize(3264, 2448) << QSize(1280, 960) << 1.5;
    }

    void searchesAtMost1280Columns()
    {
        QFETCH(QSize, frame);
        QFETCH(QSize, searched);
        QFETCH(double, tolerance);
        const cv::Point2d centre(0.7 * frame.width(), 0.4 * frame.height());
        const cv::Mat grey = paperWithDisc(frame.width(), frame.height(), centre, 50.0);

        cv::Mat scaled;
        const auto detector = createBlobDetector({});
        const std::vector<cv::KeyPoint> found = detectBlobs(*detector, grey, scaled);
        QCOMPARE(found.size(), 1U);
        QCOMPARE_LT(distance(found[0].pt, centre), tolerance);
        QCOMPARE_LT(std::abs(found[0].size - 100.0F), 4.0F);
        QCOMPARE(scaled.empty(), searched.isEmpty());
        if (!searched.isEmpty())
            QCOMPARE(QSize(scaled.cols, scaled.rows), searched);
    }

    void anyFrameSizeIsSearched()
    {
        const cv::Size sizes[] = {{1, 1}, {1, 2000}, {1281, 1}, {2561, 1}, {9000, 2}};
        for (const cv::Size size : sizes)
            QCOMPARE(detect(paper(size.width, size.height)).size(), 0U);
    }

    void areasMeanDetectionPixels()
    {
        // 7850 px at full resolution, a quarter of that at half the width.
        BlobSettings settings;
        settings.minArea = 3000;
        QCOMPARE(detect(paperWithDisc(1280, 600, {640, 300}, 50.0), settings).size(), 1U);
        QCOMPARE(detect(paperWithDisc(2560, 600, {640, 300}, 50.0), settings).size(), 0U);
    }

    void refinesToSubPixel_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("noise");

        for (const double radius : {8.0, 20.0, 45.0}) {
            for (const double fraction : {0.0, 0.25, 0.5, 0.8}) {
                QTest::addRow("radius %g, fraction %g", radius, fraction)
                    << 100.0 + fraction << 90.0 - fraction << radius << 0.0;
            }
        }
        QTest::newRow("noise of 8 grey levels") << 100.3 << 90.6 << 20.0 << 8.0;
    }

    void refinesToSubPixel()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, radius);
        QFETCH(double, noise);
        const cv::Point2d centre(x, y);
        cv::Mat grey = paperWithDisc(200, 180, centre, radius);
        if (noise > 0.0) {
            cv::Mat grain(grey.size(), CV_16SC1);
            cv::RNG generator(20240607);
            generator.fill(grain, cv::RNG::NORMAL, 0.0, noise);
            cv::add(grey, grain, grey, cv::noArray(), CV_8U);
        }

        // As coarse as a keypoint from a reduced image.
        const cv::KeyPoint keypoint(100.9F, 88.9F, static_cast<float>(2.0 * radius));
        const double error = distance(refineBlobCentre(grey, keypoint), centre);
        QVERIFY2(error < 0.15, qPrintable(QString::number(error)));
    }

    void refinementAtTheBorder_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");

        QTest::newRow("right") << 187.0 << 100.0;
        QTest::newRow("bottom") << 100.0 << 167.0;
        QTest::newRow("corner") << 187.0 << 167.0;
    }

    void refinementAtTheBorder()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        // The disc lies inside the image, its window does not.
        const cv::Mat grey = paperWithDisc(200, 180, {x, y}, 10.0);
        const cv::KeyPoint keypoint(static_cast<float>(x) + 0.8F, static_cast<float>(y) - 0.6F,
                                    20.0F);
        QCOMPARE_LT(distance(refineBlobCentre(grey, keypoint), {x, y}), 0.1);
    }

    void refinementPicksNearestOutline()
    {
        cv::Mat grey = paperWithDisc(200, 180, {90, 90}, 6.0);
        drawBlock(grey, {105, 60, 12, 60}); // larger, but further away
        drawBlock(grey, {99, 89, 2, 2});    // nearest of all, but a speck
        const cv::KeyPoint keypoint(98.0F, 90.0F, 50.0F);
        QCOMPARE_LT(distance(refineBlobCentre(grey, keypoint), {90, 90}), 0.1);
    }

    void refinementFallsBack_data()
    {
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<QRect>("block");
        QTest::addColumn<cv::Point2f>("keypoint");

        QTest::newRow("nothing dark") << QSize(100, 100) << QRect() << cv::Point2f(50.5F, 50.25F);
        QTest::newRow("only a speck")
            << QSize(100, 100) << QRect(48, 48, 3, 2) << cv::Point2f(50.5F, 50.25F);
        QTest::newRow("neighbour in the corner, out of reach")
            << QSize(100, 100) << QRect(58, 58, 4, 4) << cv::Point2f(50.5F, 50.25F);
        QTest::newRow("5 columns")
            << QSize(5, 100) << QRect(0, 45, 5, 5) << cv::Point2f(2.0F, 50.0F);
        QTest::newRow("5 rows") << QSize(100, 5) << QRect(45, 0, 5, 5) << cv::Point2f(50.0F, 2.0F);
        QTest::newRow("outside the frame")
            << QSize(100, 100) << QRect(90, 45, 10, 10) << cv::Point2f(300.0F, 50.0F);
    }

    void refinementFallsBack()
    {
        QFETCH(QSize, frame);
        QFETCH(QRect, block);
        QFETCH(cv::Point2f, keypoint);
        cv::Mat grey = frame.isEmpty() ? cv::Mat() : paper(frame.width(), frame.height());
        if (!block.isEmpty())
            drawBlock(grey, {block.x(), block.y(), block.width(), block.height()});
        const cv::Point2d refined = refineBlobCentre(grey, cv::KeyPoint(keypoint, 10.0F));
        QCOMPARE(refined, cv::Point2d(keypoint));
    }

    void blobMark()
    {
        cv::Mat bgr(100, 100, CV_8UC3, cv::Scalar::all(0));
        // Centre rounds to (51, 50), radius 0.55 * 30 = 16.5 to 17.
        drawBlobMark(bgr, cv::KeyPoint(50.5F, 50.4F, 30.0F), {0, 255, 0});
        const cv::Vec3b green(0, 255, 0);
        QCOMPARE(pixel(bgr, 51 + 17, 50), green);
        QCOMPARE(pixel(bgr, 51 - 17, 50), green);
        QCOMPARE(pixel(bgr, 51, 50 + 17), green);
        QCOMPARE(pixel(bgr, 51, 50), cv::Vec3b(0, 0, 0));
        QCOMPARE(pixel(bgr, 51 + 20, 50), cv::Vec3b(0, 0, 0));
    }

    void calibrationResult()
    {
        cv::Mat bgr(200, 200, CV_8UC3, cv::Scalar::all(0));
        drawCalibrationResult(bgr, {99.6, 100.4}, {255, 0, 255},
                              std::vector<QPointF>{{30, 40}, {170, 150}}, {0, 165, 255});
        const cv::Vec3b magenta(255, 0, 255);
        const cv::Vec3b orange(0, 165, 255);
        for (const cv::Point offset : {cv::Point(0, 0), {23, 0}, {-23, 0}, {0, 23}, {0, -23}})
            QCOMPARE(pixel(bgr, 100 + offset.x, 100 + offset.y), magenta);
        // On the ring of the centre, off the crosshair.
        QCOMPARE(pixel(bgr, 100 + 11, 100 + 11), magenta);
        QCOMPARE(pixel(bgr, 38, 40), orange);
        QCOMPARE(pixel(bgr, 170, 142), orange);
        QCOMPARE(pixel(bgr, 30, 40), cv::Vec3b(0, 0, 0));
    }

    void calibrationResultOutside_data()
    {
        QTest::addColumn<QPointF>("centre");
        QTest::newRow("a nearly straight path") << QPointF(-4.2e12, 9.7e15);
        QTest::newRow("infinite") << QPointF(qInf(), -qInf());
        QTest::newRow("not a number") << QPointF(qQNaN(), 50);
    }

    void calibrationResultOutside()
    {
        QFETCH(QPointF, centre);
        cv::Mat bgr(100, 100, CV_8UC3, cv::Scalar::all(0));
        drawCalibrationResult(bgr, centre, {255, 0, 255}, {}, {0, 165, 255});
        QCOMPARE(cv::norm(bgr), 0.0);
    }
};

QTEST_APPLESS_MAIN(tst_BlobAnalysis)
#include "tst_blobanalysis.moc"
