#include "measurement/CalibrationRun.h"

#include <QTest>

using namespace meridax;
using Kind = CalibrationStep::Kind;

class tst_CalibrationRun : public QObject
{
    Q_OBJECT

private slots:
    void visitsAllPositions()
    {
        CalibrationRun run;
        QVERIFY(!run.beginMeasuring());
        run.start(1); // at least three
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(run.guideIndex(), i);
            QVERIFY(run.active());
            QCOMPARE(run.add({7, 7}, 1).kind, Kind::Ignored);
            QVERIFY(run.beginMeasuring());

            const CalibrationStep first = run.add({10.0 * i, 1.0}, 2);
            QCOMPARE(first.kind, Kind::Counted);
            QCOMPARE(first.framesDone, 1);
            QCOMPARE(first.framesTotal, 2);
            QCOMPARE(first.positionsDone, i);

            const CalibrationStep last = run.add({10.0 * i + 1.0, 2.0}, 2);
            QCOMPARE(last.kind, i < 2 ? Kind::PositionDone : Kind::AllDone);
            QCOMPARE(last.framesDone, 2);
            QCOMPARE(last.point, QPointF(10.0 * i + 0.5, 1.5));
            QCOMPARE(last.positionsDone, i + 1);
        }
        QVERIFY(!run.active());
        QCOMPARE(run.positions(), 3);
        QCOMPARE(run.points(), (std::vector<QPointF>{{0.5, 1.5}, {10.5, 1.5}, {20.5, 1.5}}));
        QVERIFY(!run.beginMeasuring());
    }

    void readsFramesWantedAnew_data()
    {
        QTest::addColumn<QList<int>>(
            "settings"); // one a frame; the last one completes the position
        QTest::addColumn<int>("framesTotal");

        QTest::newRow("raised on the way") << QList<int>{3, 3, 4, 4} << 4;
        QTest::newRow("lowered below what is done") << QList<int>{9, 9, 9, 2} << 2;
        QTest::newRow("unset") << QList<int>(30, 0) << 30;
    }

    void readsFramesWantedAnew()
    {
        QFETCH(QList<int>, settings);
        CalibrationRun run;
        run.start(3);
        run.beginMeasuring();
        CalibrationStep step;
        for (int i = 0; i < settings.size(); ++i) {
            QVERIFY(run.measuring());
            step = run.add({static_cast<double>(i), 0.0}, settings[i]);
            QCOMPARE(step.framesDone, i + 1);
        }
        QCOMPARE(step.kind, Kind::PositionDone);
        QTEST(step.framesTotal, "framesTotal");
        QCOMPARE(step.point, QPointF((settings.size() - 1) / 2.0, 0.0));
    }

    void measuringAgainRestartsAverage()
    {
        CalibrationRun run;
        run.start(3);
        run.beginMeasuring();
        run.add({1000, 1000}, 2);
        QVERIFY(run.beginMeasuring());
        QCOMPARE(run.add({1, 2}, 2).framesDone, 1);
        QCOMPARE(run.add({3, 4}, 2).point, QPointF(2, 3));
    }

    void resetForgetsEverything()
    {
        CalibrationRun run;
        run.start(5);
        run.beginMeasuring();
        run.add({1, 1}, 1);
        run.beginMeasuring();
        run.add({500, 500}, 3);
        run.reset();
        QVERIFY(!run.active());
        QCOMPARE(run.guideIndex(), 0);
        QVERIFY(run.points().empty());

        // The half-finished average must not leak into the next calibration.
        run.start(3);
        run.beginMeasuring();
        QCOMPARE(run.add({7, 7}, 1).point, QPointF(7, 7));
    }
};

QTEST_APPLESS_MAIN(tst_CalibrationRun)
#include "tst_calibrationrun.moc"
