#pragma once

#include <QObject>

class QWidget;

/// Keeps the wheel from changing a control that the user only scrolls past: without focus, the
/// event goes on to what is behind the control.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards the control, and keeps the wheel from giving it focus.
    static void protect(QWidget* control);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};
