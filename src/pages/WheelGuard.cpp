#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

void WheelGuard::protect(QWidget* control)
{
    if (control->focusPolicy() == Qt::WheelFocus) {
        control->setFocusPolicy(Qt::StrongFocus);
    }
    control->installEventFilter(new WheelGuard(control));
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
}
