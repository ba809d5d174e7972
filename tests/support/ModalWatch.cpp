#include "ModalWatch.h"

#include <QDialog>

#include <utility>

namespace
{

constexpr int interval = 10;     // ms
constexpr int longestStay = 500; // intervals

} // namespace

ModalWatch::ModalWatch(std::function<void(QWidget*)> handle, int windows)
    : m_handle(std::move(handle)), m_windows(windows)
{
    connect(&m_timer, &QTimer::timeout, this, &ModalWatch::look);
    m_timer.start(interval);
}

void ModalWatch::look()
{
    QWidget* const window = QApplication::activeModalWidget();
    if (!window) {
        m_last = nullptr;
        m_idle = 0;
        return;
    }
    if (window != m_last && m_seen < m_windows) {
        m_last = window;
        m_idle = 0;
        ++m_seen;
        m_handle(window);
    } else if (++m_idle > longestStay) {
        m_forced = true;
        m_idle = 0;
        if (auto* dialog = qobject_cast<QDialog*>(window)) {
            dialog->reject();
        } else {
            window->close();
        }
    }
}
