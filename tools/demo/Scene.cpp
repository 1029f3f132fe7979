#include "Scene.h"

#include <QGuiApplication>
#include <QImage>
#include <QQmlEngine>
#include <QTest>

#include <stdexcept>

namespace {

QQuickItem *findVisible(QQuickItem *root, const std::function<bool(const QQuickItem &)> &matches)
{
    if (!root || !root->isVisible())
        return nullptr;
    if (matches(*root))
        return root;
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findVisible(child, matches))
            return found;
    }
    return nullptr;
}

QQuickItem &waitForItem(const QQuickWindow &window, const QString &what,
                        const std::function<bool(const QQuickItem &)> &matches)
{
    QQuickItem *found = nullptr;
    // The content item's parent also holds the popups of the overlay.
    waitFor(what, [&] {
        QQuickItem *top = window.contentItem();
        while (top->parentItem())
            top = top->parentItem();
        found = findVisible(top, matches);
        return found != nullptr;
    });
    return *found;
}

} // namespace

void waitFor(const QString &what, const std::function<bool()> &condition,
             std::chrono::milliseconds limit)
{
    if (!QTest::qWaitFor(condition, QDeadlineTimer(limit)))
        throw std::runtime_error(("timed out waiting for " + what).toStdString());
}

Scene::Scene()
{
    waitFor(QStringLiteral("the window"), [this] {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (QWindow *candidate : windows) {
            auto *const window = qobject_cast<QQuickWindow *>(candidate);
            if (window && window->isExposed() && window->title() == QLatin1StringView("Meridax"))
                m_window = window;
        }
        return m_window != nullptr;
    });
    m_viewModel = qmlEngine(m_window)->singletonInstance<QObject *>("Meridax", "ViewModel");
    if (!m_viewModel)
        throw std::runtime_error("the window has no view model");
}

QQuickItem &Scene::item(const QString &objectName) const
{
    return waitForItem(*m_window, objectName,
                       [&](const QQuickItem &i) { return i.objectName() == objectName; });
}

QQuickItem &Scene::itemWithText(const QStringList &texts) const
{
    return waitForItem(*m_window, texts.first(), [&](const QQuickItem &i) {
        return i.isEnabled() && texts.contains(i.property("text").toString());
    });
}

void Scene::save(const QString &path) const
{
    const QImage picture = m_window->grabWindow();
    if (picture.isNull() || !picture.save(path))
        throw std::runtime_error(("cannot write " + path).toStdString());
}
