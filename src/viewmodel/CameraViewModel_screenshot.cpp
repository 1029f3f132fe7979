// Screenshots: where they go, how they are written, and the one without the overlay.

#include "viewmodel/CameraViewModel.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QSaveFile>

namespace meridax {

QString CameraViewModel::nextScreenshotFilePath() const
{
    const QString &folder = m_settings.screenshotPath;
    if (folder.isEmpty()) {
        qInfo() << "Screenshot: kein Zielordner gesetzt";
        return {};
    }
    if (!QDir().mkpath(folder)) {
        qWarning() << "Screenshot: Zielordner konnte nicht erzeugt werden:" << folder;
        return {};
    }
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss_zzz"));
    return QDir(folder).filePath(QStringLiteral("meridax_%1.png").arg(time));
}

void CameraViewModel::noteScreenshotSaved(const QString &fullPath) const
{
    qInfo() << "Screenshot gespeichert:" << fullPath;
}

QString CameraViewModel::captureScreenshot() const
{
    const QImage frame = m_controller.latestFrame();
    if (frame.isNull()) {
        qInfo() << "Screenshot: kein Frame verfügbar (Kamera nicht aktiv?)";
        return {};
    }
    QString path = nextScreenshotFilePath(); // not const: it is moved out
    if (path.isEmpty() || !saveScreenshot(frame, path))
        return {};
    noteScreenshotSaved(path);
    return path;
}

bool CameraViewModel::saveScreenshot(const QImage &image, const QString &fullPath) const
{
    // Nothing half-written stays behind on a full disk.
    QSaveFile file(fullPath);
    if (file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.commit())
        return true;
    qWarning() << "Screenshot: Speichern fehlgeschlagen:" << fullPath;
    return false;
}

} // namespace meridax
