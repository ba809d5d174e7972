#include "StickingTitle.h"

#include <QLabel>
#include <QPainter>

StickingTitle::StickingTitle(QWidget* viewport) : QFrame(viewport)
{
    setObjectName(QStringLiteral("stickingTitle"));
    setBackgroundRole(QPalette::Button);
    setAutoFillBackground(true);
    setCursor(Qt::PointingHandCursor);
    hide();
}

void StickingTitle::showFor(QToolButton* toggle, QLabel* title, int bottom)
{
    // As far off the edges as the first title is at the beginning.
    constexpr int margin = 2;
    m_toggle = toggle;
    m_title = title;
    const int height = qMax(toggle->height(), title->height()) + 2 * margin;
    setToolTip(toggle->toolTip());
    setGeometry(0, qMin(0, bottom - height), parentWidget()->width(), height);
    show();
    raise();
    update();
}

QString StickingTitle::text() const
{
    return m_title ? m_title->text() : QString();
}

void StickingTitle::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (!m_toggle || !m_title) {
        return;
    }
    QPainter painter(this);
    QRect icon(QPoint(), m_toggle->iconSize());
    icon.moveCenter({m_toggle->geometry().center().x(), rect().center().y()});
    m_toggle->icon().paint(&painter, icon, Qt::AlignCenter, QIcon::Normal, QIcon::On);

    painter.setFont(m_title->font());
    QColor ink = palette().color(QPalette::WindowText);
    painter.setPen(ink);
    painter.drawText(QRect(m_title->x(), 0, width() - m_title->x(), height()),
                     Qt::AlignVCenter | Qt::TextSingleLine, text());
    // What goes on below it goes on under it.
    constexpr double edge = 0.3;
    ink.setAlphaF(edge);
    painter.fillRect(0, height() - 1, width(), 1, ink);
}

void StickingTitle::mousePressEvent(QMouseEvent*)
{
    // Taken, so that what is under it does not hear of it.
}
