#pragma once

#include "NativeWindow.h"

#include <QWidget>

/// Stands for a window of the host, as the parent of a dialog or as the place for widgets inside
/// it: disables the host's window while a modal child shows, gives focus and activation back to
/// it, and lets Tab and Shift+Tab pass between its controls and the toolkit's.
class QWinWidget : public QWidget
{
    Q_OBJECT

public:
    /// The type of a native message's result.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    using MessageResult = qintptr;
#else
    using MessageResult = long;
#endif

    /// @param parentWindow The host's; with null this is a plain hidden window.
    /// @param parent       Deletes this widget with itself.
    explicit QWinWidget(NativeWindowHandle parentWindow, QObject* parent = nullptr,
                        Qt::WindowFlags flags = {});

    NativeWindowHandle parentWindow() const { return m_parentWindow; }

protected:
    bool eventFilter(QObject* child, QEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, MessageResult* result) override;
    bool focusNextPrevChild(bool next) override;

private:
    void initialise();
    void childShown(const QWidget& child);
    void childHidden(const QWidget& child);
    void childClosed(const QWidget& child);
    void deleteAfter(const QWidget& child);
    void enableParent();
    bool isLastStop(bool forward) const;

    const NativeWindowHandle m_parentWindow;
    /// What had the focus before the first child window was shown.
    NativeWindowHandle m_previousFocus = nullptr;
    /// Set while this widget has the parent window disabled for a modal child.
    bool m_reenableParent = false;
};
