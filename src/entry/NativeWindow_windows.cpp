#include "NativeWindow.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QWidget>

#include <windows.h>

namespace
{

HWND windowHandle(NativeWindowHandle window)
{
    return static_cast<HWND>(window);
}

/// Whether the handles of this toolkit's windows are the system's; they are not offscreen.
bool isNativePlatform()
{
    return QGuiApplication::platformName() == QLatin1String("windows");
}

} // namespace

namespace native_window
{

std::optional<WindowEdges> outerRectangle(NativeWindowHandle window)
{
    RECT rectangle;
    if (!isNativePlatform() || !GetWindowRect(windowHandle(window), &rectangle)) {
        return std::nullopt;
    }
    return WindowEdges{int(rectangle.left), int(rectangle.top), int(rectangle.right),
                       int(rectangle.bottom)};
}

void embed(QWidget* widget, NativeWindowHandle window)
{
    if (!isNativePlatform()) {
        return;
    }
    constexpr LONG style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    static_assert(style == 0x46000000);
    const HWND own = reinterpret_cast<HWND>(widget->winId());
    SetWindowLongA(own, GWL_STYLE, style);
    SetParent(own, windowHandle(window));
}

void nameWindows(QGuiApplication&, const QByteArray&) {}

void setTransientFor(QWidget*, NativeWindowHandle) {}

void setEnabled(NativeWindowHandle window, bool enabled)
{
    EnableWindow(windowHandle(window), enabled);
}

NativeWindowHandle focusWindow(NativeWindowHandle)
{
    return GetFocus();
}

void setFocus(NativeWindowHandle window)
{
    SetFocus(windowHandle(window));
}

void activate(NativeWindowHandle window)
{
    SetActiveWindow(windowHandle(window));
}

void bringToTop(NativeWindowHandle window)
{
    BringWindowToTop(windowHandle(window));
}

std::optional<Qt::FocusReason> focusReason(const QByteArray& eventType, const void* message)
{
    if (eventType != "windows_generic_MSG" ||
        static_cast<const MSG*>(message)->message != WM_SETFOCUS) {
        return std::nullopt;
    }
    // The high bit: down. The low one would be "toggled".
    return GetKeyState(VK_SHIFT) < 0 ? Qt::BacktabFocusReason : Qt::TabFocusReason;
}

} // namespace native_window
