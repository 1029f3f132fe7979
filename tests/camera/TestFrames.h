#pragma once

#include <QImage>
#include <QPainter>
#include <QVideoFrame>

/// A light frame with dark round marks of `radius` px at `marks` (frame px, sub-pixel).
inline QImage frameWithMarks(QSize size, const QList<QPointF> &marks, double radius = 24.0)
{
    QImage image(size, QImage::Format_RGB888);
    image.fill(QColor(200, 190, 180));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(25, 30, 35));
    // The painter's origin is the corner of a pixel, a frame coordinate means its middle.
    for (const QPointF &mark : marks)
        painter.drawEllipse(mark + QPointF(0.5, 0.5), radius, radius);
    return image;
}
