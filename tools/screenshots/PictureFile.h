#pragma once

#include <QImage>
#include <QString>

/// Writes `picture` as a PNG file at `path`, quickly rather than small. Warns when it cannot be
/// written.
void writePicture(const QImage &picture, const QString &path);

/// The same as a small file: with a palette.
void writeSmallPicture(const QImage &picture, const QString &path);
