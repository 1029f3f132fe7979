#include "items/VideoFrameItem.h"

#include <QQuickWindow>
#include <QSGSimpleTextureNode>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <thread>

using meridax::VideoFrameItem;

namespace {

/// Watches which texture the item hands to the scene graph.
class WatchedItem : public VideoFrameItem
{
public:
    int synchronisations = 0;
    int uploads = 0;
    bool hasNode = false;
    QRectF drawnSource;

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override
    {
        auto *node =
            static_cast<QSGSimpleTextureNode *>(VideoFrameItem::updatePaintNode(oldNode, data));
        ++synchronisations;
        hasNode = node != nullptr;
        const QSGTexture *texture = node ? node->texture() : nullptr;
        if (hasNode && texture != m_texture)
            ++uploads;
        m_texture = texture;
        if (node)
            drawnSource = node->sourceRect();
        return node;
    }

private:
    const QSGTexture *m_texture = nullptr;
};

QImage frame(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB888);
    image.fill(Qt::darkCyan);
    return image;
}

} // namespace

class TestVideoFrameItem : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(); }
    void emptyItem();
    void sizeChangeIsAnnouncedOnceAndQueued();
    void framesMayComeFromAnotherThread();
    void writersSkipEqualValues();
    void zoomHasALowerBound_data();
    void zoomHasALowerBound();
    void onlyResizingChangesTheRectangles();
    void zoomingUploadsNothing();
    void clearedItemDrawsNothing();
};

void TestVideoFrameItem::emptyItem()
{
    VideoFrameItem item;
    item.setSize({300, 200});
    QCOMPARE(item.viewSourceRect(), QRectF(0, 0, -1, -1));
    QCOMPARE(item.viewDestRect(), QRectF(0, 0, 300, 200));
    QSignalSpy rects(&item, &VideoFrameItem::viewRectsChanged);
    item.clearFrame();
    QCoreApplication::processEvents();
    QCOMPARE(rects.count(), 0);
}

void TestVideoFrameItem::sizeChangeIsAnnouncedOnceAndQueued()
{
    VideoFrameItem item;
    item.setSize({400, 300});
    QSignalSpy rects(&item, &VideoFrameItem::viewRectsChanged);

    item.setFrame(frame(80, 60));
    QCOMPARE(rects.count(), 0);
    item.setFrame(frame(80, 60));
    QTRY_COMPARE(rects.count(), 1);
    QCOMPARE(item.viewSourceRect(), QRectF(0, 0, 80, 60));

    item.setFrame(frame(80, 60));
    QCoreApplication::processEvents();
    QCOMPARE(rects.count(), 1);
    item.setFrame(frame(160, 120));
    QTRY_COMPARE(rects.count(), 2);

    item.clearFrame();
    QCOMPARE(rects.count(), 2);
    QTRY_COMPARE(rects.count(), 3);
    QCOMPARE(item.viewSourceRect(), QRectF(0, 0, -1, -1));
}

void TestVideoFrameItem::framesMayComeFromAnotherThread()
{
    QQuickWindow window;
    window.resize(400, 300);
    WatchedItem item;
    item.setParentItem(window.contentItem());
    item.setSize({400, 300});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QThread *signalThread = nullptr;
    connect(
        &item, &VideoFrameItem::viewRectsChanged, &item,
        [&] { signalThread = QThread::currentThread(); }, Qt::DirectConnection);
    std::thread producer([&item] {
        for (int i = 1; i <= 50; ++i)
            item.setFrame(frame(40 + i % 2, 30));
    });
    producer.join();
    QTRY_VERIFY(item.hasNode);
    QCOMPARE(signalThread, QThread::currentThread());
}

void TestVideoFrameItem::writersSkipEqualValues()
{
    VideoFrameItem item;
    QSignalSpy zoom(&item, &VideoFrameItem::zoomChanged);
    QSignalSpy anchor(&item, &VideoFrameItem::anchorChanged);
    QSignalSpy rects(&item, &VideoFrameItem::viewRectsChanged);
    item.setZoom(1.0);
    item.setAnchorX(-1.0);
    item.setAnchorY(-1.0);
    QCOMPARE(rects.count(), 0);
    item.setZoom(2.0);
    item.setAnchorX(10.0);
    item.setAnchorY(20.0);
    QCOMPARE(zoom.count(), 1);
    QCOMPARE(anchor.count(), 2);
    QCOMPARE(rects.count(), 3);
    QCOMPARE(item.anchorX(), 10.0);
    QCOMPARE(item.anchorY(), 20.0);
}

void TestVideoFrameItem::zoomHasALowerBound_data()
{
    QTest::addColumn<double>("written");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -3.0;
    QTest::newRow("not a number") << std::nan("");
}

void TestVideoFrameItem::zoomHasALowerBound()
{
    QFETCH(double, written);
    VideoFrameItem item;
    item.setZoom(written);
    QCOMPARE(item.zoom(), 0.01);
}

void TestVideoFrameItem::onlyResizingChangesTheRectangles()
{
    VideoFrameItem item;
    item.setSize({100, 100});
    QSignalSpy rects(&item, &VideoFrameItem::viewRectsChanged);
    item.setPosition({30, 40});
    QCOMPARE(rects.count(), 0);
    item.setSize({200, 100});
    QCOMPARE(rects.count(), 1);
    QCOMPARE(item.viewDestRect(), QRectF(0, 0, 200, 100));
}

void TestVideoFrameItem::zoomingUploadsNothing()
{
    QQuickWindow window;
    window.resize(400, 300);
    WatchedItem item;
    item.setParentItem(window.contentItem());
    item.setSize({400, 300});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    item.setFrame(frame(800, 600));
    QTRY_COMPARE(item.uploads, 1);
    QTRY_COMPARE(item.drawnSource, QRectF(0, 0, 800, 600));
    for (const double zoom : {2.0, 4.0}) {
        const int before = item.synchronisations;
        item.setZoom(zoom);
        QTRY_VERIFY(item.synchronisations > before);
        QTRY_COMPARE(item.drawnSource, item.viewSourceRect());
    }
    QCOMPARE(item.uploads, 1);
    item.setFrame(frame(800, 600));
    QTRY_COMPARE(item.uploads, 2);
}

void TestVideoFrameItem::clearedItemDrawsNothing()
{
    QQuickWindow window;
    window.resize(400, 300);
    WatchedItem item;
    item.setParentItem(window.contentItem());
    item.setSize({400, 300});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    item.setFrame(frame(80, 60));
    QTRY_VERIFY(item.hasNode);
    item.clearFrame();
    QTRY_VERIFY(!item.hasNode);
    item.setFrame(frame(80, 60));
    QTRY_VERIFY(item.hasNode);
    item.setFrame(QImage());
    QTRY_VERIFY(!item.hasNode);
}

QTEST_MAIN(TestVideoFrameItem)
#include "tst_videoframeitem.moc"
