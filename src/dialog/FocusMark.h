#pragma once

#include <QObject>

class QAbstractButton;

/// Frames a button while it has the focus. Styles draw a dialog's default button like a focused
/// one, so on it the focus would not show.
class FocusMark : public QObject
{
public:
    /// Owned by the button.
    explicit FocusMark(QAbstractButton* button);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_painting = false;
};
