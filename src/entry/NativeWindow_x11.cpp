#include "NativeWindow.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace
{

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <class Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

/// A connection of our own: window ids are the server's, and the toolkit's connection is reached
/// differently in every major version.
class Connection
{
public:
    Connection() : m_connection(xcb_connect(nullptr, &m_screen)) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { xcb_disconnect(m_connection); }

    bool isUsable() const { return !xcb_connection_has_error(m_connection); }
    xcb_connection_t* get() const { return m_connection; }

    xcb_window_t root() const
    {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
        for (int i = 0; i < m_screen; ++i)
            xcb_screen_next(&screens);
        return screens.data->root;
    }

    xcb_atom_t atom(std::string_view name) const
    {
        const auto cookie =
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.data());
        const ReplyPointer<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(m_connection, cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

private:
    int m_screen = 0;
    xcb_connection_t* m_connection;
};

bool isX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

xcb_window_t windowId(NativeWindowHandle window)
{
    return static_cast<xcb_window_t>(reinterpret_cast<quintptr>(window));
}

/// The ancestor below the root: the window manager's frame, where it has put one around the window.
std::optional<xcb_window_t> frameOf(xcb_connection_t* connection, xcb_window_t window)
{
    for (;;) {
        const ReplyPointer<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
        if (!tree)
            return std::nullopt;
        if (tree->parent == tree->root || tree->parent == XCB_WINDOW_NONE)
            return window;
        window = tree->parent;
    }
}

} // namespace

namespace native_window
{

std::optional<WindowEdges> outerRectangle(NativeWindowHandle window)
{
    if (!isX11())
        return std::nullopt;
    const Connection connection;
    if (!connection.isUsable())
        return std::nullopt;
    xcb_connection_t* const server = connection.get();
    const auto frame = frameOf(server, windowId(window));
    if (!frame)
        return std::nullopt;
    const ReplyPointer<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(server, xcb_get_geometry(server, *frame), nullptr));
    if (!geometry)
        return std::nullopt;
    const int border = 2 * geometry->border_width;
    return WindowEdges{geometry->x, geometry->y, geometry->x + geometry->width + border,
                       geometry->y + geometry->height + border};
}

void setTransientFor(QWidget* dialog, NativeWindowHandle window)
{
    if (!isX11() || !outerRectangle(window))
        return;
    dialog->winId(); // makes the window
    QWindow* const foreign = QWindow::fromWinId(windowId(window));
    foreign->setParent(nullptr);
    dialog->windowHandle()->setTransientParent(foreign);
    QObject::connect(dialog, &QObject::destroyed, foreign, &QObject::deleteLater);
}

void activate(NativeWindowHandle window)
{
    if (!isX11())
        return;
    const Connection connection;
    if (!connection.isUsable())
        return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = windowId(window);
    message.type = connection.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = 1; // from an application
    xcb_connection_t* const server = connection.get();
    xcb_send_event(server, 0, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_set_input_focus(server, XCB_INPUT_FOCUS_PARENT, windowId(window), XCB_CURRENT_TIME);
    // Waits until the server has seen both.
    const ReplyPointer<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
}

} // namespace native_window
