#include "items/FrameMapping.h"

#include <QTest>

using namespace meridax;

namespace {

constexpr double Tolerance = 1e-9;

bool near(const QRectF &a, const QRectF &b)
{
    return std::abs(a.x() - b.x()) < Tolerance && std::abs(a.y() - b.y()) < Tolerance &&
           std::abs(a.width() - b.width()) < Tolerance &&
           std::abs(a.height() - b.height()) < Tolerance;
}

const QPointF Middle(-1, -1);

} // namespace

class TestFrameMapping : public QObject
{
    Q_OBJECT

private slots:
    void rectangles_data();
    void rectangles();
    void sourceStaysInsideTheFrame();
    void rectanglesMeetWhereThePictureFillsTheWidth();
    void conversionsAreInverse_data();
    void conversionsAreInverse();
    void conversionWithoutPicture();
};

void TestFrameMapping::rectangles_data()
{
    QTest::addColumn<QSizeF>("frame");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("anchor");
    QTest::addColumn<QRectF>("item");
    QTest::addColumn<QRectF>("source");
    QTest::addColumn<QRectF>("dest");

    const QSizeF fourToThree(800, 600);
    const QRectF wide(0, 0, 1600, 900);
    QTest::newRow("4:3 in 16:9: whole frame, strips at the sides")
        << fourToThree << 1.0 << Middle << wide << QRectF(0, 0, 800, 600)
        << QRectF(200, 0, 1200, 900);
    QTest::newRow("4:3 in 1:1: sides cropped about the middle")
        << fourToThree << 1.0 << Middle << QRectF(0, 0, 600, 600) << QRectF(100, 0, 600, 600)
        << QRectF(0, 0, 600, 600);
    QTest::newRow("4:3 in 1:1: sides cropped about the anchor")
        << fourToThree << 1.0 << QPointF(320, 0) << QRectF(0, 0, 600, 600)
        << QRectF(20, 0, 600, 600) << QRectF(0, 0, 600, 600);
    QTest::newRow("phase 1: only top and bottom cropped, picture grows sideways")
        << fourToThree << 1.25 << Middle << wide << QRectF(0, 60, 800, 480)
        << QRectF(50, 0, 1500, 900);
    QTest::newRow("border: picture exactly as wide as the item")
        << fourToThree << 4.0 / 3 << Middle << wide << QRectF(0, 75, 800, 450) << wide;
    QTest::newRow("phase 2: cropped on all sides")
        << fourToThree << 2.0 << QPointF(400, 300) << wide
        << QRectF(400 - 800.0 / 3, 150, 1600.0 / 3, 300) << wide;
    QTest::newRow("zoom 5, anchor in the top left corner")
        << fourToThree << 5.0 << QPointF(0, 0) << wide << QRectF(0, 0, 640.0 / 3, 120) << wide;
    QTest::newRow("zoom 5, anchor in the bottom right corner")
        << fourToThree << 5.0 << QPointF(800, 600) << wide
        << QRectF(800 - 640.0 / 3, 480, 640.0 / 3, 120) << wide;
    QTest::newRow("zoom below 1: shrinks about the middle, whatever the anchor")
        << fourToThree << 0.5 << QPointF(0, 0) << wide << QRectF(0, 0, 800, 600)
        << QRectF(500, 225, 600, 450);
    QTest::newRow("zoom below 1 in a narrow item: wider than the item")
        << fourToThree << 0.9 << Middle << QRectF(0, 0, 300, 600) << QRectF(0, 0, 800, 600)
        << QRectF(-210, 30, 720, 540);
    QTest::newRow("item away from the origin")
        << fourToThree << 1.0 << Middle << QRectF(10, 20, 1600, 900) << QRectF(0, 0, 800, 600)
        << QRectF(210, 20, 1200, 900);
    QTest::newRow("no frame") << QSizeF(-1, -1) << 2.0 << Middle << wide << QRectF(0, 0, -1, -1)
                              << wide;
    QTest::newRow("no item") << fourToThree << 2.0 << Middle << QRectF() << QRectF(0, 0, 800, 600)
                             << QRectF();
}

