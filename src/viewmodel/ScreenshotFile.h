#pragma once

#include <QByteArray>
#include <QString>

namespace meridax {

/// An image file for a report, as it is on the disk.
struct ScreenshotFile
{
    QByteArray bytes;
    QString mime;  ///< "image/png" or "image/jpeg", by the content
    QString error; ///< for the user, in the language of the interface; empty on success
};

/// Reads a PNG or JPEG file of at most 5 MiB; `path` is a path or a file URL. A larger file is
/// refused before it is read. The image is neither decoded nor changed.
ScreenshotFile readScreenshotFile(const QString &path);

} // namespace meridax
