#include "drive/Scene.h"

#include <QGuiApplication>
#include <QImage>
#include <QQmlEngine>
#include <QTest>

#include <memory>
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

QQuickItem &waitForItem(QQuickItem &root, const QString &what,
                        const std::function<bool(const QQuickItem &)> &matches)
{
    QQuickItem *found = nullptr;
    waitFor(what, [&] {
        found = findVisible(&root, matches);
        return found != nullptr;
    });
    return *found;
}

/// A number that changes with the place, the size and the look of anything visible below `item`.
size_t appearance(const QQuickItem &item, size_t seed)
{
    if (!item.isVisible() || item.opacity() == 0)
        return seed;
    const QPointF place = item.mapToScene({});
    const QVariant color = item.property("color");
    seed = qHashMulti(seed, place.x(), place.y(), item.width(), item.height(), item.opacity(),
                      color.isValid() ? color.toString() : QString());
    const QList<QQuickItem *> children = item.childItems();
    for (const QQuickItem *child : children)
        seed = appearance(*child, seed);
    return seed;
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

QObject &Scene::object(const QString &objectName) const
{
    auto *const found = m_window->findChild<QObject *>(objectName);
    if (!found)
        throw std::runtime_error(("the window has no " + objectName).toStdString());
    return *found;
}

QQuickItem &Scene::item(const QString &objectName) const
{
    return waitForItem(top(), objectName,
                       [&](const QQuickItem &i) { return i.objectName() == objectName; });
}

QQuickItem &Scene::item(const QString &parentName, const QString &objectName) const
{
    return waitForItem(surface(parentName), objectName,
                       [&](const QQuickItem &i) { return i.objectName() == objectName; });
}

QQuickItem &Scene::surface(const QString &name) const
{
    const auto *const named = m_window->findChild<QObject *>(name);
    // A popup is no item, and header and footer stand beside its content. What a repeater makes is
    // no child.
    if (!named || qobject_cast<const QQuickItem *>(named))
        return item(name);
    return *named->property("contentItem").value<QQuickItem *>()->parentItem();
}

QQuickItem &Scene::itemWithText(const QStringList &texts) const
{
    return waitForItem(top(), texts.first(), [&](const QQuickItem &i) {
        return i.isEnabled() && texts.contains(i.property("text").toString());
    });
}

QQuickItem &Scene::top() const
{
    // The content item's parent also holds the popups of the overlay.
    QQuickItem *item = m_window->contentItem();
    while (item->parentItem())
        item = item->parentItem();
    return *item;
}

void Scene::waitUntilStill(std::chrono::milliseconds limit) const
{
    constexpr int lookMs = 50;
    const QDeadlineTimer deadline(limit);
    // Animations advance with the frames, however slow these are. Shared with what is still to be
    // delivered when this function is left.
    const auto frames = std::make_shared<int>(0);
    const auto counting =
        QObject::connect(m_window, &QQuickWindow::frameSwapped, m_window, [frames] { ++*frames; });
    size_t before = 0;
    size_t now = appearance(top(), 0);
    bool drawn = false;
    do {
        before = now;
        *frames = 0;
        m_window->update();
        QTest::qWait(lookMs);
        drawn = QTest::qWaitFor([frames] { return *frames >= 2; }, lookMs) || *frames > 0;
        now = appearance(top(), 0);
    } while ((now != before || !drawn) && !deadline.hasExpired());
    QObject::disconnect(counting);
}

void Scene::save(const QString &path) const
{
    const QImage picture = m_window->grabWindow();
    if (picture.isNull() || !picture.save(path))
        throw std::runtime_error(("cannot write " + path).toStdString());
}
