#pragma once

#include "entry/NativeWindow.h"

#include <QStringList>

/// A window system that writes down what is asked of it, in the place of the real one. Windows are
/// named by letters: 'A' is the handle 0x41.
struct RecordedNativeWindow {
    QStringList calls;
    /// What has the focus; null: no window of the host.
    NativeWindowHandle focus = nullptr;
    /// Why the focus comes, as a native message tells; no value: it tells something else.
    std::optional<Qt::FocusReason> reason;
};

RecordedNativeWindow& recordedNativeWindow();

inline NativeWindowHandle windowNamed(char letter)
{
    return reinterpret_cast<NativeWindowHandle>(quintptr(letter));
}
