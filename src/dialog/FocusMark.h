#pragma once

#include <QObject>

class QWidget;

/// Frames a widget while it has the focus, where styles do not show it: a dialog's default button
/// is drawn like a focused one, and a text that cannot be edited like one without focus.
class FocusMark : public QObject
{
public:
    /// Owned by the widget.
    explicit FocusMark(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_painting = false;
};
