// The legal texts: from the server, and from the file of an earlier run.

#include "server/BoundedText.h"
#include "viewmodel/CameraViewModel.h"

#include <QDebug>

#include <utility>

namespace meridax {

namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1StringView kEula = "eula"_L1;
constexpr QLatin1StringView kPrivacy = "privacy"_L1;

void storeDocument(const LegalDocument &document, QString &markdown, QString &version)
{
    markdown = document.contentMarkdown;
    if (version.isEmpty())
        version = document.version;
}

QString versionOrFirst(const QString &version)
{
    return version.isEmpty() ? u"1.0"_s : version;
}

} // namespace

bool CameraViewModel::legalDocsReady() const
{
    return !m_legalDocs.eulaMarkdown.isEmpty() && !m_legalDocs.privacyMarkdown.isEmpty();
}

// Kept as they came, and cut only for the window: the note of it is in the language of the moment.
QString CameraViewModel::eulaMarkdown() const
{
    return boundedText(m_legalDocs.eulaMarkdown);
}

QString CameraViewModel::privacyMarkdown() const
{
    return boundedText(m_legalDocs.privacyMarkdown);
}

void CameraViewModel::loadCachedLegalDocuments()
{
    LegalDocsRecord cached;
    if (!LegalDocumentCache::load(cached))
        return;
    m_legalDocs = std::move(cached);
    qDebug().nospace().noquote() << "[LegalDoc] Cache geladen: EULA v" << eulaVersion()
                                 << " + Datenschutz v" << privacyVersion();
}

void CameraViewModel::fetchLegalDocuments()
{
    m_legalDocs.eulaMarkdown.clear();
    m_legalDocs.privacyMarkdown.clear();
    m_legalDocsError.clear();
    m_legalDocsLoading = true;
    emit legalDocsChanged();
    for (const QLatin1StringView kind : {kEula, kPrivacy}) {
        m_supportClient.fetchLegalDocument(kind, m_serverConfig.apiBaseUrl +
                                                     "/api/license/legal/"_L1 + kind +
                                                     "?product="_L1 + m_serverConfig.productCode);
    }
}

void CameraViewModel::onLegalDocument(bool success, const QString &kind,
                                      const LegalDocument &document, const QString &error)
{
    if (!success) {
        qWarning() << "[LegalDoc] Fehler bei" << kind << ":" << error;
        m_legalDocsError = tr("Rechtstexte konnten nicht geladen werden. Bitte erneut versuchen.");
        m_legalDocsLoading = false;
        emit legalDocsChanged();
        return;
    }
    if (kind == kEula)
        storeDocument(document, m_legalDocs.eulaMarkdown, m_legalDocs.eulaVersion);
    else if (kind == kPrivacy)
        storeDocument(document, m_legalDocs.privacyMarkdown, m_legalDocs.privacyVersion);
    if (legalDocsReady()) {
        m_legalDocsLoading = false;
        m_legalDocsError.clear();
        LegalDocumentCache::save({versionOrFirst(eulaVersion()), m_legalDocs.eulaMarkdown,
                                  versionOrFirst(privacyVersion()), m_legalDocs.privacyMarkdown,
                                  QDateTime::currentDateTimeUtc()});
    }
    emit legalDocsChanged();
}

} // namespace meridax
