#include "viewmodel/ScreenshotFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

namespace meridax {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMaxBytes = 5LL * 1024 * 1024;

QString tr(const char *text)
{
    return QCoreApplication::translate("meridax::CameraViewModel", text);
}

QString localPath(const QString &path)
{
    constexpr QLatin1StringView scheme = "file://"_L1;
    if (!path.startsWith(scheme))
        return path;
    // The file dialog encodes what a URL cannot hold.
    const QString decoded = QUrl(path).toLocalFile();
    return QFileInfo::exists(decoded) ? decoded : path.sliced(scheme.size());
}

QString mimeOf(const QByteArray &format)
{
    if (format == "png")
        return u"image/png"_s;
    if (format == "jpg" || format == "jpeg")
        return u"image/jpeg"_s;
    return {};
}

ScreenshotFile failure(const QString &error)
{
    return {{}, {}, error};
}

} // namespace

ScreenshotFile readScreenshotFile(const QString &path)
{
    const QString local = localPath(path);
    const QFileInfo info(local);
    if (!info.isFile()) {
        return failure(tr(QT_TRANSLATE_NOOP("meridax::CameraViewModel", "Datei nicht gefunden: %1"))
                           .arg(local));
    }
    if (info.size() > kMaxBytes) {
        return failure(
            tr(QT_TRANSLATE_NOOP("meridax::CameraViewModel", "Datei zu groß (max. 5 MB).")));
    }
    const QByteArray format = QImageReader::imageFormat(local).toLower();
    const QString mime = mimeOf(format);
    if (mime.isEmpty()) {
        return failure(tr(QT_TRANSLATE_NOOP("meridax::CameraViewModel",
                                            "Nur PNG / JPEG erlaubt (erkannt: %1)."))
                           .arg(QString::fromLatin1(format)));
    }
    QFile file(local);
    if (!file.open(QIODevice::ReadOnly)) {
        return failure(
            tr(QT_TRANSLATE_NOOP("meridax::CameraViewModel", "Datei kann nicht gelesen werden: %1"))
                .arg(file.errorString()));
    }
    // No further than what was measured: the file may be growing.
    return {file.read(kMaxBytes), mime, {}};
}

} // namespace meridax
