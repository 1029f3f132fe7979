#pragma once

#include "camera/CameraController.h"

#include <QAbstractVideoBuffer>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <QVideoFrame>

#include <memory>
#include <mutex>
#include <semaphore>

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

/// A frame's memory that tells when it has been read.
class ObservedBuffer : public QAbstractVideoBuffer
{
public:
    ObservedBuffer(const QImage &image, bool &read)
        : m_image(image.convertToFormat(QImage::Format_RGBX8888))
        , m_read(read)
    {
    }

    QVideoFrameFormat format() const override
    {
        return {m_image.size(), QVideoFrameFormat::Format_RGBX8888};
    }

    MapData map(QVideoFrame::MapMode) override
    {
        m_read = true;
        MapData data;
        data.planeCount = 1;
        data.bytesPerLine[0] = static_cast<int>(m_image.bytesPerLine());
        data.data[0] = m_image.bits();
        data.dataSize[0] = static_cast<int>(m_image.sizeInBytes());
        return data;
    }

private:
    QImage m_image;
    bool &m_read;
};

/// Hands in one frame and returns whether the pipeline took it.
inline bool offer(meridax::CameraController &controller, const QImage &image)
{
    bool read = false;
    controller.onVideoFrame(QVideoFrame(std::make_unique<ObservedBuffer>(image, read)));
    return read;
}

/// Hands in `image` once. The pipeline frees itself a moment after it has published the last one.
inline bool offerWhenFree(meridax::CameraController &controller, const QImage &image)
{
    return QTest::qWaitFor([&] { return offer(controller, image); });
}

/// Holds each frame in the pipeline, after its publication, until letGo().
class FrameGate
{
public:
    explicit FrameGate(meridax::CameraController &controller)
    {
        QObject::connect(
            &controller, &meridax::CameraController::frameReady, &m_context,
            [this](const QImage &image) {
                {
                    const std::lock_guard lock(m_mutex);
                    m_widths << image.width();
                }
                m_published.release();
                m_released.acquire();
            },
            Qt::DirectConnection);
    }

    void awaitFrame() { m_published.acquire(); }
    void letGo() { m_released.release(); }

    /// The widths of the frames that were awaited, in order.
    QList<int> widths() const
    {
        const std::lock_guard lock(m_mutex);
        return m_widths;
    }

private:
    std::counting_semaphore<> m_published{0};
    std::counting_semaphore<> m_released{0};
    mutable std::mutex m_mutex; // guards m_widths
    QList<int> m_widths;
    QObject m_context; // the last, so that its connection ends before what the slot uses
};
