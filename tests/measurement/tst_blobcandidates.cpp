#include "measurement/CandidateSearch.h"

#include <QTest>

#include <opencv2/imgproc.hpp>

#include <cmath>

using namespace meridax;

namespace {

/// A lit ground and what lies on it, with pixel noise.
struct Picture
{
    cv::Mat grey;

    explicit Picture(double ground = 170.0, cv::Size size = {640, 480})
        : grey(size, CV_32FC1, cv::Scalar(ground))
    {
    }

    Picture &ellipse(cv::Point2d centre, double radius, double ratio, double level)
    {
        constexpr int bits = 8;
        const auto fixed = [](double value) { return cvRound(value * (1 << bits)); };
        cv::Mat coverage(grey.size(), CV_8UC1, cv::Scalar(0));
        cv::ellipse(coverage, {fixed(centre.x), fixed(centre.y)},
                    {fixed(radius), fixed(radius * ratio)}, 30.0, 0.0, 360.0, cv::Scalar(255),
                    cv::FILLED, cv::LINE_AA, bits);
        cv::Mat share;
        coverage.convertTo(share, CV_32FC1, 1.0 / 255.0);
        grey += share.mul(level - grey);
        return *this;
    }

    Picture &blurred(double sigma)
    {
        cv::GaussianBlur(grey, grey, {}, sigma);
        return *this;
    }

    cv::Mat withNoise(double sigma, int seed = 1) const
    {
        cv::Mat noise(grey.size(), CV_32FC1);
        cv::RNG(static_cast<uint64>(seed) * 7919).fill(noise, cv::RNG::NORMAL, 0.0, sigma);
        cv::Mat result;
        cv::Mat(grey + noise).convertTo(result, CV_8UC1);
        return result;
    }
};

const cv::Point2d kMark(400.3, 180.6);

std::vector<cv::KeyPoint> detect(const cv::Mat &grey, const BlobSettings &settings)
{
    cv::Mat scaled;
    return detectBlobs(*createBlobDetector(settings), grey, scaled);
}

/// A mark among smaller dark things, some of them as dark.
Picture crowded()
{
    return Picture(170)
        .ellipse(kMark, 20, 0.8, 60)
        .ellipse({150, 300}, 12, 1.0, 140)
        .ellipse({300, 350}, 5, 0.5, 50)
        .ellipse({100, 100}, 60, 0.9, 120)
        .blurred(1.5);
}

} // namespace

