// The update check, once per run, and what is known of releases.

#include "viewmodel/CameraViewModel.h"

#include "BuildInfo.h"
#include "server/UpdateState.h"
#include "viewmodel/BoundedText.h"
#include "viewmodel/WebLink.h"

#include <QDebug>
#include <QFile>

namespace meridax {

bool CameraViewModel::updateAvailable() const
{
    return offersUpdate(m_updateInfo);
}

void CameraViewModel::checkForUpdates()
{
    if (m_updateCheckStarted)
        return;
    m_updateCheckStarted = true;
    qDebug() << "[UpdateCheck] starte Anfrage — version=" << build::version()
             << "platform=" << build::platform();
    m_supportClient.fetchUpdateInfo(m_machineGuid, m_serverConfig.productCode, build::version(),
                                    build::platform());
}

void CameraViewModel::onUpdateInfo(bool success, const UpdateInfo &info, const QString &error)
{
    if (!success) {
        qDebug() << "[UpdateCheck] fehlgeschlagen, ignoriert:" << error;
        return;
    }
    const bool serverChanged = info.server != m_updateInfo.server;
    m_updateInfo = info;
    m_dismissedVersion = loadDismissedVersion();
    m_updateBannerVisible = announcesUpdate(info, m_dismissedVersion);
    qDebug() << "[UpdateCheck] latest=" << info.latest.version << "channel=" << info.latest.channel
             << "available=" << updateAvailable() << "isBetaTester=" << info.isBetaTester
             << "bannerVisible=" << m_updateBannerVisible;
    emit updateInfoChanged();
    if (serverChanged)
        emit serverInfoStateChanged();
}

QString CameraViewModel::updateReleaseNotes() const
{
    return boundedText(m_updateInfo.latest.releaseNotes);
}

void CameraViewModel::dismissUpdateBanner()
{
    if (!m_updateBannerVisible)
        return;
    m_updateBannerVisible = false;
    m_dismissedVersion = updateVersion();
    saveDismissedVersion(m_dismissedVersion);
    emit updateInfoChanged();
}

void CameraViewModel::openUpdateDownload() const
{
    openDownload(updateDownloadUrl());
}

void CameraViewModel::openStableDownload() const
{
    openDownload(latestStableDownloadUrl());
}

void CameraViewModel::openDownload(const QString &address) const
{
    if (address.isEmpty())
        qWarning() << "[UpdateBanner] downloadUrl ist leer — Abbruch.";
    else if (!openWebLink(address))
        qWarning() << "[UpdateBanner] ungültige Download-URL (kein http/https):" << address;
}

void CameraViewModel::openLink(const QString &address) const
{
    if (!openWebLink(address))
        qWarning() << "[WhatsNew] Link nicht geöffnet (kein http/https):" << address;
}

QString CameraViewModel::installedReleaseNotes() const
{
    static const QString notes = [] {
        QFile file(QStringLiteral(":/resources/release-notes.md"));
        if (!file.open(QIODevice::ReadOnly)) {
            qWarning() << "[WhatsNew] release-notes.md fehlt im Ressourcen-Bundle";
            return QString();
        }
        return QString::fromUtf8(file.readAll());
    }();
    return notes;
}

} // namespace meridax
