#include "WheelGuard.h"

#include <QWheelEvent>
#include <QWidget>

namespace
{

/// Turns of the wheel with less than this between them are one gesture, in milliseconds.
constexpr quint64 gesturePause = 300;

/// When the wheel last scrolled, by the clock of the window system's events; there is one pointer.
quint64 lastScrolled = 0;

/// Events that nobody has dated belong to no gesture.
bool isScrolling(const QWheelEvent* event)
{
    const quint64 now = event->timestamp();
    return event->phase() != Qt::ScrollBegin && now != 0 && lastScrolled != 0 &&
           now - lastScrolled < gesturePause;
}

} // namespace

WheelGuard::WheelGuard(QWidget* widget, Role role) : QObject(widget), m_role(role)
{
    widget->installEventFilter(this);
}

void WheelGuard::protect(QWidget* control)
{
    if (control->focusPolicy() == Qt::WheelFocus) {
        control->setFocusPolicy(Qt::StrongFocus);
    }
    new WheelGuard(control, Role::Control);
}

void WheelGuard::watch(QWidget* scrolled)
{
    new WheelGuard(scrolled, Role::Scrolled);
    // The events' clock is another one in another application object.
    lastScrolled = 0;
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel) {
        return QObject::eventFilter(watched, event);
    }
    const auto* const wheel = static_cast<QWheelEvent*>(event);
    if (m_role == Role::Scrolled) {
        lastScrolled = wheel->timestamp();
        return QObject::eventFilter(watched, event);
    }
    if (static_cast<QWidget*>(watched)->hasFocus() && !isScrolling(wheel)) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
}
