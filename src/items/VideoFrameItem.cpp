#include "items/VideoFrameItem.h"

#include <QMutexLocker>
#include <QQuickWindow>
#include <QSGSimpleTextureNode>
#include <QSGTexture>

#include <memory>

namespace meridax {

namespace {

constexpr double kMinZoom = 0.01;

/// Owns its texture and knows which frame it holds.
class VideoFrameNode : public QSGSimpleTextureNode
{
public:
    VideoFrameNode()
    {
        setOwnsTexture(true);
        setFiltering(QSGTexture::Linear);
    }

    quint64 uploadedVersion = 0; ///< frame version of the texture; 0: none yet
};

} // namespace

VideoFrameItem::VideoFrameItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(QQuickItem::ItemHasContents);
}

void VideoFrameItem::setZoom(double zoom)
{
    const double bounded = zoom >= kMinZoom ? zoom : kMinZoom; // so that NaN is bounded as well
    if (qFuzzyCompare(bounded, m_zoom))
        return;
    m_zoom = bounded;
    emit zoomChanged();
    emit viewRectsChanged();
    update();
}

void VideoFrameItem::setAnchorX(double anchorX)
{
    setAnchor(&m_anchorX, anchorX);
}

void VideoFrameItem::setAnchorY(double anchorY)
{
    setAnchor(&m_anchorY, anchorY);
}

void VideoFrameItem::setAnchor(double *anchor, double value)
{
    if (qFuzzyCompare(value, *anchor))
        return;
    *anchor = value;
    emit anchorChanged();
    emit viewRectsChanged();
    update();
}

QRectF VideoFrameItem::viewSourceRect() const
{
    return meridax::viewSourceRect(view(frameSize()));
}

QRectF VideoFrameItem::viewDestRect() const
{
    return meridax::viewDestRect(view(frameSize()));
}

void VideoFrameItem::setFrame(const QImage &frame)
{
    bool newSize = false;
    {
        const QMutexLocker lock(&m_mutex);
        m_frame = frame;
        ++m_frameVersion;
        newSize = m_frameSize != frame.size();
        m_frameSize = frame.size();
    }
    postUpdate(newSize);
}

void VideoFrameItem::clearFrame()
{
    bool newSize = false;
    {
        const QMutexLocker lock(&m_mutex);
        m_frame = QImage();
        ++m_frameVersion;
        newSize = !m_frameSize.isEmpty();
        if (newSize)
            m_frameSize = QSize(-1, -1);
    }
    postUpdate(newSize);
}

QSGNode *VideoFrameItem::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    QImage frame;
    quint64 version = 0;
    {
        const QMutexLocker lock(&m_mutex);
        frame = m_frame;
        version = m_frameVersion;
    }
    std::unique_ptr<VideoFrameNode> node(static_cast<VideoFrameNode *>(oldNode));
    if (frame.isNull() || !window())
        return nullptr;

    if (!node)
        node = std::make_unique<VideoFrameNode>();
    if (node->uploadedVersion != version) {
        QSGTexture *texture = window()->createTextureFromImage(frame);
        if (!texture)
            return nullptr;
        texture->setFiltering(QSGTexture::Linear);
        node->setTexture(texture);
        node->uploadedVersion = version;
    }
    const FrameView mapping = view(frame.size());
    node->setRect(meridax::viewDestRect(mapping));
    node->setSourceRect(meridax::viewSourceRect(mapping));
    return node.release();
}

void VideoFrameItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size()) // QSizeF compares fuzzily
        return;
    emit viewRectsChanged();
    update();
}

FrameView VideoFrameItem::view(QSize frameSize) const
{
    return {QSizeF(frameSize), m_zoom, QPointF(m_anchorX, m_anchorY), boundingRect()};
}

QSize VideoFrameItem::frameSize() const
{
    const QMutexLocker lock(&m_mutex);
    return m_frameSize;
}

void VideoFrameItem::postUpdate(bool viewRectsChange)
{
    if (viewRectsChange)
        QMetaObject::invokeMethod(this, &VideoFrameItem::viewRectsChanged, Qt::QueuedConnection);
    // Scheduling a repaint is for the item's own thread only.
    QMetaObject::invokeMethod(this, &QQuickItem::update, Qt::AutoConnection);
}

} // namespace meridax
