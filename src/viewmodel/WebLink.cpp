#include "viewmodel/WebLink.h"

#include <QDesktopServices>
#include <QUrl>

namespace meridax {

bool openWebLink(const QString &address)
{
    const QUrl url(address, QUrl::TolerantMode);
    // QUrl has lowered the scheme.
    const bool web =
        url.scheme() == QLatin1StringView("http") || url.scheme() == QLatin1StringView("https");
    if (!url.isValid() || !web)
        return false;
    QDesktopServices::openUrl(url);
    return true;
}

} // namespace meridax
