#include "camera/FrameSilence.h"

#include <QTest>

using namespace meridax;
using Verdict = FrameSilence::Verdict;

// Each test speaks a story in ticks: '.' nothing, 'f' a frame, 'b' a busy event loop.
class TestFrameSilence : public QObject
{
    Q_OBJECT

private slots:
    void verdicts_data()
    {
        QTest::addColumn<QByteArray>("story");
        QTest::addColumn<QByteArray>("verdicts"); // 's' silent, 'x' failing, '-' fine
        QTest::newRow("frames come") << QByteArray("fffff") << QByteArray("-----");
        QTest::newRow("told once") << QByteArray("......") << QByteArray("--s---");
        QTest::newRow("told in each silence") << QByteArray("...f...") << QByteArray("--s---s");
        QTest::newRow("slow, but alive") << QByteArray("..f..f..") << QByteArray("--------");
        QTest::newRow("fails all the time") << QByteArray("bbb") << QByteArray("--x");
        QTest::newRow("busy for a while only") << QByteArray("bb.bb") << QByteArray("--s--");
        QTest::newRow("fails later") << QByteArray("...bbb") << QByteArray("--s--x");
        QTest::newRow("frames and a busy loop") << QByteArray("bbfbb") << QByteArray("-----");
    }

    void verdicts()
    {
        QFETCH(QByteArray, story);
        QFETCH(QByteArray, verdicts);
        FrameSilence silence(3, 10);
        QByteArray heard;
        for (const char event : std::as_const(story)) {
            for (int i = 0; event == 'b' && i < 10; ++i)
                silence.eventLoopTurned();
            if (event == 'f')
                silence.frameArrived();
            const Verdict verdict = silence.tick();
            heard += verdict == Verdict::Silent ? 's' : verdict == Verdict::Failing ? 'x' : '-';
        }
        QCOMPARE(heard, verdicts);
    }
};

QTEST_APPLESS_MAIN(TestFrameSilence)
#include "tst_framesilence.moc"
