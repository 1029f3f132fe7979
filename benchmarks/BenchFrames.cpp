#include "BenchFrames.h"

#include <QAbstractVideoBuffer>
#include <QBuffer>
#include <QPainter>
#include <QVideoFrameFormat>

#include <algorithm>
#include <memory>
#include <random>

namespace {

class JpegBuffer : public QAbstractVideoBuffer
{
public:
    JpegBuffer(QByteArray data, QSize size)
        : m_data(std::move(data))
        , m_format(size, QVideoFrameFormat::Format_Jpeg)
    {
    }

    MapData map(QVideoFrame::MapMode) override
    {
        MapData map;
        map.planeCount = 1;
        map.bytesPerLine[0] = static_cast<int>(m_data.size());
        map.data[0] = reinterpret_cast<uchar *>(m_data.data());
        map.dataSize[0] = static_cast<int>(m_data.size());
        return map;
    }
    QVideoFrameFormat format() const override { return m_format; }

private:
    QByteArray m_data;
    QVideoFrameFormat m_format;
};

} // namespace

QImage benchFrame(QSize size)
{
    QImage image(size, QImage::Format_RGB888);
    const double h = size.height();
    QRadialGradient light(size.width() / 2.0, h / 2.0, h);
    light.setColorAt(0.0, QColor(225, 220, 210));
    light.setColorAt(1.0, QColor(120, 118, 112));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(image.rect(), light);
    painter.setPen(QPen(QColor(150, 148, 140), h / 200));
    for (const double r : {0.2, 0.42, 0.46})
        painter.drawEllipse(QPointF(size.width() / 2.0, h / 2.0), r * h, r * h);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(25, 25, 30));
    painter.drawEllipse(QPointF(size.width() / 2.0 + 0.31 * h, h / 2.0), 0.03 * h, 0.03 * h);
    painter.end();

    std::mt19937 random(1);
    std::normal_distribution<float> noise(0.0f, 2.0f);
    for (int y = 0; y < image.height(); ++y) {
        uchar *const line = image.scanLine(y);
        for (int x = 0; x < 3 * image.width(); ++x)
            line[x] = static_cast<uchar>(
                std::clamp(static_cast<float>(line[x]) + noise(random), 0.0f, 255.0f));
    }
    return image;
}

QVideoFrame benchJpegFrame(QSize size)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    benchFrame(size).save(&buffer, "JPG", 85);
    return QVideoFrame(std::make_unique<JpegBuffer>(data, size));
}
