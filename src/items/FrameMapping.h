#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace meridax {

/// What decides how a camera frame lies in an item.
///
/// Frame coordinates are pixels of the frame, item coordinates those of the item's bounding
/// rectangle; both have their origin at the top left and y downwards.
struct FrameView
{
    QSizeF frame;           ///< size of the frame in frame pixels; not positive: no frame
    double zoom = 1.0;      ///< 1 fills the height of the item with the height of the frame
    QPointF anchor{-1, -1}; ///< frame point to keep in the middle; a negative part: frame's middle
    QRectF item;            ///< bounding rectangle of the item in item coordinates
};

/// The part of the frame that is shown, in frame pixels.
///
/// The scale is zoom * item height / frame height in both directions. While the picture is
/// narrower than the item only top and bottom are cropped; from the moment it fills the width all
/// sides are, around the anchor and never past the edge of the frame. Below zoom 1, and without a
/// frame or an item to show it in, the whole frame is the result.
QRectF viewSourceRect(const FrameView &view);

/// Where viewSourceRect() lands in the item, in item coordinates: the whole item once the picture
/// fills its width, otherwise a centred rectangle with empty strips at its sides.
QRectF viewDestRect(const FrameView &view);

/// The item coordinates of the frame point `point`, for two rectangles of one view. Without a
/// source the result is the origin of `dest`.
QPointF frameToItem(const QRectF &source, const QRectF &dest, QPointF point);

/// The inverse of frameToItem(); the origin of `source` where `dest` has no height.
QPointF itemToFrame(const QRectF &source, const QRectF &dest, QPointF point);

} // namespace meridax
