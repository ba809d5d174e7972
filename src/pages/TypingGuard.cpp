#include "TypingGuard.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>

#include <utility>

void TypingGuard::protect(QSpinBox* field)
{
    field->installEventFilter(new TypingGuard(field));
}

TypingGuard::TypingGuard(QSpinBox* field)
    : QObject(field), m_field(field), m_text(field->findChild<QLineEdit*>())
{
    connect(m_text, &QLineEdit::textEdited, this, [this] {
        // A field that reports every key has not taken this one yet.
        m_before = m_before.value_or(m_field->value());
    });
    // Typing marks the text as modified, and nothing takes the mark away when the number is taken.
    connect(field, &QAbstractSpinBox::editingFinished, this, [this] {
        m_before.reset();
        m_text->setModified(false);
    });
}

bool TypingGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        isForTheDialog(static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape && m_before) {
        takeBack();
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_text->isModified()) {
        enter();
    } else {
        return QObject::eventFilter(watched, event);
    }
    event->accept();
    return true;
}

bool TypingGuard::isForTheDialog(const QKeyEvent* key) const
{
    return (key->matches(QKeySequence::Undo) && !(m_before && m_text->isUndoAvailable())) ||
           (key->matches(QKeySequence::Redo) && !(m_before && m_text->isRedoAvailable()));
}

void TypingGuard::enter()
{
    const QPointer<TypingGuard> self(this);
    m_field->interpretText();
    if (self && m_field->keyboardTracking()) {
        // Each key was reported; the toolkit's field reports the number once more.
        Q_EMIT m_field->valueChanged(m_field->value());
    }
    if (self) {
        m_field->selectAll();
        Q_EMIT m_field->editingFinished();
    }
}

void TypingGuard::takeBack()
{
    const int before = std::exchange(m_before, std::nullopt).value_or(m_field->value());
    // Also where the number is still this one it replaces the text.
    const QPointer<TypingGuard> self(this);
    m_field->setValue(before);
    // That may have been checked, and the dialog deleted meanwhile.
    if (!self) {
        return;
    }
    m_text->setModified(false);
    m_field->selectAll();
}
