#pragma once

#include <QObject>

#include <optional>

class QKeyEvent;
class QLineEdit;
class QSpinBox;

/// Enter and Escape in a field in which a number is being typed are for the number alone. Enter
/// takes it, and does not also press the dialog's default button: what the check says of the number
/// shall be seen first. Escape takes the typing back. Where nothing is typed both go on to the
/// dialog, and so do the keys that undo and redo, which the text would keep for itself.
///
/// The number that Enter takes is checked, and the host may delete the dialog in that check. The
/// toolkit's field would go on, so Enter is dealt with here.
class TypingGuard : public QObject
{
    Q_OBJECT

public:
    static void protect(QSpinBox* field);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit TypingGuard(QSpinBox* field);

    bool isForTheDialog(const QKeyEvent* key) const;
    void enter();
    void takeBack();

    QSpinBox* m_field;
    QLineEdit* m_text;
    /// The number before the first key; none while nothing is typed.
    std::optional<int> m_before;
};
