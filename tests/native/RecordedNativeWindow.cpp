#include "RecordedNativeWindow.h"

namespace
{

void write(const char* call, NativeWindowHandle window)
{
    recordedNativeWindow().calls.append(QLatin1String(call) + QLatin1Char(' ') +
                                        QLatin1Char(char(reinterpret_cast<quintptr>(window))));
}

} // namespace

RecordedNativeWindow& recordedNativeWindow()
{
    static RecordedNativeWindow window;
    return window;
}

namespace native_window
{

std::optional<WindowEdges> outerRectangle(NativeWindowHandle)
{
    return std::nullopt;
}

void embed(QWidget*, NativeWindowHandle window)
{
    write("embed into", window);
}

void setTransientFor(QWidget*, NativeWindowHandle window)
{
    write("keep above", window);
}

void setEnabled(NativeWindowHandle window, bool enabled)
{
    write(enabled ? "enable" : "disable", window);
}

NativeWindowHandle focusWindow(NativeWindowHandle)
{
    return recordedNativeWindow().focus;
}

void setFocus(NativeWindowHandle window)
{
    write("focus", window);
}

void activate(NativeWindowHandle window)
{
    write("activate", window);
}

void bringToTop(NativeWindowHandle window)
{
    write("raise", window);
}

std::optional<Qt::FocusReason> focusReason(const QByteArray&, const void*)
{
    return recordedNativeWindow().reason;
}

} // namespace native_window
