#include "items/FrameMapping.h"

#include <algorithm>

namespace meridax {

namespace {

bool hasPicture(const FrameView &view)
{
    return view.frame.width() > 0 && view.frame.height() > 0 && view.item.width() > 0 &&
           view.item.height() > 0;
}

/// Width of the whole frame on the screen, in item coordinates.
double fullWidth(const FrameView &view)
{
    return view.item.height() / view.frame.height() * view.frame.width() * view.zoom;
}

/// Start of a span of the length `span` about `middle`, pushed inside 0..`total`.
double spanStart(double middle, double span, double total)
{
    return std::max(0.0, std::min(middle - span / 2, std::max(total - span, 0.0)));
}

/// Item pixels a frame pixel.
double pixelScale(const QRectF &source, const QRectF &dest)
{
    return source.height() > 0 ? dest.height() / source.height() : 0.0;
}

} // namespace

QRectF viewSourceRect(const FrameView &view)
{
    const double frameWidth = view.frame.width();
    const double frameHeight = view.frame.height();
    if (!hasPicture(view) || view.zoom < 1.0)
        return {0, 0, frameWidth, frameHeight};

    const double anchorX = view.anchor.x() < 0 ? frameWidth / 2 : view.anchor.x();
    const double anchorY = view.anchor.y() < 0 ? frameHeight / 2 : view.anchor.y();
    const double height = frameHeight / view.zoom;
    const double y = spanStart(anchorY, height, frameHeight);
    if (fullWidth(view) < view.item.width())
        return {0, y, frameWidth, height};

    const double width = view.item.width() / (view.item.height() / frameHeight * view.zoom);
    return {spanStart(anchorX, width, frameWidth), y, width, height};
}

QRectF viewDestRect(const FrameView &view)
{
    const QRectF &item = view.item;
    if (!hasPicture(view))
        return item;

    const double width = fullWidth(view);
    const double x = item.x() + (item.width() - width) / 2;
    if (view.zoom < 1.0) {
        const double height = item.height() * view.zoom;
        return {x, item.y() + (item.height() - height) / 2, width, height};
    }
    if (width < item.width())
        return {x, item.y(), width, item.height()};
    return item;
}

QPointF frameToItem(const QRectF &source, const QRectF &dest, QPointF point)
{
    return dest.topLeft() + (point - source.topLeft()) * pixelScale(source, dest);
}

QPointF itemToFrame(const QRectF &source, const QRectF &dest, QPointF point)
{
    const double scale = pixelScale(source, dest);
    if (scale <= 0)
        return source.topLeft();
    return source.topLeft() + (point - dest.topLeft()) / scale;
}

} // namespace meridax
