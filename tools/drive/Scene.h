#pragma once

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QVariant>

#include <chrono>
#include <functional>

/// The program's window as an outsider finds it: items by name or text, values of the view model.
class Scene
{
public:
    /// Waits for the window. Throws std::runtime_error when none appears.
    Scene();

    QQuickWindow &window() const { return *m_window; }
    QObject &viewModel() const { return *m_viewModel; }
    QVariant value(const char *property) const { return m_viewModel->property(property); }

    /// The object of that name, seen or not. Throws std::runtime_error when there is none.
    QObject &object(const QString &objectName) const;
    /// The visible item of that object name. Throws when there is none within a few seconds.
    QQuickItem &item(const QString &objectName) const;
    /// The visible item `objectName` inside the item or popup `parentName`. Throws likewise.
    QQuickItem &item(const QString &parentName, const QString &objectName) const;
    /// The item that shows the item or popup `name`, with header and footer. Throws likewise.
    QQuickItem &surface(const QString &name) const;
    /// The visible item that shows exactly one of `texts`. Throws likewise.
    QQuickItem &itemWithText(const QStringList &texts) const;
    /// The item that holds everything of the window, its popups included.
    QQuickItem &top() const;
    /// Waits until nothing in the window moves or fades any more, for `limit` at most.
    void waitUntilStill(std::chrono::milliseconds limit = std::chrono::seconds(2)) const;
    /// Saves what the window shows. Throws when the file cannot be written.
    void save(const QString &path) const;

private:
    QQuickWindow *m_window = nullptr;
    QObject *m_viewModel = nullptr;
};

/// Lets the program run until `condition` holds. Throws std::runtime_error naming `what` when the
/// time is over.
void waitFor(const QString &what, const std::function<bool()> &condition,
             std::chrono::milliseconds limit = std::chrono::seconds(60));
