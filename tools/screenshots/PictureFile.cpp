#include "PictureFile.h"

#include "Palette.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

namespace {

void write(const QImage &picture, const QString &path, int compression)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QImageWriter writer(path, "png");
    writer.setCompression(compression);
    if (!writer.write(picture))
        qWarning("[screenshots] cannot write %s", qPrintable(path));
}

} // namespace

void writePicture(const QImage &picture, const QString &path)
{
    write(picture.convertToFormat(QImage::Format_RGB32), path, 20);
}

void writeSmallPicture(const QImage &picture, const QString &path)
{
    write(withPalette(picture), path, 100);
}
