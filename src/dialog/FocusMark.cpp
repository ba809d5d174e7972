#include "FocusMark.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>

FocusMark::FocusMark(QAbstractButton* button) : QObject(button)
{
    button->installEventFilter(this);
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event)
{
    auto* const button = static_cast<QAbstractButton*>(watched);
    if (event->type() != QEvent::Paint || m_painting || !button->hasFocus()) {
        return QObject::eventFilter(watched, event);
    }

    // The button first, then the frame over it.
    const QScopedValueRollback<bool> painting(m_painting, true);
    QCoreApplication::sendEvent(button, event);
    constexpr double inset = 3.5;
    QPainter painter(button);
    painter.setPen(button->palette().color(QPalette::ButtonText));
    painter.drawRect(QRectF(button->rect()).adjusted(inset, inset, -inset, -inset));
    return true;
}
