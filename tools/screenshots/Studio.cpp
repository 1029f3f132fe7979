#include "Studio.h"

#include "PictureFile.h"
#include "TextCheck.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <algorithm>
#include <cstdio>

namespace {

/// Of a part that the manual shows, px.
constexpr int kMargin = 12;

} // namespace

Studio::Studio(const ScreenshotOptions &options)
    : m_options(options)
{
    // A caret that blinks would make each run another picture.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    for (const QString &language : options.languages) {
        m_german.insert(
            language,
            GermanTexts(QStringLiteral("%1/%2.ts").arg(options.catalogueFolder, language)));
    }
    m_writers.setMaxThreadCount(1);
}

void Studio::take(const QString &name, const PictureSetting &setting)
{
    if (!m_options.wants(name))
        return;
    for (const QString &theme : std::as_const(m_options.themes)) {
        for (const QString &language : std::as_const(m_options.languages))
            takeOne(name, setting, theme, language);
    }
}

void Studio::takeOne(const QString &name, const PictureSetting &setting, const QString &theme,
                     const QString &language)
{
    m_scene.viewModel().setProperty("darkMode", theme == QLatin1StringView("dark"));
    m_scene.viewModel().setProperty("language", language);
    if (setting.before)
        setting.before();
    m_scene.waitUntilStill();
    const QString place = language + u' ' + name;
    if (!setting.foreign)
        check(place, language);
    checkWarnings(place);
    QQuickWindow &window = setting.foreign ? foreignWindow() : m_scene.window();
    const QImage picture = window.grabWindow();
    if (m_options.forManual) {
        const QRect part = partOf(setting.parts);
        save(picture.copy(part),
             QStringLiteral("%1/%2/%3.png").arg(m_options.pictureFolder, language, name));
    } else {
        save(picture, QStringLiteral("%1/%2/%3-%4/%5.png")
                          .arg(m_options.pictureFolder, language, theme, m_options.size, name));
    }
    ++m_pictures;
}

void Studio::check(const QString &place, const QString &language)
{
    const QStringList found = misfits(m_scene.top());
    for (const QString &fault : found)
        addFault(place, fault);
    const auto german = m_german.constFind(language);
    forEachText(m_scene.top(), [&](const QQuickItem &item, const QRectF &) {
        const QString text = item.property("text").toString();
        if (german->contains(text))
            addFault(place, QStringLiteral("still German: \"%1\"").arg(text));
    });
}

void Studio::checkWarnings(const QString &place)
{
    const QStringList warnings = m_warnings.take();
    for (const QString &warning : warnings) {
        const bool expected =
            std::any_of(m_expectedWarnings.begin(), m_expectedWarnings.end(),
                        [&](const QString &beginning) { return warning.startsWith(beginning); });
        if (!expected)
            addFault(place, warning);
    }
}

void Studio::addFault(const QString &place, const QString &fault)
{
    ++m_faults;
    // The same fault in both themes, or in every picture of a panel, is told once.
    const QString key = place.section(u' ', 0, 0) + fault;
    if (m_told.contains(key))
        return;
    m_told << key;
    std::printf("%s %s: %s\n", qPrintable(m_options.size), qPrintable(place), qPrintable(fault));
    std::fflush(stdout);
}

QQuickWindow &Studio::foreignWindow() const
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *candidate : windows) {
        auto *const window = qobject_cast<QQuickWindow *>(candidate);
        if (window && window != &m_scene.window() && window->isExposed())
            return *window;
    }
    return m_scene.window();
}

QRect Studio::partOf(const QStringList &items) const
{
    const QRect whole(QPoint(), m_scene.window().size());
    QRectF part;
    for (const QString &name : items) {
        const QQuickItem &item = m_scene.surface(name);
        part |= item.mapRectToScene(item.boundingRect());
    }
    if (part.isEmpty())
        return whole;
    return part.toAlignedRect().marginsAdded({kMargin, kMargin, kMargin, kMargin}) & whole;
}

void Studio::save(const QImage &picture, const QString &path)
{
    const bool small = m_options.forManual;
    m_writers.start([picture, path, small] {
        if (small)
            writeSmallPicture(picture, path);
        else
            writePicture(picture, path);
    });
}

void Studio::finish()
{
    m_writers.waitForDone();
    checkWarnings(QStringLiteral("- end"));
}
