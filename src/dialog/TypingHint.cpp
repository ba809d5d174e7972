#include "TypingHint.h"

#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>
#include <QToolTip>

#include <utility>

void TypingHint::attach(QSpinBox* field, Words words)
{
    new TypingHint(field, std::move(words));
}

TypingHint::TypingHint(QSpinBox* field, Words words)
    : QObject(field), m_field(field), m_words(std::move(words))
{
    connect(field->findChild<QLineEdit*>(), &QLineEdit::textEdited, this, &TypingHint::show);
}

void TypingHint::show(const QString& typed) const
{
    bool isNumber = false;
    const int number = m_field->locale().toInt(typed, &isNumber);
    // Below the field, and not in the way of what is typed.
    constexpr int gap = 4;
    const QPoint place = m_field->mapToGlobal(QPoint(0, m_field->height() - gap));
    QToolTip::showText(place, isNumber ? m_words(number) : QString(), m_field);
}
