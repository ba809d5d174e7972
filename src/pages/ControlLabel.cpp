#include "ControlLabel.h"

#include <QEvent>
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
    : QObject(label), m_label(label), m_control(control)
{
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
    // A page greys its labels itself.
    const bool grey = !m_control->isEnabledTo(m_control->parentWidget());
    m_label->setForegroundRole(grey ? QPalette::PlaceholderText : QPalette::NoRole);
}
