// Settings of the application itself: language, remembered sections, window geometry, clipboard,
// log.

#include "viewmodel/CameraViewModel.h"

#include "diagnostics/LogManager.h"
#include "diagnostics/PersonalPaths.h"
#include "viewmodel/LanguageSwitch.h"

#include <QClipboard>
#include <QDebug>
#include <QGuiApplication>

#include <tuple>

namespace meridax {

void CameraViewModel::setLanguage(const QString &language)
{
    if (language == m_settings.language)
        return;
    m_settings.language = language;
    switchLanguage(language, m_translator);
    emit appSettingsChanged();
    m_saveTimer.start();
}

void CameraViewModel::setRememberCollapsedSections(bool remember)
{
    if (remember == m_settings.rememberCollapsedSections)
        return;
    if (!remember)
        m_settings.collapsedSections.clear();
    storeApplication(m_settings.rememberCollapsedSections, remember);
}

bool CameraViewModel::sectionCollapsed(const QString &key, bool defaultCollapsed) const
{
    return m_settings.collapsedSections.value(key, defaultCollapsed).toBool();
}

void CameraViewModel::setSectionCollapsed(const QString &key, bool collapsed)
{
    // With the opposite as default the first explicit choice is always stored.
    if (sectionCollapsed(key, !collapsed) == collapsed)
        return;
    m_settings.collapsedSections.insert(key, collapsed);
    if (m_settings.rememberCollapsedSections)
        m_saveTimer.start();
}

void CameraViewModel::saveWindowGeometry(int x, int y, int width, int height, bool maximized)
{
    // Smaller than any normal window: a window that is minimised or not yet laid out.
    constexpr int leastSize = 400;
    if (width < leastSize || height < leastSize) {
        if (maximized == m_settings.windowMaximized)
            return;
        m_settings.windowMaximized = maximized;
        writeSettings();
        return;
    }

    auto stored = std::tie(m_settings.windowX, m_settings.windowY, m_settings.windowWidth,
                           m_settings.windowHeight, m_settings.windowMaximized);
    const auto current = std::tie(x, y, width, height, maximized);
    if (stored == current)
        return;
    stored = current;
    writeSettings();
    qInfo().nospace() << "[Window] Geometrie gespeichert: " << width << "x" << height << " @ (" << x
                      << "," << y << ") maximized=" << maximized;
}

void CameraViewModel::copyToClipboard(const QString &text)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard)
        return;
    clipboard->setText(text);
    qDebug() << "[Clipboard] Text kopiert (" << text.size() << "Zeichen)";
}

QString CameraViewModel::getLogTail(int lines) const
{
    return withoutPersonalPaths(LogManager::tail(lines), PersonalPaths::ofUser());
}

} // namespace meridax
