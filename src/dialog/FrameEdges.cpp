#include "FrameEdges.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionTabWidgetFrame>
#include <QTabWidget>

namespace
{

/// A skin's borders are whole.
bool isOfTheSkin(const QWidget* widget)
{
    const QString sheet = widget->window()->styleSheet();
    return sheet.contains(QLatin1Char('#') + widget->objectName()) ||
           (qobject_cast<const QTabWidget*>(widget) &&
            sheet.contains(QLatin1String("QTabWidget::pane")));
}

bool isFractional(double scale)
{
    return !qFuzzyCompare(scale, double(qRound(scale)));
}

QRect frameOf(const QWidget* widget)
{
    const auto* const tabs = qobject_cast<const QTabWidget*>(widget);
    if (!tabs) {
        return widget->rect();
    }
    QStyleOptionTabWidgetFrame option;
    option.initFrom(tabs);
    option.tabBarSize = tabs->tabBar()->size();
    return tabs->style()->subElementRect(QStyle::SE_TabWidgetTabPane, &option, tabs);
}

void paintEdges(QWidget* widget)
{
    // As styles have it.
    constexpr int darker = 140;
    const QColor ink = widget->palette().color(QPalette::Window).darker(darker);
    const QRect frame = frameOf(widget);
    QPainter painter(widget);
    // Filled, not drawn: what is wider than a pixel has at least one whole one.
    painter.fillRect(frame.left(), frame.top(), 1, frame.height(), ink);
    painter.fillRect(frame.right(), frame.top(), 1, frame.height(), ink);
    painter.fillRect(frame.left(), frame.bottom(), frame.width(), 1, ink);
    if (!qobject_cast<QTabWidget*>(widget)) {
        painter.fillRect(frame.left(), frame.top(), frame.width(), 1, ink);
    }
}

} // namespace

FrameEdges::FrameEdges(QWidget* widget) : QObject(widget)
{
    widget->installEventFilter(this);
}

bool FrameEdges::eventFilter(QObject* watched, QEvent* event)
{
    auto* const widget = static_cast<QWidget*>(watched);
    if (event->type() != QEvent::Paint || m_painting ||
        !isFractional(widget->devicePixelRatioF()) || isOfTheSkin(widget)) {
        return QObject::eventFilter(watched, event);
    }
    // The widget first, then its edges.
    const QScopedValueRollback<bool> painting(m_painting, true);
    QCoreApplication::sendEvent(widget, event);
    paintEdges(widget);
    return true;
}
