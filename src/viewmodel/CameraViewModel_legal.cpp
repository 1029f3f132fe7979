// The legal texts: from the server, and from the file of an earlier run.

#include "viewmodel/BoundedText.h"
#include "viewmodel/CameraViewModel.h"

#include <QDebug>

#include <chrono>
#include <utility>

namespace meridax {

namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1StringView kEula = "eula"_L1;
constexpr QLatin1StringView kPrivacy = "privacy"_L1;

/// What is older, or of a time to come, is asked for again.
bool isOld(const QDateTime &fetchedAt)
{
    constexpr std::chrono::days limit(7);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return !fetchedAt.isValid() || fetchedAt > now || fetchedAt.addDuration(limit) < now;
}

/// The first version of a run stays. A document of another kind is no text of ours.
void storeDocument(const QString &kind, const LegalDocument &document, LegalDocsRecord &record)
{
    const auto store = [&document](QString &markdown, QString &version) {
        markdown = document.contentMarkdown;
        if (version.isEmpty())
            version = document.version;
    };
    if (kind == kEula)
        store(record.eulaMarkdown, record.eulaVersion);
    else if (kind == kPrivacy)
        store(record.privacyMarkdown, record.privacyVersion);
}

bool isComplete(const LegalDocsRecord &record)
{
    return !record.eulaMarkdown.isEmpty() && !record.privacyMarkdown.isEmpty();
}

QString versionOrFirst(const QString &version)
{
    return version.isEmpty() ? u"1.0"_s : version;
}

} // namespace

bool CameraViewModel::legalDocsReady() const
{
    return isComplete(m_legalDocs);
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

// Old texts stay until both new ones are there: without a connection they are better than none.
void CameraViewModel::renewLegalDocuments()
{
    if (!legalDocsReady()) {
        fetchLegalDocuments();
    } else if (isOld(m_legalDocs.fetchedAt)) {
        m_renewedLegalDocs.emplace();
        requestLegalDocuments();
    }
}

void CameraViewModel::fetchLegalDocuments()
{
    m_renewedLegalDocs.reset();
    m_legalDocs.eulaMarkdown.clear();
    m_legalDocs.privacyMarkdown.clear();
    m_legalDocsError.clear();
    m_legalDocsLoading = true;
    emit legalDocsChanged();
    requestLegalDocuments();
}

void CameraViewModel::requestLegalDocuments()
{
    for (const QLatin1StringView kind : {kEula, kPrivacy}) {
        m_supportClient.fetchLegalDocument(kind, m_serverConfig.apiBaseUrl +
                                                     "/api/license/legal/"_L1 + kind +
                                                     "?product="_L1 + m_serverConfig.productCode);
    }
}

void CameraViewModel::onLegalDocument(bool success, const QString &kind,
                                      const LegalDocument &document, const QString &error)
{
    if (m_renewedLegalDocs) {
        onRenewedLegalDocument(success, kind, document, error);
        return;
    }
    if (!success) {
        qWarning() << "[LegalDoc] Fehler bei" << kind << ":" << error;
        m_legalDocsError = tr("Rechtstexte konnten nicht geladen werden. Bitte erneut versuchen.");
        m_legalDocsLoading = false;
        emit legalDocsChanged();
        return;
    }
    storeDocument(kind, document, m_legalDocs);
    if (legalDocsReady()) {
        m_legalDocsLoading = false;
        m_legalDocsError.clear();
        saveLegalDocuments();
    }
    emit legalDocsChanged();
}

void CameraViewModel::onRenewedLegalDocument(bool success, const QString &kind,
                                             const LegalDocument &document, const QString &error)
{
    if (!success) {
        qDebug() << "[LegalDoc] nicht erneuert:" << kind << error;
        return;
    }
    if (!m_renewedLegalDocs)
        return;
    LegalDocsRecord &renewed = *m_renewedLegalDocs;
    storeDocument(kind, document, renewed);
    if (!isComplete(renewed))
        return;
    m_legalDocs = renewed;
    m_renewedLegalDocs.reset();
    saveLegalDocuments();
    emit legalDocsChanged();
}

void CameraViewModel::saveLegalDocuments() const
{
    LegalDocsRecord saved = m_legalDocs;
    saved.eulaVersion = versionOrFirst(saved.eulaVersion);
    saved.privacyVersion = versionOrFirst(saved.privacyVersion);
    saved.fetchedAt = QDateTime::currentDateTimeUtc();
    LegalDocumentCache::save(saved);
}

} // namespace meridax
