#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QSpinBox;

/// A word on a number below its field, while it is typed.
class TypingHint : public QObject
{
    Q_OBJECT

public:
    /// What there is to say of a number.
    using Words = std::function<QString(int)>;

    static void attach(QSpinBox* field, Words words);

private:
    TypingHint(QSpinBox* field, Words words);
    void show(const QString& typed) const;

    QSpinBox* const m_field;
    const Words m_words;
};
