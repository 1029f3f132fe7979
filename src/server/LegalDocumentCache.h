#pragma once

#include <QDateTime>
#include <QString>

namespace meridax {

/// The legal texts as they were last fetched, both at once.
struct LegalDocsRecord
{
    QString eulaVersion;
    QString eulaMarkdown;
    QString privacyVersion;
    QString privacyMarkdown;
    QDateTime fetchedAt; ///< UTC; where it is not valid the time of saving is written
};

/// "legal-docs.json" in the data folder, with which the legal texts can be read without a
/// connection.
class LegalDocumentCache
{
public:
    /// False, and then nothing of `record` is of use, without a readable file that has both texts.
    static bool load(LegalDocsRecord &record);
    /// Writes over the file; a failure leaves a warning in the log.
    static void save(const LegalDocsRecord &record);
};

} // namespace meridax
