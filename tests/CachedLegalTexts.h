#pragma once

#include "server/LegalDocumentCache.h"

/// Leaves legal texts in the data folder, as an earlier run would have. Without them each start
/// asks the server for them, and warns when there is none.
inline void cacheLegalTexts()
{
    meridax::LegalDocumentCache::save({QStringLiteral("1.0"),
                                       QStringLiteral("# Bedingungen"),
                                       QStringLiteral("1.0"),
                                       QStringLiteral("# Datenschutz"),
                                       {}});
}