class tst_BlobCandidates : public QObject
{
    Q_OBJECT

private slots:
    void predictsTheDetector()
    {
        // Whatever the settings, the outlines tell what the detector itself would find.
        cv::RNG random(5);
        int found = 0;
        for (int round = 0; round < 40; ++round) {
            const cv::Mat grey = crowded().withNoise(random.uniform(0.0, 8.0), round);
            BlobSettings settings;
            settings.minThreshold = random.uniform(1, 120);
            settings.maxThreshold = settings.minThreshold + random.uniform(5, 200);
            settings.minArea = random.uniform(21.0, 900.0);
            settings.maxArea = random.uniform(500.0, 20'000.0);
            settings.filterByCircularity = random.uniform(0, 2) == 0;
            settings.minCircularity = random.uniform(0.1, 0.9);
            settings.filterByInertia = random.uniform(0, 2) == 0;
            settings.minInertiaRatio = random.uniform(0.1, 0.95);
            const std::vector<cv::KeyPoint> truth = detect(grey, settings);
            const std::vector<FoundBlob> told =
                blobsFound(scanOutlines(grey, 1.0, settings), settings);
            QCOMPARE(told.size(), truth.size());
            for (size_t i = 0; i < truth.size(); ++i)
                QCOMPARE(float(2.0 * told[i].radius), truth[i].size);
            found += static_cast<int>(truth.size());
        }
        QCOMPARE_GT(found, 20);
    }

    void mendsOnlyWhatIsMissing_data()
    {
        QTest::addColumn<Picture>("picture");
        QTest::addColumn<double>("noise");
        QTest::addColumn<BlobSettings>("settings");
        QTest::addColumn<QList<BlobFilter>>("missing");

        using Filters = QList<BlobFilter>;
        const auto row = [](const char *name, const Picture &picture, double noise,
                            const BlobSettings &settings, const Filters &missing) {
            QTest::newRow(name) << picture << noise << settings << missing;
        };
        row("at an angle", Picture().ellipse(kMark, 20, 0.8, 60), 0.0, {.minCircularity = 0.85},
            {BlobFilter::Inertia});
        row("small", Picture().ellipse(kMark, 6.4, 1.0, 60), 0.0,
            {.minCircularity = 0.8, .minInertiaRatio = 0.8}, {BlobFilter::MinArea});
        row("large", Picture().ellipse(kMark, 150, 1.0, 60), 0.0, {.minCircularity = 0.85},
            {BlobFilter::MaxArea});
        row("noise", Picture(110).ellipse(kMark, 20, 1.0, 62), 10.0, {.minInertiaRatio = 0.5},
            {BlobFilter::Circularity});
        row("above the thresholds", Picture(250).ellipse(kMark, 20, 1.0, 215), 0.0,
            {.maxThreshold = 200, .minCircularity = 0.85}, {BlobFilter::MaxThreshold});
        row("below the thresholds", Picture(90).ellipse(kMark, 20, 1.0, 30), 0.0,
            {.minThreshold = 120, .minCircularity = 0.85}, {BlobFilter::MinThreshold});
    }

    void mendsOnlyWhatIsMissing()
    {
        QFETCH(Picture, picture);
        QFETCH(double, noise);
        QFETCH(BlobSettings, settings);
        QFETCH(QList<BlobFilter>, missing);
        const cv::Mat grey = picture.withNoise(noise);
        QVERIFY(detect(grey, settings).empty());

        const BlobScan scan = scanOutlines(grey, 1.0, settings);
        const std::vector<BlobCandidate> candidates = candidatesOf(scan, grey, settings);
        QVERIFY(!candidates.empty());
        const BlobCandidate &mark = candidates.front();
        QCOMPARE_LT(std::hypot(mark.centre.x() - kMark.x, mark.centre.y() - kMark.y), 2.0);
        QList<BlobFilter> told;
        for (const BlobShortfall &shortfall : mark.shortfalls)
            told.append(shortfall.filter);
        QCOMPARE(told, missing);

        const std::optional<BlobSettings> mended = mendingSettings(scan, mark, settings).settings;
        QVERIFY(mended.has_value());
        QCOMPARE(detect(grey, *mended).size(), 1U);
        QCOMPARE(detect(picture.withNoise(noise, 2), *mended).size(), 1U);
        BlobSettings restored = *mended;
        for (const BlobFilter filter : missing) {
            double BlobSettings::*const values[] = {
                &BlobSettings::minArea,        &BlobSettings::maxArea,
                &BlobSettings::minCircularity, &BlobSettings::minInertiaRatio,
                &BlobSettings::minThreshold,   &BlobSettings::maxThreshold};
            const auto value = values[static_cast<int>(filter)];
            QVERIFY(restored.*value != settings.*value);
            restored.*value = settings.*value;
        }
        QCOMPARE(restored, settings);
    }

    void keepsOtherThingsOut_data()
    {
        QTest::addColumn<Picture>("picture");
        QTest::addColumn<BlobSettings>("settings");

        const BlobSettings defaults;
        const Picture oblique = Picture().ellipse(kMark, 20, 0.8, 60);
        QTest::newRow("smaller") << Picture(oblique).ellipse({150, 300}, 13, 0.8, 60) << defaults;
        QTest::newRow("larger") << Picture(oblique).ellipse({150, 300}, 60, 0.8, 60) << defaults;
        QTest::newRow("fainter") << Picture(oblique).ellipse({150, 300}, 20, 0.8, 130) << defaults;
        QTest::newRow("two are found")
            << Picture().ellipse(kMark, 20, 1.0, 60).ellipse({150, 300}, 40, 1.0, 110)
            << BlobSettings{.minCircularity = 0.8, .minInertiaRatio = 0.8};
    }

    void keepsOtherThingsOut()
    {
        QFETCH(Picture, picture);
        QFETCH(BlobSettings, settings);
        const cv::Mat grey = picture.withNoise(2.0);
        QVERIFY(detect(grey, settings).size() != 1);
        const BlobScan scan = scanOutlines(grey, 1.0, settings);
        const std::vector<BlobCandidate> candidates = candidatesOf(scan, grey, settings);
        QVERIFY(!candidates.empty());
        const std::optional<BlobSettings> mended =
            mendingSettings(scan, candidates.front(), settings).settings;
        QVERIFY(mended.has_value());
        const std::vector<cv::KeyPoint> found = detect(picture.withNoise(2.0, 3), *mended);
        QCOMPARE(found.size(), 1U);
        QCOMPARE_LT(cv::norm(cv::Point2d(found[0].pt) - kMark), 2.0);
    }

    void saysWhatIsInTheWay()
    {
        // Two alike: nothing tells them apart.
        const Picture twins = Picture()
                                  .ellipse(kMark, 20, 0.8, 60)
                                  .ellipse(kMark - cv::Point2d(250, 50), 20, 0.8, 60);
        const cv::Mat grey = twins.withNoise(0.0);
        const BlobSettings settings;
        const BlobScan scan = scanOutlines(grey, 1.0, settings);
        const std::vector<BlobCandidate> candidates = candidatesOf(scan, grey, settings);
        QCOMPARE(candidates.size(), 2U);
        const Mending mending = mendingSettings(scan, candidates[0], settings);
        QVERIFY(!mending.settings);
        QVERIFY(mending.inTheWay >= 0);
        QCOMPARE_LT(std::abs(scan.outlines[mending.inTheWay].centre.x - candidates[1].centre.x()),
                    1.0);
    }

    void everyPictureHasAnAnswer_data()
    {
        QTest::addColumn<cv::Mat>("grey");
        QTest::addColumn<PictureFault>("fault");

        const auto plain = [](double level, cv::Size size = {640, 480}) {
            return cv::Mat(size, CV_8UC1, cv::Scalar(level));
        };
        QTest::newRow("black") << plain(0) << PictureFault::TooDark;
        QTest::newRow("night") << Picture(20).ellipse(kMark, 20, 1, 18).withNoise(2.0)
                               << PictureFault::TooDark;
        QTest::newRow("white") << plain(255) << PictureFault::TooBright;
        QTest::newRow("flat") << Picture(128).withNoise(2.0) << PictureFault::NoContrast;
        QTest::newRow("nothing sharp")
            << Picture(200).ellipse({0, 240}, 300, 1, 60).blurred(60).withNoise(1.0)
            << PictureFault::OutOfFocus;
        QTest::newRow("nothing closed") << Picture(200).ellipse({0, 240}, 300, 1, 60).withNoise(1.0)
                                        << PictureFault::NoDarkSpot;
        QTest::newRow("tiny") << plain(128, {16, 16}) << PictureFault::NoContrast;
        QTest::newRow("one pixel") << plain(128, {1, 1}) << PictureFault::NoContrast;
        QTest::newRow("nothing") << cv::Mat() << PictureFault::NoDarkSpot;
    }

    void everyPictureHasAnAnswer()
    {
        QFETCH(cv::Mat, grey);
        QVERIFY(findCandidates(grey, {}).empty());
        QTEST(pictureFault(grey), "fault");
    }

    void tellsFlickerFromASingleChange()
    {
        FlickerWatch watch;
        for (int i = 0; i < 40; ++i)
            watch.add(i > 20);
        QVERIFY(!watch.flickers());
        for (int i = 0; i < 10; ++i)
            watch.add(i % 3 != 0);
        QVERIFY(watch.flickers());
        for (int i = 0; i < FlickerWatch::frames; ++i)
            watch.add(true);
        QVERIFY(!watch.flickers());
    }

    void adviceOutlastsAMomentWithTheMark()
    {
        const cv::Mat dark = cv::Mat::zeros(100, 100, CV_8UC1);
        CandidateSearch search;
        QVERIFY(search.addFrame(dark, 1.0, {}, 0, {}));
        QVERIFY(!search.addFrame(dark, 1.0, {}, 1, {}));
        QCOMPARE(search.advice().kind, BlobAdvice::Kind::Fault);
        for (int i = 0; i < 30; ++i)
            search.addFrame(dark, 1.0, {}, 1, {});
        QCOMPARE(search.advice().kind, BlobAdvice::Kind::None);
        // Values that were just mended need no more advice.
        BlobSettings mended;
        mended.minCircularity = 0.5;
        search.search(dark, 1.0, {}, 0);
        QVERIFY(search.addFrame(dark, 1.0, mended, 1, {}));
        QCOMPARE(search.advice().kind, BlobAdvice::Kind::None);
    }

    void searchStaysWithinItsShare()
    {
        using namespace std::chrono_literals;
        // Frames every 40 ms, searches of 50 ms.
        SearchBudget budget;
        SearchBudget::Time now{};
        int searches = 0;
        for (int frame = 0; frame < 300; ++frame, now += 40ms) {
            if (budget.due(now)) {
                budget.spent(now, 50ms);
                ++searches;
            }
        }
        QCOMPARE(searches, 60); // every 200 ms
        budget.clear();
        for (int frame = searches = 0; frame < 300; ++frame, now += 40ms) {
            if (budget.due(now)) {
                budget.spent(now, 1ms);
                ++searches;
            }
        }
        QCOMPARE(searches, 100); // every third frame
    }

    void manySpecksEnd()
    {
        Picture specks(200, {1280, 960});
        for (int i = 0; i < 1000; ++i)
            cv::circle(specks.grey, {20 + 31 * (i % 40), 20 + 37 * (i / 40)}, 5, cv::Scalar(60),
                       cv::FILLED);
        const cv::Mat grey = specks.withNoise(2.0);
        const BlobScan scan = scanOutlines(grey, 1.0, {});
        const std::vector<BlobCandidate> candidates = candidatesOf(scan, grey, {});
        QCOMPARE(candidates.size(), 1000U);
        QVERIFY(!mendingSettings(scan, candidates.front(), {}).settings);
    }
};

QTEST_APPLESS_MAIN(tst_BlobCandidates)
#include "tst_blobcandidates.moc"
