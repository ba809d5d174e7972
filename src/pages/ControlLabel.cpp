#include "ControlLabel.h"

#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>

void ControlLabel::attach(QLabel* label, QWidget* control)
{
    control->installEventFilter(new ControlLabel(label, control));
}

void ControlLabel::attachBuddies(QWidget* control)
{
    const auto labels =
        control->parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel* label : labels) {
        if (label->buddy() == control) {
            attach(label, control);
        }
    }
}

ControlLabel::ControlLabel(QLabel* label, QWidget* control)
    : QObject(label), m_label(label), m_control(control), m_paleness(new QGraphicsOpacityEffect)
{
    // Whatever colour the text has from palettes, skins and sheets of hosts.
    constexpr double half = 0.5;
    m_paleness->setOpacity(half);
    label->setGraphicsEffect(m_paleness);
    follow();
}

bool ControlLabel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::ToolTipChange) {
        follow();
    }
    return QObject::eventFilter(watched, event);
}

void ControlLabel::follow()
{
    m_label->setToolTip(m_control->toolTip());
    m_label->setWhatsThis(m_control->whatsThis());
    m_label->setAccessibleDescription(m_control->accessibleDescription());
    // A page greys its labels itself.
    const bool grey = !m_control->isEnabledTo(m_control->parentWidget());
    m_paleness->setEnabled(grey);
}
