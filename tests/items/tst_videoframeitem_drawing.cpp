#include "items/VideoFrameItem.h"

#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTest>

using namespace meridax;

namespace {

const QSize FrameSize(400, 300);
const QColor Ground(0, 0, 255);

/// A frame whose colour tells the position: red grows with x, green with y; no blue.
QImage positionFrame()
{
    QImage image(FrameSize, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 255 / image.width(), y * 255 / image.height(), 0));
    }
    return image;
}

/// Position in the frame that a colour of positionFrame() tells, in frame pixels.
QPointF positionOf(QColor color)
{
    return {color.red() / 255.0 * FrameSize.width(), color.green() / 255.0 * FrameSize.height()};
}

} // namespace

/// What really lands on the screen, drawn by OpenGL.
class TestVideoFrameItemDrawing : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(); }
    void pixelsFollowTheMapping_data();
    void pixelsFollowTheMapping();
};

void TestVideoFrameItemDrawing::pixelsFollowTheMapping_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("anchor");
    QTest::newRow("strips at the sides") << QSize(640, 360) << 1.0 << QPointF(-1, -1);
    QTest::newRow("shrunk") << QSize(640, 360) << 0.5 << QPointF(-1, -1);
    QTest::newRow("grows sideways") << QSize(640, 360) << 1.2 << QPointF(120, 90);
    QTest::newRow("cropped on all sides") << QSize(640, 360) << 2.5 << QPointF(130, 180);
    QTest::newRow("zoom 5 in a corner") << QSize(640, 360) << 5.0 << QPointF(400, 300);
    QTest::newRow("square") << QSize(360, 360) << 1.0 << QPointF(150, 150);
}

void TestVideoFrameItemDrawing::pixelsFollowTheMapping()
{
    QFETCH(QSize, size);
    QFETCH(double, zoom);
    QFETCH(QPointF, anchor);

    QQuickWindow window;
    window.setColor(Ground);
    window.resize(size);
    VideoFrameItem item(window.contentItem());
    item.setSize(size);
    item.setZoom(zoom);
    item.setAnchorX(anchor.x());
    item.setAnchorY(anchor.y());
    item.setFrame(positionFrame());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.rendererInterface()->graphicsApi(), QSGRendererInterface::OpenGL);

    const QImage grabbed = window.grabWindow();
    QCOMPARE(grabbed.size(), size);
    const QRectF source = item.viewSourceRect();
    const QRectF dest = item.viewDestRect();
    for (int y = 5; y < size.height(); y += 10) {
        for (int x = 5; x < size.width(); x += 10) {
            const QPointF pixel(x + 0.5, y + 0.5);
            const QColor color = grabbed.pixelColor(x, y);
            if (!dest.contains(pixel)) {
                QCOMPARE(color, Ground);
                continue;
            }
            const QPointF expected = itemToFrame(source, dest, pixel);
            const QPointF off = positionOf(color) - expected;
            // One step of colour is 1.6 frame pixels.
            QVERIFY2(std::abs(off.x()) < 3 && std::abs(off.y()) < 3, QTest::toString(off));
        }
    }
}

QTEST_MAIN(TestVideoFrameItemDrawing)
#include "tst_videoframeitem_drawing.moc"
