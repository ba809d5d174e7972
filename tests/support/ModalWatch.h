#pragma once

#include <QApplication>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

/// Deals with a modal window that the code under test opens and waits for: runs a function on it
/// from the event loop, as the user would come by. If the window stays open although the function
/// has run, or another window comes, that one is closed after a while, so that no test hangs.
class ModalWatch : public QObject
{
public:
    /// @param handle Runs once for each window, up to `windows` of them; it has to close it.
    explicit ModalWatch(std::function<void(QWidget*)> handle, int windows = 1);

    /// How many windows were dealt with; fewer or more than expected tell what went wrong.
    int seen() const { return m_seen; }
    /// Whether a window had to be closed by force.
    bool forced() const { return m_forced; }

private:
    void look();

    std::function<void(QWidget*)> m_handle;
    QTimer m_timer;
    QPointer<QWidget> m_last;
    const int m_windows;
    int m_seen = 0;
    int m_idle = 0;
    bool m_forced = false;
};
