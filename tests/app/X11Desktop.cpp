#include "X11Desktop.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>

namespace {

/// Replies of the X library are freed by their receiver.
struct Free
{
    void operator()(void *reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

constexpr quint32 kFromTaskBar = 2; ///< EWMH: the request comes from a pager

} // namespace

X11Desktop::X11Desktop()
{
    int number = 0;
    m_connection = xcb_connect(nullptr, &number);
    if (isConnected())
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
}

X11Desktop::~X11Desktop()
{
    xcb_disconnect(m_connection);
}

bool X11Desktop::isConnected() const
{
    return xcb_connection_has_error(m_connection) == 0;
}

std::optional<X11Desktop::Window> X11Desktop::find(const QByteArray &title) const
{
    for (const Window window : values(m_screen->root, "_NET_CLIENT_LIST")) {
        const Owned<xcb_get_property_reply_t> name(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, 1024),
            nullptr));
        if (name &&
            title == QByteArray(static_cast<const char *>(xcb_get_property_value(name.get())),
                                xcb_get_property_value_length(name.get())))
            return window;
    }
    return std::nullopt;
}

X11Desktop::Window X11Desktop::makeWindow(const QByteArray &title)
{
    const Window window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_screen->root, 200, 200, 600,
                      400, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME,
                        XCB_ATOM_STRING, 8, quint32(title.size()), title.constData());
    xcb_map_window(m_connection, window);
    xcb_flush(m_connection);
    return window;
}

QRect X11Desktop::geometry(Window window) const
{
    const Owned<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    const Owned<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, m_screen->root, 0, 0),
        nullptr));
    return size && place ? QRect(place->dst_x, place->dst_y, size->width, size->height) : QRect();
}

QRect X11Desktop::frame(Window window) const
{
    const Values sides = values(window, "_NET_FRAME_EXTENTS"); // left, right, top, bottom
    if (sides.size() != 4)
        return geometry(window);
    return geometry(window).adjusted(-int(sides[0]), -int(sides[2]), int(sides[1]), int(sides[3]));
}

QSize X11Desktop::minimumSize(Window window) const
{
    // Of ICCCM: flags, four obsolete numbers, least width and height, and more.
    constexpr quint32 hasMinimum = 1 << 4;
    const Values hints = values(window, "WM_NORMAL_HINTS");
    return hints.size() > 6 && (hints[0] & hasMinimum) ? QSize(int(hints[5]), int(hints[6]))
                                                       : QSize();
}

bool X11Desktop::isMaximized(Window window) const
{
    return hasState(window, "_NET_WM_STATE_MAXIMIZED_VERT") &&
           hasState(window, "_NET_WM_STATE_MAXIMIZED_HORZ");
}

bool X11Desktop::isMinimized(Window window) const
{
    return hasState(window, "_NET_WM_STATE_HIDDEN");
}

bool X11Desktop::isActive(Window window) const
{
    return values(m_screen->root, "_NET_ACTIVE_WINDOW") == Values{window};
}

bool X11Desktop::isOnTop(Window window) const
{
    const Values stack = values(m_screen->root, "_NET_CLIENT_LIST_STACKING");
    return !stack.empty() && stack.back() == window;
}

void X11Desktop::maximize(Window window, bool on)
{
    ask(window, "_NET_WM_STATE",
        {on, atom("_NET_WM_STATE_MAXIMIZED_VERT"), atom("_NET_WM_STATE_MAXIMIZED_HORZ"),
         kFromTaskBar});
}

void X11Desktop::minimize(Window window)
{
    constexpr quint32 iconic = 3;
    ask(window, "WM_CHANGE_STATE", {iconic});
}

void X11Desktop::moveResize(Window window, const QRect &geometry)
{
    constexpr quint32 staticGravity = 10; // the client area is meant
    constexpr quint32 everything = 0xf << 8;
    ask(window, "_NET_MOVERESIZE_WINDOW",
        {staticGravity | everything | (kFromTaskBar << 12), quint32(geometry.x()),
         quint32(geometry.y()), quint32(geometry.width()), quint32(geometry.height())});
}

void X11Desktop::activate(Window window)
{
    ask(window, "_NET_ACTIVE_WINDOW", {kFromTaskBar});
}

void X11Desktop::close(Window window)
{
    ask(window, "_NET_CLOSE_WINDOW", {0, kFromTaskBar});
}

quint32 X11Desktop::atom(const char *name) const
{
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, quint16(qstrlen(name)), name), nullptr));
    return reply ? reply->atom : quint32(XCB_ATOM_NONE);
}

X11Desktop::Values X11Desktop::values(Window window, const char *property) const
{
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, window, atom(property), XCB_ATOM_ANY, 0, 1024), nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *const first = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return {first, first + xcb_get_property_value_length(reply.get()) / 4};
}

bool X11Desktop::hasState(Window window, const char *state) const
{
    const Values states = values(window, "_NET_WM_STATE");
    return std::find(states.begin(), states.end(), atom(state)) != states.end();
}

void X11Desktop::ask(Window window, const char *message, const Values &data) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::copy(data.begin(), data.end(), event.data.data32);
    xcb_send_event(m_connection, 0, m_screen->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(m_connection);
}
