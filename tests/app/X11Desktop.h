#pragma once

#include <QByteArray>
#include <QRect>

#include <memory>
#include <optional>
#include <vector>

struct xcb_connection_t;
struct xcb_screen_t;

/// An X display with a window manager, as a task bar sees it: the managed windows, what they are
/// like, and requests to the manager. Positions are of the client area, px of the screen.
class X11Desktop
{
public:
    using Window = quint32;

    /// Connects to the display of the environment.
    X11Desktop();
    ~X11Desktop();
    X11Desktop(const X11Desktop &) = delete;
    X11Desktop &operator=(const X11Desktop &) = delete;

    bool isConnected() const;
    /// The managed window of that title.
    std::optional<Window> find(const QByteArray &title) const;
    /// A plain window of the desktop's own, managed and shown.
    Window makeWindow(const QByteArray &title);

    QRect geometry(Window window) const;
    /// The client area with what the manager put around it.
    QRect frame(Window window) const;
    QSize minimumSize(Window window) const;
    bool isMaximized(Window window) const;
    bool isMinimized(Window window) const;
    bool isActive(Window window) const;
    bool isOnTop(Window window) const;

    void maximize(Window window, bool on);
    void minimize(Window window);
    void moveResize(Window window, const QRect &geometry);
    void activate(Window window);
    void close(Window window);

private:
    using Values = std::vector<quint32>;

    quint32 atom(const char *name) const;
    Values values(Window window, const char *property) const;
    bool hasState(Window window, const char *state) const;
    void ask(Window window, const char *message, const Values &data) const;

    xcb_connection_t *m_connection = nullptr;
    const xcb_screen_t *m_screen = nullptr;
};
