#include "PlatformPlugins.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstring>
#include <thread>

namespace
{

/// A server that starts anew, since its last client has left, drops who comes meanwhile; who comes
/// after that is taken.
constexpr int mostTries = 3;
constexpr auto pauseBetweenTries = std::chrono::milliseconds(50);

bool xServerAnswers(DisplayConnection& kept)
{
    for (int tries = 1;; ++tries) {
        xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
        const int error = xcb_connection_has_error(server);
        if (error == 0) {
            kept.reset(server,
                       [](void* open) { xcb_disconnect(static_cast<xcb_connection_t*>(open)); });
            return true;
        }
        xcb_disconnect(server);
        if (error != XCB_CONN_ERROR || tries == mostTries) {
            return false;
        }
        std::this_thread::sleep_for(pauseBetweenTries);
    }
}

bool waylandAnswers()
{
    // A connection that the process was started with.
    if (qEnvironmentVariableIsSet("WAYLAND_SOCKET")) {
        return true;
    }
    const QString name = qEnvironmentVariable("WAYLAND_DISPLAY", QStringLiteral("wayland-0"));
    const QByteArray path =
        QFile::encodeName(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).absoluteFilePath(name));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= int(sizeof address.sun_path)) {
        return false;
    }
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0) {
        return false;
    }
    const bool answers =
        ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return answers;
}

} // namespace

namespace platform_plugins
{

QString programFolder()
{
    return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
}

QStringList usualPlatforms()
{
    QStringList platforms = {QStringLiteral("xcb")};
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland") {
        platforms += QStringLiteral("wayland");
    }
    return platforms;
}

bool displayAnswers(const QString& platform, DisplayConnection& kept)
{
    if (platform == QLatin1String("xcb")) {
        return xServerAnswers(kept);
    }
    return !platform.startsWith(QLatin1String("wayland")) || waylandAnswers();
}

} // namespace platform_plugins
