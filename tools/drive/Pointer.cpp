#include "drive/Pointer.h"

#include <QCoreApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <stdexcept>
#include <utility>

namespace {

constexpr unsigned char kLeftButton = 1;
/// Time for the window to see a move before the press, as with a hand; hover states follow it.
constexpr int kMoveToPressMs = 60;

/// For a click to reach its window, however busy the machine.
constexpr int kClickLimitMs = 20000;

/// Sees the button go up.
class ReleaseWatch : public QObject
{
public:
    bool released = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        released |= event->type() == QEvent::MouseButtonRelease;
        return false;
    }
};

QPoint screenPosition(const QQuickItem &item, QPointF part)
{
    const QPointF place =
        item.mapToScene(QPointF(item.width() * part.x(), item.height() * part.y()));
    const QQuickWindow &window = *item.window();
    const QPointF global = window.mapToGlobal(place);
    return (global * window.devicePixelRatio()).toPoint();
}

/// Waits until layouts and animations have put `item` where it stays.
void waitUntilAtRest(const QQuickItem &item, QPointF part)
{
    constexpr int lookMs = 100;
    constexpr int mostLooks = 50;
    QPoint before = screenPosition(item, part);
    for (int i = 0; i < mostLooks; ++i) {
        QTest::qWait(lookMs);
        const QPoint now = screenPosition(item, part);
        if (std::exchange(before, now) == now)
            return;
    }
}

} // namespace

Pointer::Pointer()
{
    int screen = 0;
    m_connection = xcb_connect(nullptr, &screen);
    if (xcb_connection_has_error(m_connection))
        throw std::runtime_error("no X display for the mouse");
    const xcb_screen_t &first = *xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_root = first.root;
    m_corner = {first.width_in_pixels - 1, first.height_in_pixels - 1};
}

Pointer::~Pointer()
{
    xcb_disconnect(m_connection);
}

void Pointer::moveTo(const QQuickItem &item, QPointF part)
{
    waitUntilAtRest(item, part);
    send(XCB_MOTION_NOTIFY, 0, screenPosition(item, part));
    QTest::qWait(kMoveToPressMs);
}

void Pointer::click(const QQuickItem &item, QPointF part)
{
    moveTo(item, part);
    ReleaseWatch watch;
    item.window()->installEventFilter(&watch);
    send(XCB_BUTTON_PRESS, kLeftButton);
    send(XCB_BUTTON_RELEASE, kLeftButton);
    if (!QTest::qWaitFor([&watch] { return watch.released; }, kClickLimitMs))
        throw std::runtime_error("the window did not see a click");
}

void Pointer::leave()
{
    send(XCB_MOTION_NOTIFY, 0, m_corner);
}

void Pointer::send(unsigned char type, unsigned char detail, QPoint position)
{
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<int16_t>(position.x()), static_cast<int16_t>(position.y()), 0);
    xcb_flush(m_connection);
}
