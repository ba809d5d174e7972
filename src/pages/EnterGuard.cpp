#include "EnterGuard.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>

void EnterGuard::protect(QAbstractSpinBox* field)
{
    field->installEventFilter(new EnterGuard(field));
}

EnterGuard::EnterGuard(QAbstractSpinBox* field)
    : QObject(field), m_text(field->findChild<QLineEdit*>())
{
    // Typing marks the text as modified, and nothing takes the mark away when the number is taken.
    connect(field, &QAbstractSpinBox::editingFinished, m_text,
            [text = m_text] { text->setModified(false); });
}

bool EnterGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !m_text->isModified()) {
        return QObject::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) {
        return QObject::eventFilter(watched, event);
    }
    watched->event(event);
    event->accept();
    return true;
}
