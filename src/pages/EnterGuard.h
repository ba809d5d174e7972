#pragma once

#include <QObject>

class QAbstractSpinBox;
class QLineEdit;

/// Keeps the Enter that commits a typed number from also pressing the dialog's default button: what
/// the check says of the number shall be seen first. Without an edit, Enter goes on to the dialog.
class EnterGuard : public QObject
{
    Q_OBJECT

public:
    static void protect(QAbstractSpinBox* field);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit EnterGuard(QAbstractSpinBox* field);

    QLineEdit* m_text;
};
