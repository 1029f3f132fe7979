#pragma once

#include "items/FrameMapping.h"

#include <QImage>
#include <QMutex>
#include <QQuickItem>

namespace meridax {

/// Shows the live frame and publishes the only mapping between frame pixels and the screen.
///
/// The frame lies in a texture at full camera resolution; zooming only changes which part of it is
/// sampled. Whoever draws or hit-tests over the picture uses `viewSourceRect` (frame pixels) and
/// `viewDestRect` (item coordinates), so that marks and picture cannot drift apart.
class VideoFrameItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

    /// Magnification, at least 0.01; at 1 the height of the frame fills the height of the item.
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    /// Frame point to keep in the middle of the view, in frame pixels; negative means the frame's
    /// middle.
    Q_PROPERTY(double anchorX READ anchorX WRITE setAnchorX NOTIFY anchorChanged)
    Q_PROPERTY(double anchorY READ anchorY WRITE setAnchorY NOTIFY anchorChanged)
    /// The part of the frame that is shown, in frame pixels; (0, 0, -1, -1) without a frame.
    Q_PROPERTY(QRectF viewSourceRect READ viewSourceRect NOTIFY viewRectsChanged)
    /// Where that part lies, in item coordinates; the whole item without a frame.
    Q_PROPERTY(QRectF viewDestRect READ viewDestRect NOTIFY viewRectsChanged)

public:
    explicit VideoFrameItem(QQuickItem *parent = nullptr);

    double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    double anchorX() const { return m_anchorX; }
    void setAnchorX(double anchorX);
    double anchorY() const { return m_anchorY; }
    void setAnchorY(double anchorY);
    QRectF viewSourceRect() const;
    QRectF viewDestRect() const;

    /// Shows `frame` from the next synchronisation on, without copying its pixels. Any thread;
    /// `viewRectsChanged` follows queued if the size is a new one.
    Q_INVOKABLE void setFrame(const QImage &frame);
    /// Shows nothing until the next setFrame(). Any thread.
    Q_INVOKABLE void clearFrame();

signals:
    void zoomChanged();
    void anchorChanged();
    void viewRectsChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    FrameView view(QSize frameSize) const;
    QSize frameSize() const;
    void setAnchor(double *anchor, double value);
    void postUpdate(bool viewRectsChange);

    mutable QMutex m_mutex; ///< guards m_frame, m_frameVersion and m_frameSize
    QImage m_frame;
    quint64 m_frameVersion = 0; ///< raised by each setFrame() and clearFrame()
    double m_zoom = 1.0;
    double m_anchorX = -1.0;
    double m_anchorY = -1.0;
    QSize m_frameSize; ///< (-1, -1) without a frame
};

} // namespace meridax
