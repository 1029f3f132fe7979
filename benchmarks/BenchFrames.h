#pragma once

#include <QImage>
#include <QVideoFrame>

/// A sensor's picture of a lit sleeve end with pixel noise and one dark mark; always the same.
QImage benchFrame(QSize size);

/// The same picture as a camera delivers it, compressed frame by frame.
QVideoFrame benchJpegFrame(QSize size);
