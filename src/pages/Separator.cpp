#include "Separator.h"

#include <QEvent>
#include <QFrame>
#include <QPainter>

void Separator::takeLinesOf(QWidget* page)
{
    const auto frames = page->findChildren<QFrame*>();
    for (QFrame* frame : frames) {
        if (frame->frameShape() == QFrame::HLine) {
            new Separator(frame);
        }
    }
}

Separator::Separator(QFrame* line) : QObject(line)
{
    line->installEventFilter(this);
}

bool Separator::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint) {
        return QObject::eventFilter(watched, event);
    }
    auto* const line = static_cast<QFrame*>(watched);
    QColor ink = line->palette().color(QPalette::WindowText);
    constexpr double pale = 0.35;
    ink.setAlphaF(pale);
    QPainter(line).fillRect(0, line->height() / 2, line->width(), 1, ink);
    return true;
}
