#include "FocusMark.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace
{

/// Whether the style sheet of the window says how the widget looks then.
bool hasMarkOfItsOwn(const QWidget* widget)
{
    const QString rule = QLatin1Char('#') + widget->objectName() + QLatin1String(":focus");
    return widget->window()->styleSheet().contains(rule);
}

void paintMark(QWidget* widget)
{
    if (hasMarkOfItsOwn(widget)) {
        return;
    }
    QPainter painter(widget);
    if (qobject_cast<QAbstractButton*>(widget)) {
        constexpr double inset = 3.5;
        painter.setPen(widget->palette().color(QPalette::ButtonText));
        painter.drawRect(QRectF(widget->rect()).adjusted(inset, inset, -inset, -inset));
        return;
    }
    // On the widget's own frame, all that its content leaves.
    constexpr int width = 2;
    painter.setPen(QPen(widget->palette().color(QPalette::Highlight), width, Qt::SolidLine,
                        Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(widget->rect()).adjusted(1, 1, -1, -1));
}

} // namespace

FocusMark::FocusMark(QWidget* widget) : QObject(widget)
{
    widget->installEventFilter(this);
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event)
{
    auto* const widget = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        widget->update();
    }
    if (event->type() != QEvent::Paint || m_painting || !widget->hasFocus()) {
        return QObject::eventFilter(watched, event);
    }

    // The widget first, then the frame over it.
    const QScopedValueRollback<bool> painting(m_painting, true);
    QCoreApplication::sendEvent(widget, event);
    paintMark(widget);
    return true;
}
