#pragma once

#include "DialogPlacement.h"

#include <Qt>

#include <optional>

class QByteArray;
class QGuiApplication;
class QWidget;

/// A window of the host that this toolkit did not make: HWND on Windows, X11 window id elsewhere.
using NativeWindowHandle = void*;

/// What a dialog asks of the window system for a foreign window. Where the platform knows no
/// foreign windows (Wayland, offscreen) nothing happens and nothing is found.
namespace native_window
{

/// The window's outer rectangle, decoration included, on the desktop, in the window system's
/// pixels. No value where there is no such window.
std::optional<WindowEdges> outerRectangle(NativeWindowHandle window);

/// Makes the window the widget's native parent, and the widget's own window a bare child. X11: the
/// widget stays outside, as no window manager looks after a child's dialogs.
void embed(QWidget* widget, NativeWindowHandle window);

/// Keeps a dialog above the window. Windows: the owner, which is the dialog's parent's window,
/// does so already.
void setTransientFor(QWidget* dialog, NativeWindowHandle window);

/// Names the windows that the application makes, for window managers, which group windows and apply
/// their users' rules by it. X11: WM_CLASS, which the toolkit takes from the arguments; before 6.2
/// it shows no way to do so.
void nameWindows(QGuiApplication& application, const QByteArray& name);

/// Whether the window takes mouse and keyboard input. X11, which has no such state: an invisible
/// window on top takes the mouse, and the keys while the pointer is over it, until the window is
/// enabled again; one window at a time.
void setEnabled(NativeWindowHandle window, bool enabled);

/// The host's window with the keyboard focus; null when that is none of this thread's (X11: not
/// `window` nor inside it).
NativeWindowHandle focusWindow(NativeWindowHandle window);

/// Gives the window the keyboard focus, which makes it the active one. X11 knows activation by the
/// window manager only; all three do the same there.
void setFocus(NativeWindowHandle window);
void activate(NativeWindowHandle window);
void bringToTop(NativeWindowHandle window);

/// Why the message's window gets the keyboard focus from the window system: backtab while Shift is
/// held, else tab. No value for any other message. The arguments are those of
/// QWidget::nativeEvent().
std::optional<Qt::FocusReason> focusReason(const QByteArray& eventType, const void* message);

} // namespace native_window
