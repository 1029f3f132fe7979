// Screenshots: where they go and the one without the overlay.

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
    if (path.isEmpty())
        return {};
    // Nothing half-written stays behind on a full disk.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !frame.save(&file, "PNG") || !file.commit()) {
        qWarning() << "Screenshot: Speichern fehlgeschlagen:" << path;
        return {};
    }
    noteScreenshotSaved(path);
    return path;
}

} // namespace meridax
