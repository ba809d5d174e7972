#pragma once

#include <QObject>

class QWheelEvent;
class QWidget;

/// Keeps the wheel from changing a control that the user only scrolls past: without focus, and
/// while a gesture lasts that began as scrolling, the event goes on to what is behind the control.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards the control, and keeps the wheel from giving it focus.
    static void protect(QWidget* control);
    /// Takes turns of the wheel that reach the widget for scrolling.
    static void watch(QWidget* scrolled);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Role { Control, Scrolled };
    WheelGuard(QWidget* widget, Role role);

    const Role m_role;
};
