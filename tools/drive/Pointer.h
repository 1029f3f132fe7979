#pragma once

#include <QPoint>
#include <QPointF>

class QQuickItem;
struct xcb_connection_t;

/// A real mouse: its events go to the X server and reach the window as a user's would.
class Pointer
{
public:
    /// Connects to the display of the environment. Throws std::runtime_error without one.
    Pointer();
    ~Pointer();
    Pointer(const Pointer &) = delete;
    Pointer &operator=(const Pointer &) = delete;

    /// Moves to the place `part` of `item`, which is a part of its size: at first its middle.
    void moveTo(const QQuickItem &item, QPointF part = {0.5, 0.5});
    /// Moves there, presses and releases the left button, and waits until the window has seen it.
    /// Throws std::runtime_error when it does not.
    void click(const QQuickItem &item, QPointF part = {0.5, 0.5});
    /// Moves out of the way, to the lower right corner of the screen.
    void leave();

private:
    void send(unsigned char type, unsigned char detail, QPoint position = {});

    xcb_connection_t *m_connection = nullptr;
    unsigned m_root = 0;
    QPoint m_corner; ///< the last pixel of the screen
};