void TestFrameMapping::rectangles()
{
    QFETCH(QSizeF, frame);
    QFETCH(double, zoom);
    QFETCH(QPointF, anchor);
    QFETCH(QRectF, item);
    const FrameView view{frame, zoom, anchor, item};

    QFETCH(QRectF, source);
    const QRectF actualSource = viewSourceRect(view);
    QVERIFY2(near(actualSource, source), QTest::toString(actualSource));
    QFETCH(QRectF, dest);
    const QRectF actualDest = viewDestRect(view);
    QVERIFY2(near(actualDest, dest), QTest::toString(actualDest));
}

void TestFrameMapping::sourceStaysInsideTheFrame()
{
    const QSizeF frame(3264, 2448);
    const QRectF bounds(QPointF(-Tolerance, -Tolerance), frame + QSizeF(2e-9, 2e-9));
    for (double zoom = 1.0; zoom <= 5.0; zoom += 0.05) {
        for (const QPointF anchor : {QPointF(0, 0), QPointF(3264, 0), QPointF(0, 2448),
                                     QPointF(3264, 2448), QPointF(9000, 9000), Middle}) {
            for (const QSizeF item : {QSizeF(1600, 832), QSizeF(800, 482), QSizeF(500, 900)}) {
                const QRectF source = viewSourceRect({frame, zoom, anchor, {{0, 0}, item}});
                QVERIFY(bounds.contains(source));
                QVERIFY(qFuzzyCompare(source.height(), frame.height() / zoom));
            }
        }
    }
}

// One uniform scale, and no jump where the second phase begins.
void TestFrameMapping::rectanglesMeetWhereThePictureFillsTheWidth()
{
    const QSizeF frame(1024, 768); // all figures exact in binary
    const QRectF item(0, 0, 1536, 768);
    const double border = 1.5;
    const FrameView below{frame, border - 1e-6, {100, 700}, item};
    const FrameView above{frame, border, {100, 700}, item};
    QVERIFY(std::abs(viewSourceRect(below).width() - viewSourceRect(above).width()) < 0.01);
    QVERIFY(std::abs(viewDestRect(below).width() - viewDestRect(above).width()) < 0.01);
    QCOMPARE(viewDestRect(above), item);
    for (const FrameView &view : {below, above}) {
        const QRectF source = viewSourceRect(view);
        const QRectF dest = viewDestRect(view);
        QCOMPARE(dest.width() / source.width(), dest.height() / source.height());
        QCOMPARE(dest.height() / source.height(), view.zoom * item.height() / frame.height());
    }
}

void TestFrameMapping::conversionsAreInverse_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("shrunk") << 0.5;
    QTest::newRow("whole") << 1.0;
    QTest::newRow("phase 1") << 1.2;
    QTest::newRow("phase 2") << 3.7;
}

void TestFrameMapping::conversionsAreInverse()
{
    QFETCH(double, zoom);
    const FrameView view{{3264, 2448}, zoom, {1700, 1100}, {5, 7, 1600, 832}};
    const QRectF source = viewSourceRect(view);
    const QRectF dest = viewDestRect(view);
    QCOMPARE(frameToItem(source, dest, source.topLeft()), dest.topLeft());
    QCOMPARE(frameToItem(source, dest, source.bottomRight()), dest.bottomRight());
    const QPointF point(1650.25, 1190.75);
    QCOMPARE(itemToFrame(source, dest, frameToItem(source, dest, point)), point);
}

void TestFrameMapping::conversionWithoutPicture()
{
    const FrameView noFrame{{-1, -1}, 1.0, Middle, {0, 0, 100, 100}};
    QCOMPARE(frameToItem(viewSourceRect(noFrame), viewDestRect(noFrame), {50, 50}), QPointF(0, 0));
    const FrameView noItem{{800, 600}, 1.0, Middle, {}};
    QCOMPARE(itemToFrame(viewSourceRect(noItem), viewDestRect(noItem), {50, 50}), QPointF(0, 0));
}

QTEST_APPLESS_MAIN(TestFrameMapping)
#include "tst_framemapping.moc"
