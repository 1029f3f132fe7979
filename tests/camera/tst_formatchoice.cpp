#include "camera/CameraScales.h"
#include "camera/FormatChoice.h"

#include <QTest>

#include <vector>

using namespace meridax;

namespace {

using Formats = std::vector<FormatCandidate>;

} // namespace

Q_DECLARE_METATYPE(Formats)

class TestFormatChoice : public QObject
{
    Q_OBJECT

private slots:
    void choosesTheNearestUsableFormat_data()
    {
        QTest::addColumn<Formats>("formats");
        QTest::addColumn<QSize>("wanted");
        QTest::addColumn<int>("expected");

        const QSize hd(1280, 720);
        const QSize vga(640, 480);
        QTest::newRow("empty list") << Formats{} << hd << -1;
        QTest::newRow("exact size") << Formats{{vga, 30, false}, {hd, 30, false}} << hd << 1;
        QTest::newRow("nearest size")
            << Formats{{vga, 30, false}, {hd, 30, false}} << QSize(1000, 1000) << 1;
        QTest::newRow("compressed, listed last")
            << Formats{{hd, 30, false}, {hd, 30, true}} << hd << 1;
        QTest::newRow("compressed, listed first")
            << Formats{{hd, 30, true}, {hd, 30, false}} << hd << 0;
        QTest::newRow("compression does not buy a worse size")
            << Formats{{hd, 30, false}, {vga, 30, true}} << hd << 0;
        QTest::newRow("faster of equal size")
            << Formats{{hd, 15, true}, {hd, 30, false}} << hd << 1;
        QTest::newRow("5 frames/s cost 1000 px")
            << Formats{{hd, 5, false}, {QSize(1280 + 500, 720 + 499), 30, false}} << hd << 1;
        QTest::newRow("1000 px of size are as bad, and faster wins")
            << Formats{{hd, 5, false}, {QSize(1280 + 500, 720 + 500), 30, false}} << hd << 1;
        QTest::newRow("beyond that the slow one wins")
            << Formats{{hd, 5, false}, {QSize(1280 + 500, 720 + 501), 30, false}} << hd << 0;
        QTest::newRow("unknown rate costs nothing")
            << Formats{{hd, 0, false}, {vga, 30, false}} << hd << 0;
        QTest::newRow("absurd wish from a damaged file")
            << Formats{{vga, 30, false}, {hd, 30, false}}
            << QSize(std::numeric_limits<int>::max(), std::numeric_limits<int>::min()) << 0;
    }

    void choosesTheNearestUsableFormat()
    {
        QFETCH(Formats, formats);
        QFETCH(QSize, wanted);
        QTEST(chooseFormat(formats, wanted), "expected");
    }

    void scalesOfQtsInterface()
    {
        QCOMPARE(exposureSeconds(-6), 1.0f / 256);
        QCOMPARE(exposureSeconds(6), 1.0f);
        QCOMPARE(exposureSeconds(900), 1.0f);
        QCOMPARE(focusDistance(25, 0), 0.25f);
        QCOMPARE(focusDistance(512, 1024), 0.5f);
        QCOMPARE(focusDistance(5000, 1024), 1.0f);
    }
};

QTEST_GUILESS_MAIN(TestFormatChoice)
#include "tst_formatchoice.moc"
