#pragma once

#include <QPoint>

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

    /// Moves to the middle of `item`.
    void moveTo(const QQuickItem &item);
    /// Moves to the middle of `item` and presses and releases the left button there.
    void click(const QQuickItem &item);

private:
    void send(unsigned char type, unsigned char detail, QPoint position = {});

    xcb_connection_t *m_connection = nullptr;
    unsigned m_root = 0;
};
