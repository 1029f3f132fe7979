#include "measurement/FocusSharpness.h"
#include "measurement/FocusSweep.h"

#include <QTest>

#include <opencv2/imgproc.hpp>

#include <cmath>
#include <random>

using namespace meridax;

/// The search for the sharpest focus position and the measure it goes by.
class TestFocusSweep : public QObject
{
    Q_OBJECT

private slots:
    void windowFollowsTheSmallerSide_data()
    {
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<int>("halfSize");
        QTest::newRow("small") << QSize(639, 2000) << 40;
        QTest::newRow("limit") << QSize(640, 640) << 40;
        QTest::newRow("full HD") << QSize(1920, 1080) << 67;
        QTest::newRow("largest") << QSize(4096, 3072) << 160;
    }

    void windowFollowsTheSmallerSide()
    {
        QFETCH(QSize, frame);
        QTEST(focusWindowHalfSize(frame.width(), frame.height()), "halfSize");
    }

    void coarsePassCoversTheRange()
    {
        using Positions = std::vector<int>;
        QCOMPARE(coarseFocusPositions({1, 1023}),
                 (Positions{1, 94, 187, 280, 373, 466, 558, 651, 744, 837, 930, 1023}));
        // A narrow range repeats positions: twelve scores in any case.
        QCOMPARE(coarseFocusPositions({1, 10}), (Positions{1, 2, 3, 3, 4, 5, 6, 7, 8, 8, 9, 10}));
    }

    void finePassStaysInTheRange_data()
    {
        QTest::addColumn<int>("max");
        QTest::addColumn<int>("best");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("inside") << 1023 << 466
                                << QList<int>{374, 397, 420, 443, 466, 489, 512, 535, 558};
        QTest::newRow("at the end") << 1023 << 1 << QList<int>{1, 13, 24, 36, 47, 59, 70, 82, 93};
        QTest::newRow("span 22, step 2") << 23 << 11 << QList<int>{9, 10, 11, 12, 13};
        QTest::newRow("span 21, step 1") << 22 << 11 << QList<int>{10, 11, 12};
    }

    void finePassStaysInTheRange()
    {
        QFETCH(int, max);
        QFETCH(int, best);
        const std::vector<int> fine = fineFocusPositions({1, max}, best);
        QTEST(QList<int>(fine.begin(), fine.end()), "expected");
    }

    // On a bell-shaped sharpness the end lies within one step of the fine pass.
    void findsTheSharpest()
    {
        std::mt19937 random(7);
        for (const int max : {10, 60, 255, 1023}) {
            for (int run = 0; run < 200; ++run) {
                const double truth = std::uniform_real_distribution<>(1, max)(random);
                const double width = max / 6.0;
                FocusSweep sweep({1, max});
                int steps = 0;
                while (sweep.addScore(std::exp(-std::pow((sweep.position() - truth) / width, 2))) ==
                       FocusSweep::Next::Move)
                    ++steps;
                QVERIFY(steps < FocusSweep::totalSteps);
                QCOMPARE(sweep.measured(), steps + 1);
                const double fineStep = std::max(1.0, max / 11.0 / 4.0);
                QVERIFY2(std::abs(sweep.best() - truth) <= fineStep,
                         qPrintable(QStringLiteral("%1: %2").arg(sweep.best()).arg(truth)));
            }
        }
    }

    void structureNeedsContrast_data()
    {
        QTest::addColumn<double>("least");
        QTest::addColumn<double>("peak");
        QTest::addColumn<bool>("goesOn");
        QTest::newRow("flat") << 0.0 << 0.0 << false;
        QTest::newRow("too weak") << 0.0 << 0.0009 << false;
        QTest::newRow("too even") << 86.0 << 100.0 << false;
        QTest::newRow("just enough") << 84.9 << 100.0 << true;
    }

    void structureNeedsContrast()
    {
        QFETCH(double, least);
        QFETCH(double, peak);
        QFETCH(bool, goesOn);
        FocusSweep sweep({1, 1023});
        for (int i = 0; i < 11; ++i)
            QCOMPARE(sweep.addScore(i == 4 ? peak : least), FocusSweep::Next::Move);
        QCOMPARE(sweep.addScore(least),
                 goesOn ? FocusSweep::Next::Move : FocusSweep::Next::NoStructure);
        if (goesOn)
            QCOMPARE(sweep.position(), 373 - 92);
    }

    void sharpnessFallsWithBlurAndNotWithTheChannelOrder()
    {
        cv::Mat bgr(240, 320, CV_8UC3, cv::Scalar(40, 90, 160));
        for (int x = 0; x < 320; x += 16)
            cv::rectangle(bgr, cv::Rect(x, 0, 8, 240), cv::Scalar(200, 150, 80), cv::FILLED);
        cv::Mat rgb;
        cv::cvtColor(bgr, rgb, cv::COLOR_BGR2RGB);
        cv::Mat blurred;
        cv::GaussianBlur(bgr, blurred, cv::Size(), 3.0);

        const auto sharp = focusSharpness(bgr, cv::COLOR_BGR2GRAY, 160, 120, 40);
        QVERIFY(sharp.has_value());
        QCOMPARE(focusSharpness(rgb, cv::COLOR_RGB2GRAY, 160, 120, 40), sharp);
        QVERIFY(*focusSharpness(blurred, cv::COLOR_BGR2GRAY, 160, 120, 40) < *sharp / 10);
        QVERIFY(focusSharpness(bgr, cv::COLOR_BGR2GRAY, 0, 239, 40).has_value());
    }

    void aWindowThatIsTooNarrowGivesNothing()
    {
        const cv::Mat frame(100, 8, CV_8UC3, cv::Scalar::all(10));
        QVERIFY(!focusSharpness(frame, cv::COLOR_BGR2GRAY, 4, 50, 40).has_value());
        const cv::Mat wide(100, 9, CV_8UC3, cv::Scalar::all(10));
        QCOMPARE(focusSharpness(wide, cv::COLOR_BGR2GRAY, 4, 50, 40), 0.0);
        QVERIFY(!focusSharpness(wide, cv::COLOR_BGR2GRAY, 500, 50, 40).has_value());
    }
};

QTEST_APPLESS_MAIN(TestFocusSweep)
#include "tst_focussweep.moc"
