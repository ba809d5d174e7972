#pragma once

#include "DialogPlacement.h"

#include <QtGlobal>

#include <optional>

class QWidget;

/// A window of the host that this toolkit did not make: HWND on Windows, X11 window id elsewhere.
using NativeWindowHandle = void*;

namespace native_window
{

/// The window's outer rectangle, decoration included, on the desktop. No value where there is no
/// such window, or where the platform knows no foreign windows.
std::optional<WindowEdges> outerRectangle(NativeWindowHandle window);

/// Keeps a dialog above the window.
void setTransientFor(QWidget* dialog, NativeWindowHandle window);

/// Gives the window activation and keyboard focus.
void activate(NativeWindowHandle window);

} // namespace native_window
