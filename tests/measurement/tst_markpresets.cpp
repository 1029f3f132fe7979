// Pictures in which the mark can be seen and the default values of the detector do not find it,
// from picture to calibrated centre.

#include "MarkSearch.h"

#include <QTest>

using namespace meridax;

class tst_markpresets : public QObject
{
    Q_OBJECT

private slots:
    void oneClickFindsTheMark_data();
    void oneClickFindsTheMark();
};

void tst_markpresets::oneClickFindsTheMark_data()
{
    QTest::addColumn<QByteArray>("preset");
    QTest::addColumn<bool>("foundByDefault");
    QTest::addColumn<int>("lacks"); // the first filter that rejects the mark, -1 for any
    const auto row = [](const char *preset, bool foundByDefault, int lacks) {
        QTest::newRow(preset) << QByteArray(preset) << foundByDefault << lacks;
    };
    row("clear", true, -1);
    row("blurred", false, int(BlobFilter::Circularity));
    row("oblique", false, int(BlobFilter::Inertia));
    row("small", false, int(BlobFilter::MinArea));
    row("flicker", false, -1);
    row("noisy", false, -1);
}

void tst_markpresets::oneClickFindsTheMark()
{
    QFETCH(QByteArray, preset);
    QFETCH(bool, foundByDefault);
    QFETCH(int, lacks);
    accuracy::MarkCamera camera;
    camera.setUp(*simcam::findPreset(preset.constData()));
    const accuracy::MarkOutcome outcome = accuracy::calibrate(camera);
    QCOMPARE(outcome.foundByDefault, foundByDefault);
    QCOMPARE(outcome.set.has_value(), !foundByDefault);
    if (lacks >= 0) {
        const bool isTold = std::ranges::any_of(outcome.lacks, [&](const BlobShortfall &shortfall) {
            return int(shortfall.filter) == lacks;
        });
        QVERIFY(isTold);
    }
    QVERIFY2(outcome.foundAfterClick, qPrintable(outcome.reason));
    QCOMPARE_LT(outcome.centreError, 0.15);
}

QTEST_APPLESS_MAIN(tst_markpresets)
#include "tst_markpresets.moc"
