#include "NativeWindow.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#if QT_VERSION >= QT_VERSION_CHECK(6, 2, 0) && QT_CONFIG(xcb)
#include <QPlatformSurfaceEvent>
#define KV_HAS_X11_APPLICATION
#endif

#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

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
        for (int i = 0; i < m_screen; ++i) {
            xcb_screen_next(&screens);
        }
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

/// The window and its ancestors, the one below the root last: that is the window manager's frame,
/// where there is one. Empty without such a window.
std::vector<xcb_window_t> lineOf(xcb_connection_t* server, xcb_window_t window)
{
    std::vector<xcb_window_t> line;
    for (;;) {
        const ReplyPointer<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(server, xcb_query_tree(server, window), nullptr));
        if (!tree) {
            return {};
        }
        line.push_back(window);
        if (tree->parent == tree->root || tree->parent == XCB_WINDOW_NONE) {
            return line;
        }
        window = tree->parent;
    }
}

xcb_window_t windowWithFocus(xcb_connection_t* server)
{
    const ReplyPointer<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
    return focus ? focus->focus : xcb_window_t(XCB_WINDOW_NONE);
}

/// Waits until the server has dealt with all requests.
void synchronize(xcb_connection_t* server)
{
    windowWithFocus(server);
}

/// The window that the window manager looks after, which has that mark of it; without one the
/// outermost.
xcb_window_t managedWindow(const Connection& connection, xcb_window_t window)
{
    const xcb_atom_t mark = connection.atom("WM_STATE");
    const auto line = lineOf(connection.get(), window);
    for (const xcb_window_t candidate : line) {
        const auto cookie =
            xcb_get_property(connection.get(), 0, candidate, mark, XCB_ATOM_ANY, 0, 0);
        const ReplyPointer<xcb_get_property_reply_t> state(
            xcb_get_property_reply(connection.get(), cookie, nullptr));
        if (state && state->type != XCB_ATOM_NONE) {
            return candidate;
        }
    }
    return line.empty() ? window : line.back();
}

/// Lies unseen over a window and swallows its mouse and key events. It goes with its connection.
class Shield
{
public:
    explicit Shield(xcb_window_t window)
    {
        if (!m_connection.isUsable()) {
            return;
        }
        xcb_connection_t* const server = m_connection.get();
        // As large as windows get, since the host's may grow; the host's window clips it.
        constexpr uint16_t extent = 0x7FFF;
        constexpr uint32_t swallowed = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                       XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                       XCB_EVENT_MASK_POINTER_MOTION;
        const xcb_window_t shield = xcb_generate_id(server);
        xcb_create_window(server, 0, shield, window, 0, 0, extent, extent, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_DONT_PROPAGATE,
                          &swallowed);
        xcb_map_window(server, shield);
        synchronize(server);
    }

private:
    Connection m_connection;
};

std::unique_ptr<Shield>& currentShield()
{
    static std::unique_ptr<Shield> shield;
    return shield;
}

#ifdef KV_HAS_X11_APPLICATION
/// Sets WM_CLASS of each window before it is shown. By the toolkit's connection: on another one the
/// window may not be there yet.
class WindowNamer : public QObject
{
public:
    /// @param name Of the instance, and of the class.
    WindowNamer(QGuiApplication& application, const QByteArray& name)
        : QObject(&application), m_application(application), m_value(name + '\0' + name + '\0')
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const window = qobject_cast<QWindow*>(watched);
        // A window of the host, which the toolkit makes an object of, keeps the host's name.
        if (window && window->isTopLevel() && window->type() != Qt::ForeignWindow &&
            event->type() == QEvent::PlatformSurface &&
            static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
                QPlatformSurfaceEvent::SurfaceCreated) {
            setClass(*window);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void setClass(const QWindow& window) const
    {
        if (auto* const x11 = m_application.nativeInterface<QNativeInterface::QX11Application>()) {
            xcb_change_property(x11->connection(), XCB_PROP_MODE_REPLACE,
                                static_cast<xcb_window_t>(window.winId()), XCB_ATOM_WM_CLASS,
                                XCB_ATOM_STRING, 8, static_cast<uint32_t>(m_value.size()),
                                m_value.constData());
        }
    }

    const QGuiApplication& m_application;
    const QByteArray m_value;
};
#endif

} // namespace

namespace native_window
{

std::optional<WindowEdges> outerRectangle(NativeWindowHandle window)
{
    if (!isX11()) {
        return std::nullopt;
    }
    const Connection connection;
    if (!connection.isUsable()) {
        return std::nullopt;
    }
    xcb_connection_t* const server = connection.get();
    const auto line = lineOf(server, windowId(window));
    if (line.empty()) {
        return std::nullopt;
    }
    const ReplyPointer<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(server, xcb_get_geometry(server, line.back()), nullptr));
    if (!geometry) {
        return std::nullopt;
    }
    const int border = 2 * geometry->border_width;
    return WindowEdges{geometry->x, geometry->y, geometry->x + geometry->width + border,
                       geometry->y + geometry->height + border};
}

void embed(QWidget*, NativeWindowHandle) {}

void setTransientFor(QWidget* dialog, NativeWindowHandle window)
{
    if (!isX11() || !outerRectangle(window)) {
        return;
    }
    dialog->winId(); // makes the window
    QWindow* const foreign = QWindow::fromWinId(windowId(window));
    dialog->windowHandle()->setTransientParent(foreign);
    QObject::connect(dialog, &QObject::destroyed, foreign, [foreign] { delete foreign; });
}

#ifdef KV_HAS_X11_APPLICATION
void nameWindows(QGuiApplication& application, const QByteArray& name)
{
    // The offscreen platform has the interface, too, without a connection behind it.
    if (isX11()) {
        application.installEventFilter(new WindowNamer(application, name));
    }
}
#else
void nameWindows(QGuiApplication&, const QByteArray&) {}
#endif

void setEnabled(NativeWindowHandle window, bool enabled)
{
    currentShield() = enabled || !isX11() ? nullptr : std::make_unique<Shield>(windowId(window));
}

NativeWindowHandle focusWindow(NativeWindowHandle window)
{
    if (!isX11()) {
        return nullptr;
    }
    const Connection connection;
    if (!connection.isUsable()) {
        return nullptr;
    }
    const xcb_window_t focus = windowWithFocus(connection.get());
    for (const xcb_window_t ancestor : lineOf(connection.get(), focus)) {
        if (ancestor == windowId(window)) {
            return reinterpret_cast<NativeWindowHandle>(quintptr(focus));
        }
    }
    return nullptr;
}

void setFocus(NativeWindowHandle window)
{
    if (!isX11()) {
        return;
    }
    const Connection connection;
    if (!connection.isUsable()) {
        return;
    }
    xcb_connection_t* const server = connection.get();
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = managedWindow(connection, windowId(window));
    message.type = connection.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = 1; // from an application
    xcb_send_event(server, 0, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_set_input_focus(server, XCB_INPUT_FOCUS_PARENT, windowId(window), XCB_CURRENT_TIME);
    synchronize(server);
}

void activate(NativeWindowHandle window)
{
    setFocus(window);
}

void bringToTop(NativeWindowHandle window)
{
    setFocus(window);
}

std::optional<Qt::FocusReason> focusReason(const QByteArray&, const void*)
{
    return std::nullopt;
}

} // namespace native_window
